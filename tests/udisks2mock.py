# SPDX-License-Identifier: BSD-3-Clause
"""The simulated phone's storage daemon, which in addition runs whatever Python the test sends it.

The statements see the tree of objects as tree, everything in udisks2.py, and the functions below without their first
argument.
"""

import functools
import os
import sys

sys.dont_write_bytecode = True
# Where this template lies is not told; the test gives the path.
with open(os.environ['KIV_SIMULATED_UDISKS2'], encoding='utf-8') as simulated:
    exec(compile(simulated.read(), 'udisks2.py', 'exec'))

P1 = BLOCKS + 'mmcblk1p1'
P2 = BLOCKS + 'mmcblk1p2'
D1 = DRIVES + 'Card'
state = {'held': [], 'hold': False, 'answer': None, 'objects': 0, 'properties': []}


def load_simulated(mock, parameters, original=load):
    original(mock, parameters)
    mock.tree.objects = {}
    bound = {function.__name__: functools.partial(function, mock.tree) for function in (release, card, cards)}
    mock.names = {**globals(), **bound, 'tree': mock.tree, 'bus': mock.connection}
    mock.connection.add_message_filter(lambda bus, message: on_message(mock, bus, message))


load = load_simulated


def on_message(mock, bus, message):
    """Stands before the daemon's own methods."""
    if message.get_member() == 'GetAll':
        state['properties'].append('%s %s' % (message.get_path(), message.get_args_list()[0]))
    if message.get_member() == 'GetManagedObjects':
        state['objects'] += 1
    elif message.get_member() != 'GetAll' or message.get_path() == MAIN_OBJ:
        return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
    if state['hold']:
        state['held'].append(message)
        return dbus.lowlevel.HANDLER_RESULT_HANDLED
    if state['answer'] is None:
        return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
    signature, arguments = state['answer']
    if signature == 'error':
        reply = dbus.lowlevel.ErrorMessage(message, *arguments)
    else:
        reply = dbus.lowlevel.MethodReturnMessage(message)
        reply.append(*arguments, signature=signature)
    bus.send_message(reply)
    return dbus.lowlevel.HANDLER_RESULT_HANDLED


def hold():
    """Queries are not answered."""
    state['hold'] = True


def release(tree):
    """Those that wait for the list of objects are answered now."""
    state['hold'] = False
    for message in state['held']:
        reply = dbus.lowlevel.MethodReturnMessage(message)
        if message.get_member() == 'GetManagedObjects':
            reply.append(dbus.Dictionary(tree.objects, signature='oa{sa{sv}}'), signature='a{oa{sa{sv}}}')
        else:
            reply.append(tree.objects[message.get_path()][message.get_args_list()[0]], signature='a{sv}')
        tree.bus.send_message(reply)
    state['held'] = []


def answer(signature, *arguments):
    """Queries are answered so."""
    state['answer'] = signature, arguments


def card(tree, path=P1, device=None, *mount_points, on=D1):
    """Puts a card partition in, with its drive if that is not there."""
    if on not in tree.objects:
        tree.add(on, drive())
    tree.add(path, block(device or '/dev/' + path.rpartition('/')[2], on, 'filesystem', 'vfat'), partition(CARD_DISK),
             filesystem(*mount_points))


def cards(tree, *names):
    for name in names:
        card(tree, BLOCKS + name)


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s', out_signature='s')
def Run(self, statements):
    exec(str(statements), self.names)
    return str(self.names.get('result', ''))


@dbus.service.method(dbusmock.MOCK_IFACE)
def Reset(self):
    """As if the daemon had just been started, with nothing to tell."""
    self.tree.objects = {}
    state.update(held=[], hold=False, answer=None, objects=0, properties=[])
    self.names.pop('result', None)

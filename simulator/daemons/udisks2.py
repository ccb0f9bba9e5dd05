# SPDX-License-Identifier: BSD-3-Clause
"""The storage daemon UDisks2 of a phone with one slot for memory cards.

Settings in daemons.ini: card, the name of the card that is in the slot at the start (without it the slot is empty);
mounted, whether it is mounted then; size, of cards in KiB (1024).

Objects, properties and the order of signals are those of udisksd 2.9.4. A card is a small file system in memory and is
really mounted.
"""

import ctypes
import os
import shutil
import time

import dbus
import dbus.lowlevel
import dbus.service
from gi.repository import GLib

import dbusmock

BUS_NAME = 'org.freedesktop.UDisks2'
MAIN_OBJ = '/org/freedesktop/UDisks2'
MAIN_IFACE = 'org.freedesktop.UDisks2'
SYSTEM_BUS = True

OBJECT_MANAGER = 'org.freedesktop.DBus.ObjectManager'
PROPERTIES = 'org.freedesktop.DBus.Properties'
MANAGER = 'org.freedesktop.UDisks2.Manager'
DRIVE = 'org.freedesktop.UDisks2.Drive'
BLOCK = 'org.freedesktop.UDisks2.Block'
PARTITION = 'org.freedesktop.UDisks2.Partition'
PARTITION_TABLE = 'org.freedesktop.UDisks2.PartitionTable'
FILESYSTEM = 'org.freedesktop.UDisks2.Filesystem'
JOB = 'org.freedesktop.UDisks2.Job'
ERROR = 'org.freedesktop.UDisks2.Error'

BLOCKS = MAIN_OBJ + '/block_devices/'
DRIVES = MAIN_OBJ + '/drives/'
JOBS = MAIN_OBJ + '/jobs/'

CARD_DISK = BLOCKS + 'mmcblk1'
CARD_PARTITION = BLOCKS + 'mmcblk1p1'
CARD_DRIVE = DRIVES + 'SU08G_0x12345678'
CARD_DEVICE = '/dev/mmcblk1p1'

FAULTS = ('full', 'readonly', 'corrupt')

MOUNT_FOLDER = '/run/media/phone'
# So long the mount table and the job's end are apart in the real daemon.
TABLE_DELAY_MS = 30
# A caller waits for a job that is over sooner; a longer one goes on by itself.
LONGEST_WAIT_S = 2

MS_RDONLY, MS_NOSUID, MS_NODEV, MS_REMOUNT, MS_BIND = 1, 2, 4, 32, 4096
MNT_DETACH = 2

libc = ctypes.CDLL(None, use_errno=True)


# ---------------------------------------------------------------------------
# Objects

def file_name(text):
    return dbus.Array([dbus.Byte(byte) for byte in os.fsencode(text) + b'\0'], signature='y')


def file_names(*texts):
    return dbus.Array([file_name(text) for text in texts], signature='ay')


def paths(*texts):
    return dbus.Array([dbus.ObjectPath(text) for text in texts], signature='o')


def drive(bus='sdio', removable=True, media_removable=True, media='flash_sd', **other):
    now = dbus.UInt64(time.time() * 1e6)
    return {DRIVE: {
        'Vendor': '', 'Model': 'SU08G', 'Revision': '', 'Serial': '0x12345678', 'WWN': '', 'Id': 'SU08G-0x12345678',
        'Configuration': dbus.Dictionary({}, signature='sv'), 'Media': media,
        'MediaCompatibility': dbus.Array([media] if media else [], signature='s'), 'MediaRemovable': media_removable,
        'MediaAvailable': True, 'MediaChangeDetected': True, 'Size': dbus.UInt64(7948206080), 'TimeDetected': now,
        'TimeMediaDetected': now, 'Optical': False, 'OpticalBlank': False, 'OpticalNumTracks': dbus.UInt32(0),
        'OpticalNumAudioTracks': dbus.UInt32(0), 'OpticalNumDataTracks': dbus.UInt32(0),
        'OpticalNumSessions': dbus.UInt32(0), 'RotationRate': dbus.Int32(0), 'ConnectionBus': bus, 'Seat': 'seat0',
        'Removable': removable, 'Ejectable': media_removable, 'SortKey': '01hotplug/%d' % now, 'CanPowerOff': False,
        'SiblingId': '', **other}}


def block(device, drive_path, usage='', kind='', label='', number=0, **other):
    return {BLOCK: {
        'Device': file_name(device), 'PreferredDevice': file_name(device), 'Symlinks': file_names(),
        'DeviceNumber': dbus.UInt64(number), 'Id': 'by-uuid-' + label if label else '',
        'Size': dbus.UInt64(7944011776), 'ReadOnly': False, 'Drive': dbus.ObjectPath(drive_path),
        'MDRaid': dbus.ObjectPath('/'), 'MDRaidMember': dbus.ObjectPath('/'), 'IdUsage': usage, 'IdType': kind,
        'IdVersion': '', 'IdLabel': label, 'IdUUID': '', 'Configuration': dbus.Array([], signature='(sa{sv})'),
        'CryptoBackingDevice': dbus.ObjectPath('/'), 'HintPartitionable': True, 'HintSystem': False,
        'HintIgnore': False, 'HintAuto': True, 'HintName': '', 'HintIconName': '', 'HintSymbolicIconName': '',
        'UserspaceMountOptions': dbus.Array([], signature='s'), **other}}


def partition(table, number=1):
    return {PARTITION: {
        'Number': dbus.UInt32(number), 'Type': '0x0c', 'Flags': dbus.UInt64(0), 'Offset': dbus.UInt64(4194304),
        'Size': dbus.UInt64(7944011776), 'Name': '', 'UUID': '', 'Table': dbus.ObjectPath(table),
        'IsContainer': False, 'IsContained': False}}


def partition_table(*members):
    return {PARTITION_TABLE: {'Partitions': paths(*members), 'Type': 'dos'}}


def filesystem(*mount_points):
    return {FILESYSTEM: {'MountPoints': file_names(*mount_points), 'Size': dbus.UInt64(0)}}


def job(operation, *objects, **other):
    return {JOB: {
        'Operation': operation, 'Progress': dbus.Double(0), 'ProgressValid': False, 'Bytes': dbus.UInt64(0),
        'Rate': dbus.UInt64(0), 'StartTime': dbus.UInt64(time.time() * 1e6), 'ExpectedEndTime': dbus.UInt64(0),
        'Objects': paths(*objects), 'StartedByUID': dbus.UInt32(os.getuid()), 'Cancelable': True, **other}}


class Tree:
    """The daemon's objects. Every change is announced as the daemon does."""

    def __init__(self, bus):
        self.bus = bus
        self.objects = {}
        self.jobs_started = 0

    def emit(self, path, interface, member, signature, *arguments):
        message = dbus.lowlevel.SignalMessage(path, interface, member)
        message.append(*arguments, signature=signature)
        self.bus.send_message(message)

    def add(self, path, *interfaces):
        added = {}
        for interface in interfaces:
            added.update(interface)
        self.objects.setdefault(path, {}).update(added)
        self.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesAdded', 'oa{sa{sv}}', path, added)

    def remove(self, path, *interfaces):
        """Takes the interfaces from the object, or all of them."""
        names = list(interfaces) or list(self.objects[path])
        for name in names:
            self.objects[path].pop(name, None)
        if not self.objects[path]:
            del self.objects[path]
        self.emit(MAIN_OBJ, OBJECT_MANAGER, 'InterfacesRemoved', 'oas', path, names)

    def change(self, path, interface, **properties):
        self.objects[path][interface].update(properties)
        self.emit(path, PROPERTIES, 'PropertiesChanged', 'sa{sv}as', interface, properties, [])

    def set_mount_points(self, path, *places):
        if path in self.objects:
            self.change(path, FILESYSTEM, MountPoints=file_names(*places))

    def start_job(self, operation, *objects):
        path = JOBS + str(self.jobs_started)
        self.jobs_started += 1
        self.add(path, job(operation, *objects))
        return path

    def end_job(self, path, success=True, message=''):
        self.emit(path, JOB, 'Completed', 'bs', success, message)
        self.remove(path)


class Methods(dbus.service.FallbackObject):
    """What can be called on the objects below a path."""

    def __init__(self, bus, path, tree, slot):
        super().__init__(bus, path)
        self.tree = tree
        self.slot = slot
        self.methods = {}  # dbusmock looks here first, whatever the object

    def interface(self, path, name):
        if path not in self.tree.objects:
            raise dbus.DBusException('Object does not exist at path “%s”' % path,
                                     name='org.freedesktop.DBus.Error.UnknownMethod')
        if name not in self.tree.objects[path]:
            raise dbus.DBusException('No such interface “%s”' % name, name='org.freedesktop.DBus.Error.InvalidArgs')
        return self.tree.objects[path][name]

    @dbus.service.method(PROPERTIES, in_signature='s', out_signature='a{sv}', path_keyword='path')
    def GetAll(self, interface, path=None):
        return self.interface(path, interface)

    @dbus.service.method(PROPERTIES, in_signature='ss', out_signature='v', path_keyword='path')
    def Get(self, interface, name, path=None):
        return self.interface(path, interface)[name]

    @dbus.service.method(FILESYSTEM, in_signature='a{sv}', out_signature='s', path_keyword='path',
                         async_callbacks=('done', 'failed'))
    def Mount(self, _, done, failed, path=None):
        self.interface(path, FILESYSTEM)
        self.slot.mount(0, lambda: done(self.slot.mount_path()), failed)

    @dbus.service.method(FILESYSTEM, in_signature='a{sv}', path_keyword='path', async_callbacks=('done', 'failed'))
    def Unmount(self, _, done, failed, path=None):
        self.interface(path, FILESYSTEM)
        self.slot.unmount(0, done, failed)


# ---------------------------------------------------------------------------
# The card

def mount(source, target, kind=None, flags=0, options=None):
    arguments = [text and os.fsencode(text) for text in (source, target, kind)]
    if libc.mount(*arguments, ctypes.c_ulong(flags), options and options.encode()) != 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()), target)


def umount(target, flags=0):
    if libc.umount2(os.fsencode(target), flags) != 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()), target)


class CardFiles:
    """What is on the card. It stays there while the card is not mounted, and while the daemon is away.

    An ordinary user may mount nothing; the card is a plain directory then. It is never really full or corrupt, but the
    file that Kiv tests it with cannot be written, which looks the same.
    """

    def __init__(self):
        self.store = os.path.join(os.environ.get('XDG_RUNTIME_DIR', '/run'), 'sdcard')
        self.first_start = not os.path.isdir(self.store)
        os.makedirs(self.store, exist_ok=True)

    @property
    def name(self):
        """None while the slot is empty."""
        names = os.listdir(self.store)
        return names[0] if names else None

    @property
    def files(self):
        return os.path.join(self.store, self.name)

    @property
    def place(self):
        return os.path.join(MOUNT_FOLDER, self.name)

    @property
    def marks(self):
        """Files beside the store that stand for the card's faults."""
        return self.store + '-faults'

    def has_fault(self, fault):
        return os.path.exists(os.path.join(self.marks, fault))

    def is_mounted(self):
        return self.name is not None and os.path.lexists(self.place)

    def insert(self, name, kibibytes):
        target = os.path.join(self.store, name)
        os.mkdir(target)
        os.makedirs(self.marks, exist_ok=True)
        try:
            mount('card', target, 'tmpfs', MS_NOSUID | MS_NODEV, 'size=%dk,mode=0777' % kibibytes)
        except PermissionError:
            pass

    def remove(self):
        if self.is_mounted():
            self.unmount(MNT_DETACH)
        if os.path.ismount(self.files):
            umount(self.files, MNT_DETACH)
        shutil.rmtree(self.files)
        shutil.rmtree(self.marks)

    def mount(self):
        os.makedirs(MOUNT_FOLDER, exist_ok=True)
        if not os.path.ismount(self.files):
            os.symlink(self.files, self.place)
        else:
            os.mkdir(self.place)
            mount(self.files, self.place, flags=MS_BIND)
        self.apply_faults()

    def unmount(self, flags=0):
        if os.path.islink(self.place):
            os.unlink(self.place)
            return
        spoiled = self.place + '/test.tmp'
        if os.path.ismount(spoiled):
            umount(spoiled, MNT_DETACH)
        umount(self.place, flags)
        os.rmdir(self.place)

    def set_fault(self, fault, on):
        mark = os.path.join(self.marks, fault)
        if on:
            open(mark, 'w').close()
        elif os.path.exists(mark):
            os.unlink(mark)
        self.apply_faults()

    def apply_faults(self):
        if os.path.ismount(self.files):
            self.apply_corrupt()
            self.apply_full()
            self.apply_readonly()
            return
        os.chmod(self.files, 0o777)
        spoiled = self.files + '/test.tmp'
        if self.has_fault('full') or self.has_fault('corrupt'):
            if not os.path.exists(spoiled):
                open(spoiled, 'w').close()
            os.chmod(spoiled, 0o444)
        elif os.path.exists(spoiled):
            os.unlink(spoiled)
        if any(map(self.has_fault, FAULTS)):
            os.chmod(self.files, 0o555)

    def apply_full(self):
        filler = self.files + '/full.bin'
        if not self.has_fault('full'):
            if os.path.exists(filler):
                os.unlink(filler)
            return
        with open(filler, 'ab', buffering=0) as file:
            try:
                while True:
                    file.write(bytes(4096))
            except OSError:
                pass

    def apply_readonly(self):
        if self.is_mounted():
            flags = MS_REMOUNT | MS_BIND | MS_NOSUID | MS_NODEV
            mount(None, self.place, flags=flags | (MS_RDONLY if self.has_fault('readonly') else 0))

    def apply_corrupt(self):
        """Over the test's file lies another, longer one: whatever is written, more and other bytes are read."""
        spoiled = self.files + '/test.tmp'
        seen = self.place + '/test.tmp'
        if self.has_fault('corrupt'):
            open(spoiled, 'a').close()
            if self.is_mounted() and not os.path.ismount(seen):
                source = os.path.join(self.marks, 'other')
                with open(source, 'wb') as file:
                    file.write(os.urandom(1 << 14))
                os.chmod(source, 0o666)
                mount(source, seen, flags=MS_BIND)
        elif os.path.exists(spoiled):
            if self.is_mounted() and os.path.ismount(seen):
                umount(seen, MNT_DETACH)
            os.unlink(spoiled)


class Slot:
    """The slot, and the card in it as the daemon sees it."""

    def __init__(self, tree, kibibytes):
        self.tree = tree
        self.kibibytes = kibibytes
        self.files = CardFiles()
        self.running = None  # path, operation and timer of the job

    def mount_path(self):
        return self.files.place

    def check_card(self):
        if self.files.name is None:
            raise dbus.DBusException('there is no card in the slot', name=ERROR + '.Failed')

    def insert(self, name):
        if self.files.name is not None:
            raise dbus.DBusException('there is a card in the slot already', name=ERROR + '.Failed')
        if not name or '/' in name or name.startswith('.'):
            raise dbus.DBusException('that is no name for a card', name=ERROR + '.Failed')
        self.files.insert(name, self.kibibytes)
        self.announce()

    def announce(self):
        places = [self.files.place] if self.files.is_mounted() else []
        self.tree.add(CARD_DRIVE, drive())
        self.tree.add(CARD_DISK, block('/dev/mmcblk1', CARD_DRIVE, number=0xb308), partition_table(CARD_PARTITION))
        self.tree.add(CARD_PARTITION, filesystem(*places), partition(CARD_DISK),
                      block(CARD_DEVICE, CARD_DRIVE, 'filesystem', 'vfat', self.files.name, 0xb309))

    def remove(self):
        self.check_card()
        if self.running:
            GLib.source_remove(self.running[2])
            self.end_job(False, 'The device has gone')
        self.files.remove()
        for path in CARD_PARTITION, CARD_DISK, CARD_DRIVE:
            self.tree.remove(path)

    def mount(self, seconds, done, failed, succeeds=True):
        self.check_card()
        if self.files.is_mounted():
            raise dbus.DBusException('Device %s is already mounted at `%s\'.\n' % (CARD_DEVICE, self.files.place),
                                     name=ERROR + '.AlreadyMounted')

        def work():
            if not succeeds:
                raise OSError(0, 'Error mounting %s at %s: wrong fs type, bad option, bad superblock on %s, missing '
                                 'codepage or helper program, or other error'
                              % (CARD_DEVICE, self.files.place, CARD_DEVICE))
            self.files.mount()

        def after():
            self.later(lambda: self.tree.set_mount_points(CARD_PARTITION, self.files.place))
        self.run_job('filesystem-mount', seconds, work, after, done, failed)

    def unmount(self, seconds, done, failed):
        self.check_card()
        if not self.files.is_mounted():
            raise dbus.DBusException('Device `%s\' is not mounted' % CARD_DEVICE, name=ERROR + '.NotMounted')

        def work():
            self.files.unmount()
            # Here it is the mount table that is ahead of the job's end.
            self.tree.set_mount_points(CARD_PARTITION)
        self.run_job('filesystem-unmount', seconds, work, lambda: None, done, failed)

    def run_job(self, operation, seconds, work, after, done, failed):
        if self.running:
            raise dbus.DBusException('An operation is already pending', name=ERROR + '.DeviceBusy')
        answered = seconds > LONGEST_WAIT_S

        def finish():
            try:
                work()
                error = None
            except OSError as problem:
                error = problem.strerror
            self.end_job(error is None, error or '')
            if error is None:
                after()
            if answered:
                return
            if error is None:
                self.later(done)
            else:
                failed(dbus.DBusException(error, name=ERROR + '.Failed'))

        path = self.tree.start_job(operation, CARD_PARTITION)
        self.running = (path, operation, self.later(finish, int(seconds * 1000)))
        if answered:
            done()

    def end_job(self, success, message):
        path = self.running[0]
        self.running = None
        self.tree.end_job(path, success, message)

    @staticmethod
    def later(function, milliseconds=TABLE_DELAY_MS):
        def once():
            function()
            return False
        return GLib.timeout_add(milliseconds, once)

    def state(self):
        if self.files.name is None:
            return 'no card'
        words = [self.files.name]
        if self.running:
            words.append('mounting' if self.running[1] == 'filesystem-mount' else 'unmounting')
        elif self.files.is_mounted():
            words.append('mounted at ' + self.files.place)
        else:
            words.append('not mounted')
        words += [fault for fault in FAULTS if self.files.has_fault(fault)]
        return ', '.join(words)


# ---------------------------------------------------------------------------
# The template

def load(mock, parameters):
    bus = mock.connection
    mock.tree = Tree(bus)
    mock.slot = Slot(mock.tree, int(parameters.get('size', '1024')))
    mock.callable_objects = [Methods(bus, path.rstrip('/'), mock.tree, mock.slot) for path in (BLOCKS, DRIVES, JOBS)]
    mock.tree.objects[MAIN_OBJ + '/Manager'] = {MANAGER: {
        'Version': '2.9.4', 'SupportedFilesystems': dbus.Array(['ext4', 'vfat', 'exfat'], signature='s'),
        'SupportedEncryptionTypes': dbus.Array(['luks1', 'luks2'], signature='s'),
        'DefaultEncryptionType': 'luks1'}}
    # The phone's own storage, which is no card.
    internal = DRIVES + 'BWBC3R_0x4a6f0d1b'
    mock.tree.add(internal, drive('sdio', False, False, '', Model='BWBC3R', Serial='0x4a6f0d1b',
                                  Id='BWBC3R-0x4a6f0d1b'))
    mock.tree.add(BLOCKS + 'mmcblk0', block('/dev/mmcblk0', internal, HintSystem=True, number=0xb300),
                  partition_table(BLOCKS + 'mmcblk0p28'))
    mock.tree.add(BLOCKS + 'mmcblk0p28', filesystem('/'), partition(BLOCKS + 'mmcblk0', 28),
                  block('/dev/mmcblk0p28', internal, 'filesystem', 'ext4', HintSystem=True,
                        number=0xb31c))
    if mock.slot.files.name is not None:
        mock.slot.announce()
    elif mock.slot.files.first_start and parameters.get('card'):
        mock.slot.files.insert(parameters['card'], mock.slot.kibibytes)
        if parameters.get('mounted', 'false').lower() in ('true', 'yes', '1'):
            mock.slot.files.mount()
        mock.slot.announce()


@dbus.service.method(OBJECT_MANAGER, out_signature='a{oa{sa{sv}}}')
def GetManagedObjects(self):
    return dbus.Dictionary(self.tree.objects, signature='oa{sa{sv}}')


@dbus.service.method(dbusmock.MOCK_IFACE, out_signature='s')
def CardState(self):
    return self.slot.state()


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='s')
def InsertCard(self, name):
    self.slot.insert(name)


@dbus.service.method(dbusmock.MOCK_IFACE)
def RemoveCard(self):
    self.slot.remove()


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='d', async_callbacks=('done', 'failed'))
def MountCard(self, seconds, done, failed):
    self.slot.mount(seconds, done, failed)


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='d', async_callbacks=('done', 'failed'))
def UnmountCard(self, seconds, done, failed):
    self.slot.unmount(seconds, done, failed)


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='d', async_callbacks=('done', 'failed'))
def FailToMountCard(self, seconds, done, failed):
    # That it fails is what was asked for.
    self.slot.mount(seconds, done, lambda error: done(), succeeds=False)


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature='sb')
def SetCardFault(self, fault, on):
    self.slot.check_card()
    self.slot.files.set_fault(str(fault), bool(on))

# SPDX-License-Identifier: BSD-3-Clause
"""The phone's sound: a real PulseAudio server whose sink ends nowhere and whose microphones are tones.

sound.ini has a section for each sink and source:

    [sink.primary]
    kind = sink
    properties = droid.output.primary
    ports = output-speaker output-earpiece

    [source.builtin]
    kind = source
    properties = droid.input.builtin
    ports = input-back_mic:440:660
    port after port, with what its left and its right channel hear, in Hertz

The first port is active at first, the first sink and source are the server's defaults.
"""

import array
import os
import select
import shutil
import signal
import subprocess
import sys
import time

from commands import Failure
from phonefolder import SIMULATOR, BadPhone, read_ini

FOLDER = '/run/kiv-phone/sound'
PORTS = FOLDER + '/ports'
START_TIMEOUT_S = 60
RATE = 48000
FRAME = 4
# What an ear takes in: the first part is what was on its way before.
LISTEN_SKIP_S = 0.1
LISTEN_S = 0.3
LISTEN_TIMEOUT_S = 30
AUDIBLE = 500


class Sound:
    def __init__(self, phone, pactl, uid):
        self.phone = phone
        self.uid = uid
        self.server = None
        self.streams = {}
        self.ports = {}
        path = os.path.join(phone.folder, 'sound.ini')
        self.objects = read_ini(path) if os.path.exists(path) else {}
        os.makedirs(PORTS)
        os.chmod(PORTS, 0o777)
        if pactl is not None:
            with open(pactl, 'rb') as source, open(FOLDER + '/pactl', 'wb') as target:
                shutil.copyfileobj(source, target)
            os.chmod(FOLDER + '/pactl', 0o755)
        # None is started by those who merely ask for one. A phone's server has made a cookie for its user before any
        # other program runs, so none of them leaves one in the home.
        with open(FOLDER + '/cookie', 'wb') as file:
            file.write(os.urandom(256))
        with open(FOLDER + '/client.conf', 'w') as file:
            file.write('autospawn = no\nenable-shm = no\ncookie-file = %s/cookie\n' % FOLDER)
        phone.environment['PULSE_CLIENTCONFIG'] = FOLDER + '/client.conf'
        for directory in FOLDER, PORTS:
            if uid is not None:
                os.chown(directory, uid, uid)
        if self.objects:
            if pactl is None or not shutil.which('pulseaudio'):
                print('start: no sound: there is no PulseAudio on this machine', file=sys.stderr)
                return
            self.describe()
            self.start()

    def describe(self):
        """Writes what the server, the microphones and the ports are made from."""
        lines, defaults, tones = [], {}, []
        for name, settings in self.objects.items():
            kind, ports = settings.get('kind'), [port.split(':') for port in settings.get('ports', '').split()]
            if kind not in ('sink', 'source'):
                raise BadPhone('sound.ini: the kind of %s is neither sink nor source' % name)
            properties = ' '.join("%s='true'" % key for key in settings.get('properties', '').split())
            arguments = '%s_name=%s rate=48000 format=s16le channels=2' % (kind, name)
            if kind == 'source':
                arguments += ' file=%s/%s' % (FOLDER, name)
                tones.append(name)
            if properties:
                arguments += ' %s_properties="%s"' % (kind, properties)
            lines.append('load-module module-%s %s' % ('null-sink' if kind == 'sink' else 'pipe-source', arguments))
            defaults.setdefault(kind, name)
            if ports:
                with open('%s/%s' % (PORTS, name), 'w') as file:
                    for port in ports:
                        file.write('%s %s\n' % (port[0], port[0].partition('-')[2].replace('_', ' ').capitalize()))
                self.ports[name] = [port[0] for port in ports]
        lines += ['load-module module-native-protocol-unix auth-anonymous=1 auth-cookie-enabled=no', 'load-module module-cli-protocol-unix']
        lines += ['set-default-%s %s' % item for item in defaults.items()]
        with open(FOLDER + '/server.pa', 'w') as file:
            file.write('\n'.join(lines) + '\n')
        self.tones = tones

    @staticmethod
    def write_active(name, port):
        path = '%s/%s.active' % (PORTS, name)
        with open(path, 'w') as file:
            file.write(port + '\n')
        os.chmod(path, 0o666)

    def popen(self, arguments, log=subprocess.DEVNULL):
        identity = {} if self.uid is None else {'user': self.uid, 'group': self.uid, 'extra_groups': []}
        environment = {key: value for key, value in self.phone.environment.items() if key != 'LD_PRELOAD'}
        environment['HOME'] = FOLDER  # where the server leaves its own things
        return subprocess.Popen(arguments, env=environment, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                start_new_session=True, **identity)

    def running(self):
        return self.server is not None and self.server.poll() is None

    def start(self):
        if not self.objects:
            raise Failure('this phone has no sound')
        if self.running():
            raise Failure('the sound server is running already')
        # A server that crashed has left these behind.
        for name in self.tones:
            if os.path.exists('%s/%s' % (FOLDER, name)):
                os.unlink('%s/%s' % (FOLDER, name))
        for name, ports in self.ports.items():
            self.write_active(name, ports[0])
        with open(FOLDER + '/server.log', 'a') as log:
            self.server = self.popen(['pulseaudio', '-n', '--daemonize=no', '--exit-idle-time=-1', '--disable-shm=yes',
                                      '--realtime=no', '--high-priority=no', '-F',
                                      FOLDER + '/server.pa'], log)
        end = time.monotonic() + START_TIMEOUT_S
        while self.popen([FOLDER + '/pactl', 'info']).wait():
            if not self.running() or time.monotonic() > end:
                raise Failure('the sound server does not start, see %s/server.log' % FOLDER)
            time.sleep(0.02)
        self.microphones = [self.popen(['/usr/bin/python3', '-Es', os.path.join(SIMULATOR, 'lib', 'microphone.py'),
                                        '%s/%s' % (FOLDER, name), '%s/%s.active' % (PORTS, name),
                                        self.objects[name].get('ports', '')]) for name in self.tones]

    def stop(self):
        """As a crash ends it; the streams end with it."""
        if not self.running():
            raise Failure('the sound server is not running')
        for process in [*self.microphones, *self.streams.values(), self.server]:
            process.kill()
            process.wait()
        self.streams.clear()

    def signal(self, number):
        if not self.running():
            raise Failure('the sound server is not running')
        self.server.send_signal(number)

    def freeze(self):
        """It keeps its connections and answers nobody."""
        self.signal(signal.SIGSTOP)

    def thaw(self):
        self.signal(signal.SIGCONT)

    def start_stream(self, name):
        if not self.running():
            raise Failure('the sound server is not running')
        self.drop_ended()
        if name in self.streams:
            raise Failure('%s is playing already' % name)
        before = self.stream_count()
        self.streams[name] = self.popen(['sh', '-c', 'exec pacat --playback --client-name="$0" --stream-name="$0" '
                                         '</dev/zero', name])
        end = time.monotonic() + START_TIMEOUT_S
        while self.stream_count() <= before:
            if time.monotonic() > end:
                raise Failure('%s does not play' % name)
            time.sleep(0.02)

    def stop_stream(self, name):
        self.drop_ended()
        if name not in self.streams:
            raise Failure('%s is not playing' % name)
        process = self.streams.pop(name)
        process.terminate()
        process.wait()

    def drop_ended(self):
        self.streams = {name: process for name, process in self.streams.items() if process.poll() is None}

    def stream_count(self):
        process = self.popen([FOLDER + '/pactl', 'list', 'short', 'sink-inputs'], subprocess.PIPE)
        return len(process.communicate()[0].splitlines())

    def active(self, name):
        return self.phone.read('%s/%s.active' % (PORTS, name))

    def listen(self):
        """What comes out of the default output: the peaks of its left and its right side."""
        if not self.running():
            raise Failure('the sound server is not running')
        output = next((name for name, settings in self.objects.items() if settings.get('kind') == 'sink'), None)
        if output is None:
            raise Failure('this phone has no output')
        recorder = self.popen(['parec', '--device=%s.monitor' % output, '--raw', '--format=s16le', '--channels=2',
                               '--rate=%d' % RATE, '--latency-msec=20'], subprocess.PIPE)
        heard = bytearray()
        end = time.monotonic() + LISTEN_TIMEOUT_S
        skip = FRAME * int(RATE * LISTEN_SKIP_S)
        wanted = skip + FRAME * int(RATE * LISTEN_S)
        try:
            while len(heard) < wanted:
                if not select.select([recorder.stdout], [], [], max(0, end - time.monotonic()))[0]:
                    raise Failure('the output delivers nothing')
                part = os.read(recorder.stdout.fileno(), 65536)
                if not part:
                    raise Failure('the output cannot be listened to')
                heard += part
        finally:
            recorder.kill()
            recorder.wait()
            recorder.stdout.close()
        samples = array.array('h', bytes(heard[skip:wanted]))
        if sys.byteorder == 'big':
            samples.byteswap()
        return [max(abs(sample) for sample in samples[side::2]) for side in (0, 1)]

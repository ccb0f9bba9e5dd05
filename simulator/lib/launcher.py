# SPDX-License-Identifier: BSD-3-Clause
"""Build Kiv if need be and run it on a simulated phone.

./run [OPTION]...

With a display, the phone is a window; without one, its screen is served over
VNC on the loopback address. simulator/phonectl changes the phone meanwhile.

  --phone NAME       full (the default), bare, or the path of a folder of your
                     own (with a slash in it)
  --list             list the phones
  --locale xx_YY     run in this language
  --size WxH         size of the screen; without this 540x960
  --screenshot FILE  write a picture of the screen to the file (PNG) and end
  --page NAME        begin with this screen (home, disclaimer, list, summary,
                     settings) or this test, such as VerificationBattery
  --preset NAME      the CMake preset that is built; without this: release
  --stage DIR        build nothing, run what is installed below this folder
  --vnc              serve the screen over VNC although there is a display
  --help             this text
"""

import fcntl
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True

import phonefolder
from display import Display, NoDisplay, end_with_parent

SIMULATOR = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SOURCE = os.path.dirname(SIMULATOR)
# Where the installed kiv looks for its first page, compiled and not.
MAIN_PAGE = '/usr/share/kiv/main.qml'

DRAWN = 'kiv-screenshot: drawn'
UNKNOWN_PAGE = 'kiv-screenshot: unknown page'
DRAW_TIMEOUT_S = 60
# The picture is taken when the screen has not changed over so many looks.
STILL_LOOKS = 4
LOOK_EVERY_S = 0.15
STILL_LOOKS_AT_MOST = 60
END_TIMEOUT_S = 20


class Problem(Exception):
    pass


# ---------------------------------------------------------------------------
# Building

def cmake(*arguments, **keywords):
    result = subprocess.run(['cmake', *arguments], cwd=SOURCE, **keywords)
    if result.returncode:
        raise Problem('cmake %s failed' % ' '.join(arguments[:2]))
    return result


def forget_moved_build(build):
    """A build folder that came along when the source tree was moved or copied cannot be used."""
    try:
        with open(os.path.join(build, 'CMakeCache.txt'), errors='replace') as file:
            home = re.search(r'^CMAKE_HOME_DIRECTORY:\w+=(.*)$', file.read(), re.MULTILINE)
    except OSError:
        return
    if not home or os.path.realpath(home.group(1)) != os.path.realpath(SOURCE):
        shutil.rmtree(build)


def compile_changes(build):
    """Builds what has changed; returns whether anything had. Silent if nothing had."""
    process = subprocess.Popen(['ninja', '-C', build], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                               errors='replace')
    built = True
    with process.stdout:
        for line in process.stdout:
            if line.startswith('ninja: no work to do'):
                built = False
            elif not re.match(r'ninja: Entering directory|\[0/\d+\] Re-checking globbed', line):
                sys.stderr.write(line)
    if process.wait():
        raise Problem('Kiv does not build')
    return built


def newest(folder):
    latest = 0
    for path, folders, files in os.walk(folder):
        if path == folder:
            folders[:] = [name for name in folders if name not in ('build', '.git')]
        for name in [*files, '.']:
            latest = max(latest, os.lstat(os.path.join(path, name)).st_mtime_ns)
    return latest


def build_and_stage(preset):
    """Brings build/<preset>-stage up to date and returns it."""
    build = os.path.join(SOURCE, 'build', preset)
    stage = build + '-stage'
    stamp = build + '-stage.stamp'
    os.makedirs(os.path.dirname(build), exist_ok=True)
    with open(build + '.lock', 'w') as lock:
        # Two starts at once: the second waits and then finds everything done.
        fcntl.flock(lock, fcntl.LOCK_EX)
        forget_moved_build(build)
        if not os.path.exists(os.path.join(build, 'build.ninja')):
            cmake('--preset', preset, stdout=sys.stderr)
        built = compile_changes(build)
        now = newest(SOURCE)
        try:
            staged = os.stat(stamp).st_mtime_ns
        except OSError:
            staged = 0
        if built or not os.path.isdir(stage) or now != staged:
            fresh, old = stage + '.new', stage + '.old'
            for path in fresh, old:
                shutil.rmtree(path, ignore_errors=True)
            cmake('--install', build, env=dict(os.environ, DESTDIR=fresh), stdout=subprocess.DEVNULL)
            if os.path.isdir(stage):
                os.rename(stage, old)
            os.rename(fresh, stage)
            shutil.rmtree(old, ignore_errors=True)
            with open(stamp, 'w'):
                pass
            # The time of what was staged, not of now: a file saved meanwhile counts as changed.
            os.utime(stamp, ns=(now, now))
    return stage


# ---------------------------------------------------------------------------
# Running

class Options:
    phone = 'full'
    size = (540, 960)
    locale = screenshot = page = stage = None
    preset = 'release'
    vnc = False


def start_command(options, stage, *more):
    return [os.path.join(SIMULATOR, 'start'), '--phone', options.phone, '--install', stage, *more, '--', '/usr/bin/kiv']


def environment_for(options, display):
    environment = dict(os.environ, **display.environment)
    environment['QT_QPA_PLATFORM'] = 'xcb'
    # The software renderer would leave out what cameras and videos show.
    if display.has_opengl():
        environment.setdefault('QT_QUICK_BACKEND', '')
    for name in 'QT_SCALE_FACTOR', 'QT_SCREEN_SCALE_FACTORS', 'QT_AUTO_SCREEN_SCALE_FACTOR', 'WAYLAND_DISPLAY':
        environment.pop(name, None)
    if options.locale:
        locale = options.locale if '.' in options.locale else options.locale + '.UTF-8'
        environment.update(LANG=locale, LC_ALL=locale)
        environment.pop('LANGUAGE', None)
    return environment


def page_layer(folder, page):
    """A first page that opens the wanted screen and tells when it has been drawn."""
    with open(os.path.join(SIMULATOR, 'screenshot', 'main.qml'), encoding='utf-8') as file:
        text = file.read()
    target = folder + MAIN_PAGE
    os.makedirs(os.path.dirname(target))
    with open(target, 'w', encoding='utf-8') as file:
        file.write(text.replace('@PAGE@', page or ''))
    # A compiled page would be taken in its source's stead.
    return ['--layer', folder, '--absent', MAIN_PAGE + 'c']


def run_interactively(options, stage):
    title = 'Kiv on the phone "%s"' % os.path.basename(options.phone.rstrip('/'))
    display = None
    if os.environ.get('DISPLAY') and not options.vnc:
        try:
            display = Display(options.size, nested=True, title=title)
        except NoDisplay as error:
            print('run: %s; serving the screen over VNC instead' % error, file=sys.stderr)
    with display or Display(options.size) as screen, tempfile.TemporaryDirectory(prefix='kiv-run-') as folder:
        if not display:
            port = screen.serve_vnc()
            print("The phone's screen is at vnc://127.0.0.1:%d (from another computer: ssh -L %d:127.0.0.1:%d %s)"
                  % (port, port, port, os.uname().nodename))
        print('simulator/phonectl help tells how to change the phone; Ctrl-C ends it.', flush=True)
        more = page_layer(folder, options.page) if options.page else []
        process = subprocess.Popen(start_command(options, stage, *more), env=environment_for(options, screen),
                                   preexec_fn=end_with_parent)
        return wait_for(process)


def wait_for(process):
    """Waits for the phone; what ends this process ends it first."""
    def forward(number, _):
        process.send_signal(number)
    for number in signal.SIGTERM, signal.SIGHUP:
        signal.signal(number, forward)
    while True:
        try:
            return process.wait()
        except KeyboardInterrupt:
            pass  # the terminal has told the phone, too


def take_screenshot(options, stage):
    with Display(options.size) as display, tempfile.TemporaryDirectory(prefix='kiv-run-') as folder:
        process = subprocess.Popen(start_command(options, stage, *page_layer(folder, options.page)),
                                   env=environment_for(options, display), stderr=subprocess.PIPE, text=True,
                                   errors='replace', preexec_fn=end_with_parent)
        try:
            wait_until_drawn(process, options.page)
            picture = still_picture(display, folder)
        finally:
            process.terminate()
            try:
                _, rest = process.communicate(timeout=END_TIMEOUT_S)
                sys.stderr.write(''.join(line for line in rest.splitlines(True) if DRAWN not in line))
            except subprocess.TimeoutExpired:
                process.kill()
                process.communicate()
        if process.returncode:
            raise Problem('kiv ended with status %d' % process.returncode)
        with open(picture, 'rb') as source, open(options.screenshot, 'wb') as target:
            shutil.copyfileobj(source, target)
    return 0


def wait_until_drawn(process, page):
    deadline = signal.signal(signal.SIGALRM, on_alarm)
    signal.alarm(DRAW_TIMEOUT_S)
    try:
        for line in process.stderr:
            if DRAWN in line:
                return
            if UNKNOWN_PAGE in line:
                raise Problem('there is no page named %s' % page)
            sys.stderr.write(line)
            if MAIN_PAGE + ':' in line:
                raise Problem('the pages do not load')
        raise Problem('kiv ended before it had drawn anything (status %d)' % process.wait())
    finally:
        signal.alarm(0)
        signal.signal(signal.SIGALRM, deadline)


def on_alarm(*_):
    raise Problem('kiv has drawn nothing in %d seconds' % DRAW_TIMEOUT_S)


def still_picture(display, folder):
    """Pictures the screen until it stays the same; a screen that never does is pictured as it is."""
    path = os.path.join(folder, 'screen.png')
    last, still = None, 0
    for _ in range(STILL_LOOKS_AT_MOST):
        display.screenshot(path)
        now = pixels(path)
        still = still + 1 if now == last else 0
        last = now
        if still == STILL_LOOKS:
            break
        time.sleep(LOOK_EVERY_S)
    if still < STILL_LOOKS:
        print('run: the screen keeps changing; this is how it looked last', file=sys.stderr)
    return path


def pixels(path):
    """What the picture shows, without the times that the file also tells."""
    return subprocess.run(['identify', '-format', '%#', path], capture_output=True, check=True).stdout


# ---------------------------------------------------------------------------

def parse(arguments):
    options = Options()
    left = list(arguments)
    while left:
        option = left.pop(0)
        if option == '--vnc':
            options.vnc = True
            continue
        if option not in ('--phone', '--locale', '--size', '--screenshot', '--page', '--preset', '--stage'):
            raise Problem('unknown option %s (see ./run --help)' % option)
        if not left:
            raise Problem('%s needs a value (see ./run --help)' % option)
        value = left.pop(0)
        if option == '--size':
            match = re.fullmatch(r'([1-9]\d{1,3})x([1-9]\d{1,3})', value)
            if not match:
                raise Problem('%s is no size such as 540x960' % value)
            value = (int(match.group(1)), int(match.group(2)))
        elif option == '--page' and not re.fullmatch(r'[A-Za-z0-9]+', value):
            raise Problem('%s is no name of a page' % value)
        elif option == '--locale' and not re.fullmatch(r'[A-Za-z]{2,3}(_[A-Za-z0-9]+)?([.@][\w@.-]+)?|C|POSIX', value):
            raise Problem('%s is no locale such as fi_FI' % value)
        elif option == '--stage' and not os.path.isdir(value):
            raise Problem('there is no folder %s' % value)
        setattr(options, option[2:], value)
    try:
        phonefolder.find(options.phone)
    except phonefolder.BadPhone as error:
        raise Problem(error)
    return options


def main(arguments):
    if '--help' in arguments or '-h' in arguments:
        print(__doc__.strip())
        return 0
    if '--list' in arguments:
        for phone in phonefolder.shipped():
            print('%-8s %s' % (phone.name, phone.description()))
        return 0
    try:
        options = parse(arguments)
        stage = options.stage or build_and_stage(options.preset)
        return take_screenshot(options, stage) if options.screenshot else run_interactively(options, stage)
    except (Problem, NoDisplay) as error:
        print('run: %s' % error, file=sys.stderr)
        return 1
    except OSError as error:
        print('run: %s: %s' % (error.filename, error.strerror), file=sys.stderr)
        return 1
    except KeyboardInterrupt:
        return 128 + signal.SIGINT


if __name__ == '__main__':
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
    sys.exit(main(sys.argv[1:]))

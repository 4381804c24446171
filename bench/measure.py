#!/usr/bin/env python3
"""Measures the launcher against floors, and writes docs/performance.md.

usage: bench/run [NAME...] [--pairs N] [--smoke] [--build DIR] [--tmpfs DIR]

  NAME      what to measure: start window stages extract gui remove copy log text
            growth barrier. Without one all are measured and docs/ is written.
  --pairs   pairs of runs in each row, instead of each row's own number
  --smoke   one pair each with small inputs, to see that everything runs; writes nothing
  --build   build directory and inputs (build/bench); on the disk to be measured
  --tmpfs   a directory in memory (/dev/shm/quillmere-bench)

Every figure is a ratio against a floor: a small honest program or a public tool that does
the least that the job takes, run in turn with ours, so that whatever else the machine does
hits both. Inputs are made from files of the machine. The first run takes up to an hour,
most of it to make the inputs, which stay in the build directory.
"""

import argparse
import os
import platform
import random
import shutil
import statistics
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
PACKAGES = """cmake ninja-build g++ pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools
libarchive-dev libicu-dev libspdlog-dev libxcb1-dev libarchive-tools zstd gzip xz-utils
xvfb python3-matplotlib fonts-liberation""".split()
MB = 1000 * 1000

# ---------------------------------------------------------------- machine and build


def install():
    missing = [p for p in PACKAGES
               if subprocess.run(['dpkg-query', '-W', '-f', '${Status}', p],
                                 capture_output=True, text=True).stdout != 'install ok installed']
    if not missing:
        return
    sudo = [] if os.geteuid() == 0 else ['sudo']
    subprocess.run([*sudo, 'apt-get', 'update'], check=True)
    subprocess.run([*sudo, 'apt-get', 'install', '-y', '--no-install-recommends', *missing],
                   check=True)


def build(directory):
    subprocess.run(['cmake', '-S', ROOT, '-B', directory, '-G', 'Ninja',
                    '-DCMAKE_BUILD_TYPE=Release', '-DQUILLMERE_TESTS=OFF', '-DQUILLMERE_BENCH=ON'],
                   check=True, stdout=subprocess.DEVNULL)
    subprocess.run(['cmake', '--build', directory], check=True, stdout=subprocess.DEVNULL)


# ---------------------------------------------------------------- inputs


def machine_bytes():
    """The contents of the machine's programs, libraries and texts, without an end."""
    while True:
        for folder in ('/usr/bin', '/usr/lib', '/usr/share'):
            for path, folders, files in os.walk(folder):
                folders.sort()
                for name in sorted(files):
                    full = os.path.join(path, name)
                    if os.path.islink(full) or not os.path.isfile(full):
                        continue
                    with open(full, 'rb') as file:
                        while block := file.read(1 << 20):
                            yield block


class Source:
    """Cuts pieces of any size out of machine_bytes()."""

    def __init__(self):
        self.blocks, self.rest = machine_bytes(), b''

    def write(self, path, size):
        with open(path, 'wb') as file:
            while size:
                if not self.rest:
                    self.rest = next(self.blocks)
                piece, self.rest = self.rest[:size], self.rest[size:]
                file.write(piece)
                size -= len(piece)


def sizes_of(count, total):
    """Many small files and a few large ones, the same in each run."""
    dice = random.Random(1)
    weights = [dice.lognormvariate(0, 1.5) for _ in range(count)]
    return [int(w * total / sum(weights)) for w in weights]


def make_tree(path, sizes):
    """A client with files of these sizes, a hundred in a directory."""
    if os.path.exists(path):
        return path
    source, half = Source(), path + '.part'
    shutil.rmtree(half, ignore_errors=True)
    os.makedirs(half + '/bin')
    os.makedirs(half + '/package')
    for number, size in enumerate(sizes):
        folder = f'{half}/data/{number // 100:04d}'
        os.makedirs(folder, exist_ok=True)
        source.write(f'{folder}/{number:06d}', size)
    shutil.copy('/bin/true', half + '/bin/cloud-ui')
    shutil.copy('/bin/true', half + '/package/start-stop')
    os.rename(half, path)
    return path


COMPRESSORS = {'tar': ['cat'], 'zstd': ['zstd', '-q', '-3', '-c'], 'gzip': ['gzip', '-n', '-c'],
               'xz': ['xz', '-T0', '-2', '-c']}


def make_archive(tree, kind):
    """The tree as make-package would store it."""
    path = f'{tree}.{kind}'
    if not os.path.exists(path):
        with open(path + '.part', 'wb') as file:
            tar = subprocess.Popen(['tar', '--format=gnu', '--sort=name', '-C', tree, '-cf', '-', '.'],
                                   stdout=subprocess.PIPE)
            subprocess.run(COMPRESSORS[kind], stdin=tar.stdout, stdout=file, check=True)
            if tar.wait() != 0:
                sys.exit('tar failed')
        os.rename(path + '.part', path)
    return path


# ---------------------------------------------------------------- one run, and pairs of runs


class Run:
    """What one run took: nanoseconds on the clock, of processor time, and peak kilobytes."""

    def __init__(self, wall, cpu, memory):
        self.wall, self.cpu, self.memory = wall, cpu, memory


def run(argv, env=None, output=None):
    """A whole process, from exec to exit."""
    target = os.open(output, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600) if output else None
    actions = [(os.POSIX_SPAWN_OPEN, 1, '/dev/null', os.O_WRONLY, 0),
               (os.POSIX_SPAWN_OPEN, 2, '/dev/null', os.O_WRONLY, 0)]
    if target is not None:
        actions[0] = (os.POSIX_SPAWN_DUP2, target, 1)
    start = time.perf_counter_ns()
    pid = os.posix_spawnp(argv[0], argv, env or os.environ, file_actions=actions)
    _, status, usage = os.wait4(pid, 0)
    wall = time.perf_counter_ns() - start
    if target is not None:
        os.close(target)
    if status != 0:
        sys.exit(f'failed with status {status}: {" ".join(argv)}')
    return Run(wall, (usage.ru_utime + usage.ru_stime) * 1e9, usage.ru_maxrss)


def printed(argv, env=None):
    """The same, with the time that the program itself has measured and printed last."""
    path = os.path.join(bench.tmpfs, 'output')
    result = run(argv, env, path)
    with open(path) as file:
        result.lines = file.read().split('\n')[:-1]
    result.wall = float(result.lines[-1])
    return result


def tool(argv, empty):
    """A public tool; its start, measured by the job `empty` that has nothing to do, is taken
    off, because our programs do not count theirs."""
    key = ' '.join(empty)
    if key not in bench.starts:
        runs = [run(empty) for _ in range(11)]
        bench.starts[key] = (statistics.median(r.wall for r in runs),
                             statistics.median(r.cpu for r in runs))
    result = run(argv)
    result.wall -= bench.starts[key][0]
    result.cpu -= bench.starts[key][1]
    return result


def quartiles(values):
    if len(values) < 4:
        return min(values), max(values)
    low, _, high = statistics.quantiles(values, n=4)
    return low, high


def text_of(nanoseconds):
    for unit, size in (('s', 1e9), ('ms', 1e6), ('µs', 1e3)):
        if nanoseconds >= size:
            return f'{nanoseconds / size:.3g} {unit}'
    return f'{nanoseconds:.0f} ns'


class Table:
    def __init__(self):
        self.rows = []

    def add(self, group, what, floor, ours, ratios, goal, cpu=None, unit=text_of):
        low, high = quartiles(ratios)
        row = {'group': group, 'what': what, 'floor': unit(floor), 'ours': unit(ours),
               'ratio': statistics.median(ratios), 'low': low, 'high': high, 'goal': goal,
               'cpu': cpu}
        self.rows.append(row)
        print(self.line(row), flush=True)

    @staticmethod
    def line(row):
        goal = f'≤ {row["goal"]:.2f}' if row['goal'] else '–'
        if row['goal'] and row['ratio'] > row['goal']:
            goal += ' **missed**'
        cpu = f'{row["cpu"]:.2f}' if row['cpu'] else '–'
        return (f'| {row["what"]} | {row["floor"]} | {row["ours"]} | {row["ratio"]:.2f} '
                f'| {row["low"]:.2f} – {row["high"]:.2f} | {cpu} | {goal} |')

    HEAD = ('| what | floor | ours | ratio | spread | processor | goal |\n'
            '|---|---|---|---|---|---|---|')


def pair(group, what, floor, ours, pairs, goal, memory_goal=None):
    """A row: `floor` and `ours`, each called with the number of the pair, run in turn. One
    pair in two runs in the other order."""
    pairs = bench.pairs or pairs
    results = []
    for number in range(pairs):
        if number % 2:
            second, first = ours(number), floor(number)
        else:
            first, second = floor(number), ours(number)
        results.append((first, second))

    def column(name):
        floors = [getattr(f, name) for f, _ in results]
        values = [getattr(o, name) for _, o in results]
        return (statistics.median(floors), statistics.median(values),
                [o / f for o, f in zip(values, floors) if f > 0])

    cpu = column('cpu')[2]
    bench.table.add(group, what, *column('wall'), goal, statistics.median(cpu) if cpu else None)
    if memory_goal:
        bench.table.add(group, what + ', peak memory', *column('memory'), memory_goal,
                        unit=lambda kb: f'{kb / 1024:.1f} MB')
    return results


# ---------------------------------------------------------------- start


class Stage:
    """A package root and a home in which nothing is to be done, and one in which every start
    upgrades, because the package's own version is older than the root's."""

    def __init__(self):
        base = bench.build + '/stage'
        shutil.rmtree(base, ignore_errors=True)
        self.root = base + '/root'
        subprocess.run(['cmake', '--install', bench.build, '--prefix', self.root], check=True,
                       stdout=subprocess.DEVNULL)
        shutil.copy(bench.program('bench_stages'), self.root + '/bin')
        client = make_tree(base + '/client', [10000] * 20)
        self.script = base + '/script'
        with open(client + '/package/start-stop', 'w') as file:
            file.write('#!/bin/sh\n[ ! -e "$HOME/wait" ] || sleep 0.2\n')
        os.chmod(client + '/package/start-stop', 0o755)
        shutil.copy(client + '/package/start-stop', self.script)
        self.pack(client, 5)
        self.home, self.old_home = base + '/home', base + '/old-home'
        runtime = base + '/runtime'
        for folder in (self.home, self.old_home, runtime):
            os.makedirs(folder, mode=0o700)
        clean = {k: v for k, v in os.environ.items() if not k.startswith(('QT_', 'XDG_', 'WAYLAND'))}
        self.env = dict(clean, HOME=self.home, XDG_RUNTIME_DIR=runtime)
        run([self.launcher()], dict(self.env, QT_QPA_PLATFORM='offscreen'))

    def pack(self, client, number):
        subprocess.run([ROOT + '/packaging/make-package', '--client', client, '--build',
                        str(number), '--root', self.root], check=True, stdout=subprocess.DEVNULL)

    def launcher(self):
        return self.root + '/bin/launcher'

    def floor(self):
        return [bench.program('floor_start'), self.root + '/lib/plugins',
                self.root + '/images/ico_72_quill_mere.png', self.script]

    def on(self, platform_name):
        """The environment for the platform "offscreen" or "xcb"."""
        env = dict(self.env, QT_QPA_PLATFORM=platform_name)
        if platform_name == 'xcb':
            env['DISPLAY'] = bench.display()
        return env


def measure_start():
    stage = Stage()
    for name, label in (('offscreen', 'offscreen'), ('xcb', 'X11')):
        env = stage.on(name)
        floor = lambda _: run(stage.floor(), env)
        pair('start', f'A/A: the floor of a start against itself, {label}', floor, floor, 60, None)
        pair('start', f'start with nothing to do, {label}', floor,
             lambda _: run([stage.launcher()], env), 60, 1.08, 1.07)


def measure_window():
    stage = Stage()
    with open(stage.root + '/INFO') as file:
        info = file.read()
    with open(stage.root + '/INFO', 'w') as file:
        file.write(info.replace('build_version=5', 'build_version=6'))
    # The window must stand long enough to be seen: the start script waits.
    env = dict(stage.on('xcb'), HOME=stage.old_home)
    open(stage.old_home + '/wait', 'w').close()
    window = bench.program('bench_window')
    pair('window', 'first window of an upgrade, X11',
         lambda _: printed([window, *stage.floor(), '--show'], env),
         lambda _: printed([window, stage.launcher()], env), 30, 1.15)


def measure_stages():
    """The steps of a start, in milliseconds; no row, because the steps have no floors."""
    stage = Stage()
    for name, label in (('offscreen', 'offscreen'), ('xcb', 'X11')):
        steps = {}
        for _ in range(bench.pairs or 40):
            argv = [stage.root + '/bin/bench_stages', str(time.monotonic_ns())]
            result = subprocess.run(argv, env=stage.on(name), stdout=subprocess.DEVNULL,
                                    stderr=subprocess.PIPE, text=True)
            ended = time.monotonic_ns()
            if result.returncode != 0:
                sys.exit('bench_stages failed')
            for line in result.stderr.split('\n'):
                step, _, value = line.rpartition(' ')
                if not value.isdigit() or ':' in step:
                    continue  # a trace of the launcher's own
                if step == 'end':
                    step, value = 'exit', ended - int(value)
                steps.setdefault(step, []).append(int(value))
        bench.stages[label] = {s: statistics.median(v) for s, v in steps.items()}
        print(label + ': ' + ', '.join(f'{s} {text_of(v)}' for s, v in bench.stages[label].items()),
              flush=True)


# ---------------------------------------------------------------- unpacking


def clients():
    """Name, sizes of the files, and pairs on (memory, disk)."""
    small = bench.smoke
    yield '300 files, 58 MB', 'client', sizes_of(300, 58 * MB), 15, 9
    yield '20,000 small files', 'small', sizes_of(200 if small else 20000, 60 * MB), 9, 5
    yield 'one file of 1.5 GB', 'large', [(15 if small else 1500) * MB], 5, 3


class Targets:
    """Fresh directories to unpack into. In memory each is removed at once. On a disk none is
    removed before the row is done: a file system that has just freed many inodes spends the
    next run on looking for them."""

    def __init__(self, place):
        self.base = os.path.join(place, 'targets')
        self.keep = place != bench.tmpfs
        self.count = 0
        self.clear()

    def clear(self):
        shutil.rmtree(self.base, ignore_errors=True)
        os.makedirs(self.base)
        if self.keep:
            os.sync()

    def fresh(self):
        if not self.keep:
            self.clear()
        self.count += 1
        path = f'{self.base}/{self.count}'
        os.mkdir(path)
        return path


def extractor(archive, targets, *options):
    return lambda _: printed([bench.program('bench_extract'), archive, targets.fresh(), *options])


def lean_extractor(archive, targets):
    return lambda _: printed([bench.program('floor_extract'), archive, targets.fresh()])


def bsdtar(archive, targets):
    return lambda _: tool(['bsdtar', '-xf', archive, '-C', targets.fresh()], ['bsdtar', '--version'])


def measure_extract():
    for label, name, sizes, memory_pairs, disk_pairs in clients():
        tree = make_tree(f'{bench.build}/inputs/{name}{"-smoke" if bench.smoke else ""}', sizes)
        for kind in COMPRESSORS:
            archive = make_archive(tree, kind)
            for place, where, pairs in ((bench.tmpfs, 'memory', memory_pairs),
                                        (bench.build, 'disk', disk_pairs)):
                if kind == 'xz' and name == 'large':
                    pairs = min(pairs, 3)
                targets = Targets(place)
                # Without the barrier, which the floors have not; a row of its own shows that.
                ours = extractor(archive, targets, '--no-barrier')
                pair('extract', f'unpack {label}, {kind}, {where}',
                     lean_extractor(archive, targets), ours, pairs, 1.03)
                targets.clear()
                pair('extract', f'unpack {label}, {kind}, {where}, against `bsdtar -xf`',
                     bsdtar(archive, targets), ours, pairs, 1.0 if kind == 'tar' else None)
                targets.clear()


def measure_barrier():
    label, name, sizes, _, pairs = next(clients())
    tree = make_tree(f'{bench.build}/inputs/{name}{"-smoke" if bench.smoke else ""}', sizes)
    archive = make_archive(tree, 'tar')
    targets = Targets(bench.build)

    def settled(job):
        """What one run leaves to be written must not be waited for by the next."""
        def settle(number):
            os.sync()
            return job(number)
        return settle

    pair('barrier', f'unpack {label} with barriers, disk, against without',
         settled(extractor(archive, targets, '--no-barrier')),
         settled(extractor(archive, targets)), pairs, 1.2)
    targets.clear()


def measure_growth():
    """The time of an entry and of a megabyte as the work grows, against the smallest."""
    scale = 100 if bench.smoke else 1
    for label, unit, steps in (
            ('entries', 'an entry', [1000, 10000, 100000]),
            ('MB in one file', 'a megabyte', [10, 100, 1000, 5000])):
        jobs = []
        for step in steps:
            step = max(step // scale, 1)
            sizes = [1000] * step if label == 'entries' else [step * MB]
            name = f'{bench.build}/inputs/growth-{unit[-8:].strip()}-{step}'
            archive = make_archive(make_tree(name, sizes), 'tar')
            shutil.rmtree(name + '/data', ignore_errors=True)
            jobs.append((step, archive))
        first = None
        targets = Targets(bench.tmpfs)
        for step, archive in jobs:
            times = [extractor(archive, targets, '--no-barrier')(0).wall / step
                     for _ in range(bench.pairs or 5)]
            first = first or times
            bench.growth.setdefault(unit, []).append((step, statistics.median(times)))
            bench.table.add('growth', f'{unit} out of {step:,} {label}', statistics.median(first),
                            statistics.median(times), [t / statistics.median(first) for t in times],
                            None)
        targets.clear()


# ---------------------------------------------------------------- the GUI thread


def measure_gui():
    program = bench.program('bench_gui')
    env = Stage().on('offscreen')
    slot = statistics.median(printed([program, 'slot', '100000'], env).wall
                             for _ in range(bench.pairs or 7))
    print(f'a report of progress costs the GUI thread {text_of(slot)}', flush=True)
    bench.notes.append(f'A report of progress costs the GUI thread {text_of(slot)} of processor '
                       'time (100,000 reports as fast as they can be sent).')
    scale = 100 if bench.smoke else 1
    for entries, pairs in ((20000 // scale, 9), (100000 // scale, 5)):
        tree = f'{bench.build}/inputs/growth-an entry-{entries}'
        archive = make_archive(make_tree(tree, [1000] * entries), 'tar')
        targets = Targets(bench.tmpfs)
        job = lambda kind: lambda _: printed([program, kind, archive, targets.fresh()], env)
        results = pair('gui', f'worker with dialog, {entries:,} files', job('alone'),
                       job('dialog'), pairs, 1.02)
        grown = statistics.median(int(r.lines[-2]) for _, r in results)
        alone = statistics.median(int(r.lines[-2]) for r, _ in results)
        bench.notes.append(f'Memory growth during {entries:,} files: {grown / 1024:.1f} MB with '
                           f'the dialog, {alone / 1024:.1f} MB without.')
        print(bench.notes[-1], flush=True)
        targets.clear()


# ---------------------------------------------------------------- files


def measure_remove():
    _, name, sizes, _, _ = list(clients())[1]
    tree = make_tree(f'{bench.build}/inputs/{name}{"-smoke" if bench.smoke else ""}', sizes)
    archive = make_archive(tree, 'tar')
    for place, where, pairs in ((bench.tmpfs, 'memory', 15), (bench.build, 'disk', 9)):
        targets = Targets(place)

        def old_copy():
            path = targets.fresh()
            run(['bsdtar', '-xf', archive, '-C', path])
            if targets.keep:
                os.sync()
            return path

        ours = lambda _: printed([bench.program('bench_files'), 'remove', old_copy()])
        pair('remove', f'remove {len(sizes):,} files, {where}, against `rm -rf`',
             lambda _: tool(['rm', '-rf', old_copy()], ['rm', '-rf', '/nonexistent']), ours, pairs,
             1.0)
        pair('remove', f'remove {len(sizes):,} files, {where}, against a lean remover',
             lambda _: printed([bench.program('floor_remove'), old_copy()]), ours, pairs, None)
        targets.clear()


def measure_copy():
    _, name, sizes, _, _ = list(clients())[2]
    tree = make_tree(f'{bench.build}/inputs/{name}{"-smoke" if bench.smoke else ""}', sizes)
    large = tree + '/data/0000/000000'
    small = make_tree(bench.build + '/inputs/thousand', [10000] * 1000)
    program = bench.program('bench_files')
    empty = ['dd', 'if=/dev/null', 'of=/dev/null']
    for place, where, pairs in ((bench.tmpfs, 'memory', 9), (bench.build, 'disk', 5)):
        targets = Targets(place)
        size = sum(sizes) // MB

        def target(leaf=''):
            targets.clear()
            return targets.fresh() + leaf

        pair('copy', f'copy {size:,} MB, {where}, against `dd bs=32M conv=fsync`',
             lambda _: tool(['dd', 'if=' + large, 'of=' + target('/copy'), 'bs=32M', 'conv=fsync'],
                            empty),
             lambda _: printed([program, 'copy', large, target('/copy')]), pairs, 1.02)
        pair('copy', f'copy 1,000 files of 10 kB, {where}, against `cp -r` and `sync`',
             lambda _: tool(['sh', '-c', 'cp -r "$0" "$1" && sync -f "$1"', small, target('/copy')],
                            ['sh', '-c', 'cp --version; sync -f /dev/shm']),
             lambda _: printed([program, 'copytree', small, target('/copy')]), pairs, 1.02)
        targets.clear()


# ---------------------------------------------------------------- log and texts


def measure_log():
    floor = lambda job: lambda _: printed([bench.program('floor_log'), job, bench.tmpfs])
    ours = lambda job: lambda _: printed([bench.program('bench_log'), job, bench.tmpfs])
    pair('log', 'A/A: the floor of a log line against itself', floor('written'), floor('written'),
         15, None)
    pair('log', 'a log line written', floor('written'), ours('written'), 25, 0.95)
    results = pair('log', 'a log line filtered out', floor('filtered'), ours('filtered'), 15, None)
    time_taken = statistics.median(o.wall for _, o in results)
    verdict = 'within' if time_taken <= 100 else 'above'
    bench.notes.append(f'A line filtered out takes {text_of(time_taken)}, {verdict} the goal of '
                       '100 ns.')


def measure_text():
    for job, what, goal in (('path', 'a path built by `+`, against `std::string`', 1.5),
                            ('map', 'look-up in a map, against `std::string`', 1.5),
                            ('nfc', 'NFC of 1 MB, against ICU', 1.05),
                            ('utf16', 'UTF-16 view of 1 MB, against ICU', 1.05)):
        pair('text', what, lambda _: printed([bench.program('floor_text'), job]),
             lambda _: printed([bench.program('bench_text'), job]), 15, goal)


# ---------------------------------------------------------------- the report

INTRODUCTION = """# Performance

Written by `bench/run`; what it measures and how stands there and in `bench/`.

Each ratio is ours against a floor: a small program in `bench/floors/` or a public tool that
does the least that the job takes. Floor and ours run in turn, one pair in two in the other
order; the ratio is the median of the pairs' ratios and the spread their middle half. *Processor*
is the ratio of the processor times of whole processes, which a busy machine disturbs less. The
A/A rows show how far a ratio may be off: there the floor runs against itself.
"""

EXPLANATIONS = """
## Reading it

- The floor of a start is one Qt program that builds the application and the dialog and runs
  the script. Nearly all of it is the toolkit's: loading libraries, and looking for fonts. The
  launcher sets the dialog's font family for the whole application, or the system's fonts would
  be searched twice.
- The floors of unpacking neither report progress nor put barriers against loss of power. The
  barriers stand in a row of their own, and are left out of the others.
- `bsdtar` reads an archive once, the launcher twice: it counts the entries first. In a plain
  tar that means skipping from header to header, and costs next to nothing; a compressed
  archive is decompressed twice. That is why `make-package` picks plain tar by default.
- `FSCopy` has each file on the disk before it returns, `cp` and `sync` all files at once: on a
  disk a thousand small files cost a thousand waits. No upgrade copies files, unless the
  package root and the home's backup lie on different file systems.
- The floors of `ustring`'s conversions ask ICU for the length first and convert then, as it
  does, so that no text keeps a buffer larger than itself.
"""


def cpu_model():
    with open('/proc/cpuinfo') as file:
        for line in file:
            if line.startswith('model name'):
                return line.partition(':')[2].strip()
    return platform.machine()


def write_report():
    table = bench.table.rows
    with open(ROOT + '/docs/performance.md', 'w') as file:
        print(INTRODUCTION, file=file)
        print(f'Measured on {os.cpu_count()} processors ({cpu_model()}), Linux '
              f'{platform.release().split("-")[0]}, load {os.getloadavg()[2]:.1f}.\n', file=file)
        print('![ratios](performance.png)\n', file=file)
        print(Table.HEAD, file=file)
        for row in table:
            print(Table.line(row), file=file)
        print(file=file)
        for note in bench.notes:
            print(f'- {note}', file=file)
        print('\n## A start with nothing to do, step by step\n', file=file)
        names = list(bench.stages)
        print('| step | ' + ' | '.join(names) + ' |', file=file)
        print('|---|' + '---|' * len(names), file=file)
        for step in bench.stages[names[0]]:
            print(f'| {step} | ' + ' | '.join(text_of(bench.stages[n].get(step, 0)) for n in names)
                  + ' |', file=file)
        print(EXPLANATIONS, end='', file=file)
    plot(table)


def plot(rows):
    # Not before: a process started from a large one counts that one's memory as its own peak.
    import matplotlib
    matplotlib.use('Agg')
    from matplotlib import pyplot
    rows = [r for r in rows if r['group'] != 'growth'][::-1]
    figure, axes = pyplot.subplots(figsize=(11, 0.26 * len(rows) + 1.2))
    for y, row in enumerate(rows):
        missed = row['goal'] and row['ratio'] > row['goal']
        axes.plot([row['low'], row['high']], [y, y], color='0.7', linewidth=5, solid_capstyle='butt')
        axes.plot(row['ratio'], y, 'o', color='firebrick' if missed else 'seagreen')
        if row['goal']:
            axes.plot(row['goal'], y, '|', color='black', markersize=11)
    axes.axvline(1, color='0.4', linewidth=0.8)
    axes.set_xscale('log')
    ticks = [0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 4]
    axes.set_xticks(ticks, [str(t) for t in ticks])
    axes.set_xticks([], minor=True)
    axes.set_yticks(range(len(rows)), [r['what'].replace('`', '') for r in rows], fontsize=8)
    axes.set_xlabel('ratio to the floor (dot: median, bar: middle half, stroke: goal)')
    axes.set_ylim(-0.7, len(rows) - 0.3)
    figure.tight_layout()
    figure.savefig(ROOT + '/docs/performance.png', dpi=100)


# ---------------------------------------------------------------- all together

JOBS = {'start': measure_start, 'window': measure_window, 'stages': measure_stages,
        'extract': measure_extract, 'barrier': measure_barrier, 'growth': measure_growth,
        'gui': measure_gui, 'remove': measure_remove, 'copy': measure_copy, 'log': measure_log,
        'text': measure_text}


class Bench:
    """The options and what has been measured."""

    def __init__(self, options):
        self.build = os.path.abspath(options.build)
        self.tmpfs = os.path.abspath(options.tmpfs)
        self.smoke = options.smoke
        self.pairs = 1 if options.smoke else options.pairs
        self.table = Table()
        self.stages, self.growth, self.notes, self.starts = {}, {}, [], {}
        self.server = None

    def program(self, name):
        return f'{self.build}/bench/{name}'

    def display(self):
        """An X server of our own, started at the first need."""
        if not self.server:
            reader, writer = os.pipe()
            self.server = subprocess.Popen(
                ['Xvfb', '-noreset', '-nolisten', 'tcp', '-screen', '0', '1280x1024x24', '-displayfd', str(writer)],
                pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            os.close(writer)
            with os.fdopen(reader) as file:
                self.number = file.readline().strip()
            if not self.number:
                sys.exit('Xvfb does not start')
        return ':' + self.number

    def close(self):
        if self.server:
            self.server.terminate()
            self.server.wait()
        shutil.rmtree(self.tmpfs, ignore_errors=True)


def main():
    global bench
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('names', nargs='*', metavar='NAME')
    parser.add_argument('--pairs', type=int)
    parser.add_argument('--smoke', action='store_true')
    parser.add_argument('--build', default=ROOT + '/build/bench')
    parser.add_argument('--tmpfs', default='/dev/shm/quillmere-bench')
    options = parser.parse_args()
    if unknown := [n for n in options.names if n not in JOBS]:
        parser.error(f'{unknown[0]} is none of {" ".join(JOBS)}')
    bench = Bench(options)
    install()
    os.makedirs(bench.tmpfs, exist_ok=True)
    os.makedirs(bench.build + '/inputs', exist_ok=True)
    build(bench.build)
    try:
        print(Table.HEAD, flush=True)
        for name in options.names or JOBS:
            JOBS[name]()
        if not options.names and not bench.smoke:
            write_report()
    finally:
        bench.close()


if __name__ == '__main__':
    main()

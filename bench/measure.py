"""Measures the launcher against floors, and writes docs/performance.md.

usage: bench/run [NAME...] [--report] [--pairs N] [--smoke] [--build DIR] [--tmpfs DIR]

  NAME      what to measure: start, window, stages; unpacking: client, small, large, barrier,
            growth; gui, remove, copy, log, text. Without one all are, and docs/ is written.
  --report  write docs/ with a NAME, too; the others' figures are those of their last run
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
import json
import os
import platform
import random
import shutil
import statistics
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
MB = 1000 * 1000

# ---------------------------------------------------------------- build


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


def is_missed(row):
    return row['goal'] and round(row['ratio'], 2) > row['goal']


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
        if is_missed(row):
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
    """A package root, and a home in which nothing is to be done. The start script ends at once,
    or `wait` seconds later."""

    def __init__(self, wait=None):
        base = bench.build + '/stage'
        shutil.rmtree(base, ignore_errors=True)
        self.root = base + '/root'
        subprocess.run(['cmake', '--install', bench.build, '--prefix', self.root], check=True,
                       stdout=subprocess.DEVNULL)
        shutil.copy(bench.program('bench_stages'), self.root + '/bin')
        client = make_tree(base + '/client', [10000] * 20)
        self.script = client + '/package/start-stop'
        if wait:
            with open(self.script, 'w') as file:
                file.write(f'#!/bin/sh\nsleep {wait}\n')
        self.pack(client, 5)
        home, runtime = base + '/home', base + '/runtime'
        for folder in (home, runtime):
            os.makedirs(folder, mode=0o700)
        clean = {k: v for k, v in os.environ.items() if not k.startswith(('QT_', 'XDG_', 'WAYLAND'))}
        self.env = dict(clean, HOME=home, XDG_RUNTIME_DIR=runtime)
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
    stage = Stage(wait=0.2)  # the window must stand long enough to be seen
    # Every start upgrades: the version inside the package stays older than the root's.
    with open(stage.root + '/INFO') as file:
        info = file.read()
    with open(stage.root + '/INFO', 'w') as file:
        file.write(info.replace('build_version=5', 'build_version=6'))
    env = stage.on('xcb')
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
    scale = 100 if bench.smoke else 1
    yield '300 files, 58 MB', 'client', sizes_of(300, 58 * MB // scale), 31, 15
    yield '20,000 small files', 'small', sizes_of(20000 // scale, 60 * MB // scale), 9, 7
    yield 'one file of 1.5 GB', 'large', [1500 * MB // scale], 5, 3


def client_tree(name, sizes):
    return make_tree(f'{bench.build}/inputs/{name}{"-smoke" if bench.smoke else ""}', sizes)


def forget(tree):
    """Has the tree on the disk and its pages free: the next run must neither wait for what
    this one has left to be written, nor need memory that the machine has not touched yet, which
    a virtual one has to fetch from its host."""
    os.sync()
    for path, _, files in os.walk(tree):
        for name in files:
            file = os.open(os.path.join(path, name), os.O_RDONLY)
            os.posix_fadvise(file, 0, 0, os.POSIX_FADV_DONTNEED)
            os.close(file)


class Targets:
    """Fresh directories to work in, each removed when the next is asked for. On a disk those of
    many files are kept until the end, and each is put into another part of it: an ext4 that has
    just freed inodes there looks at every one of them whenever it makes a new one."""

    count = 0

    def __init__(self, place, many_files=True):
        self.base = place + '/targets'
        self.disk = place != bench.tmpfs
        self.keep = self.disk and many_files
        os.makedirs(self.base, exist_ok=True)
        if self.disk:
            subprocess.run(['chattr', '+T', self.base], stderr=subprocess.DEVNULL)  # ext4 only
        self.last = self.base + '/none'

    def fresh(self):
        self.clear()
        if self.disk:
            forget(self.last)
        Targets.count += 1
        self.last = f'{self.base}/{Targets.count}'
        os.mkdir(self.last)
        return self.last

    def clear(self):
        if not self.keep:
            shutil.rmtree(self.last, ignore_errors=True)  # there is none before the first


def extractor(archive, targets, *options):
    return lambda _: printed([bench.program('bench_extract'), archive, targets.fresh(), *options])


def lean_extractor(archive, targets):
    return lambda _: printed([bench.program('floor_extract'), archive, targets.fresh()])


def bsdtar(archive, targets):
    return lambda _: tool(['bsdtar', '-xf', archive, '-C', targets.fresh()], ['bsdtar', '--version'])


def measure_extract(wanted):
    label, name, sizes, memory_pairs, disk_pairs = next(c for c in clients() if c[1] == wanted)
    tree = client_tree(name, sizes)
    for kind in COMPRESSORS:
        archive = make_archive(tree, kind)
        for place, where, pairs in ((bench.tmpfs, 'memory', memory_pairs),
                                    (bench.build, 'disk', disk_pairs)):
            if kind == 'xz' and name == 'large':
                pairs = 2  # minutes each
            targets = Targets(place, name != 'large')
            # Without the barrier, which the floors have not; a row of its own shows that.
            ours = extractor(archive, targets, '--no-barrier')
            pair('extract', f'unpack {label}, {kind}, {where}', lean_extractor(archive, targets),
                 ours, pairs, 1.03)
            pair('extract', f'unpack {label}, {kind}, {where}, against `bsdtar -xf`',
                 bsdtar(archive, targets), ours, pairs, 1.0 if kind == 'tar' else None)
            targets.clear()


def measure_barrier():
    for label, name, sizes, _, pairs in clients():
        archive = make_archive(client_tree(name, sizes), 'tar')
        targets = Targets(bench.build, name != 'large')
        pair('barrier', f'unpack {label} with barriers, disk, against without',
             extractor(archive, targets, '--no-barrier'), extractor(archive, targets), 2 * pairs,
             None if name == 'large' else 1.2)
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
            bench.growth.setdefault(label, []).append((step, statistics.median(times)))
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
        disk = Targets(bench.build)
        job = lambda kind, where=targets: lambda _: printed([program, kind, archive, where.fresh()],
                                                            env)
        pair('gui', f'worker, {entries:,} files, reports sent, against none sent', job('alone'),
             job('queued'), pairs, None)
        pair('gui', f'worker, {entries:,} files, dialog, against reports nobody shows',
             job('queued'), job('dialog'), pairs, 1.02)
        results = pair('gui', f'worker, {entries:,} files, dialog, against none, on disk',
                       job('alone', disk), job('dialog', disk), pairs, None)
        grown = statistics.median(int(r.lines[-2]) for _, r in results)
        alone = statistics.median(int(r.lines[-2]) for r, _ in results)
        bench.notes.append(f'Memory growth during {entries:,} files: {grown / 1024:.1f} MB with '
                           f'the dialog, {alone / 1024:.1f} MB without.')
        print(bench.notes[-1], flush=True)
        targets.clear()
        disk.clear()


# ---------------------------------------------------------------- files


def measure_remove():
    _, name, sizes, _, _ = list(clients())[1]
    tree = client_tree(name, sizes)
    archive = make_archive(tree, 'tar')
    for place, where, pairs in ((bench.tmpfs, 'memory', 15), (bench.build, 'disk', 9)):
        targets = Targets(place)

        def old_copy():
            path = targets.fresh()
            run(['bsdtar', '-xf', archive, '-C', path])
            if targets.disk:
                os.sync()
            return path

        ours = lambda _: printed([bench.program('bench_files'), 'remove', old_copy()])
        pair('remove', f'remove {len(sizes):,} files, {where}, against `rm -rf`',
             lambda _: tool(['rm', '-rf', old_copy()], ['rm', '-rf', '/nonexistent']), ours, pairs,
             1.0)
        pair('remove', f'remove {len(sizes):,} files, {where}, against a lean remover',
             lambda _: printed([bench.program('floor_remove'), old_copy()]), ours, pairs, None)


def measure_copy():
    _, name, sizes, _, _ = list(clients())[2]
    tree = client_tree(name, sizes)
    large = tree + '/data/0000/000000'
    small = make_tree(bench.build + '/inputs/thousand', [10000] * 1000)
    program = bench.program('bench_files')
    empty = ['dd', 'if=/dev/null', 'of=/dev/null']
    for place, where, pairs in ((bench.tmpfs, 'memory', 9), (bench.build, 'disk', 5)):
        targets = Targets(place, many_files=False)
        target = lambda: targets.fresh() + '/copy'
        pair('copy', f'copy {sum(sizes) // MB:,} MB, {where}, against `dd bs=32M conv=fsync`',
             lambda _: tool(['dd', 'if=' + large, 'of=' + target(), 'bs=32M', 'conv=fsync'], empty),
             lambda _: printed([program, 'copy', large, target()]), pairs, 1.02)
        targets.clear()
        targets = Targets(place)
        pair('copy', f'copy 1,000 files of 10 kB, {where}, against `cp -r` and `sync` of each',
             lambda _: tool(['sh', '-c', 'cp -r "$0" "$1" && find "$1" -type f -exec sync {} +', small,
                             target()],
                            ['sh', '-c', 'cp --version; find /dev/null -exec sync --version {} +']),
             lambda _: printed([program, 'copytree', small, target()]), pairs, 1.02)


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
- In the steps of a start those that are called the toolkit's or the C library's are first calls,
  made ahead of the launcher's so that its own share is left. Of the others "translation" is
  spent inflating the compiled-in file, "dialog" in building a second one, "thread" and "start
  script" in the kernel.
- libarchive is loaded when there is something to unpack: that saves 1.5 ms of each other start.
  Linker options were tried one by one (`--as-needed`, `-O1`, `--gc-sections`, hidden symbols,
  `-z now`, packed relocations, link-time optimisation; 80 starts each, in turn): all stayed
  within 0.1 ms of the plain program, which was as far from itself. None is used.
- The floors of unpacking neither report progress nor put barriers against loss of power. The
  barriers stand in rows of their own, and are left out of the others. Before a barrier a file
  can be sent to the disk once it is unpacked, so a single large one gains nothing.
- `bsdtar` reads an archive once, the launcher twice: it counts the entries first. In a plain
  tar that means skipping from header to header, and costs next to nothing; a compressed
  archive is decompressed twice. That is why `make-package` picks plain tar by default.
- Each entry is reported to the GUI thread by a queued signal. When that thread sleeps, the
  next report has to wake it, which costs the worker 6 to 18 µs on this virtual machine: a good
  part of a small file's time. What the thread does then costs the worker nothing.
- `FSCopy` has each file on the disk before it returns, so `cp` has to be followed by a `sync` of
  each. No upgrade copies files; it is there for copies across file systems.
- The floors of `ustring`'s conversions ask ICU for the length first and convert then, as it
  does, so that no text keeps a buffer larger than itself.
"""


def cpu_model():
    with open('/proc/cpuinfo') as file:
        for line in file:
            if line.startswith('model name'):
                return line.partition(':')[2].strip()
    return platform.machine()


def write_report(results):
    """Writes docs/ from what the jobs have found, each in its last run."""
    table, stages, growth, notes = [], {}, {}, []
    for name in JOBS:
        if name in results:
            table += results[name]['rows']
            stages.update(results[name]['stages'])
            growth.update(results[name]['growth'])
            notes += results[name]['notes']
    with open(ROOT + '/docs/performance.md', 'w') as file:
        print(INTRODUCTION, file=file)
        print(f'Measured on {os.cpu_count()} processors ({cpu_model()}), Linux '
              f'{platform.release().split("-")[0]}, load {os.getloadavg()[2]:.1f}.\n', file=file)
        print('![ratios](performance.png)\n', file=file)
        print(Table.HEAD, file=file)
        for row in table:
            print(Table.line(row), file=file)
        print(file=file)
        for note in notes:
            print(f'- {note}', file=file)
        print('\n## A start with nothing to do, step by step\n', file=file)
        names = list(stages)
        print('| step | ' + ' | '.join(names) + ' |', file=file)
        print('|---|' + '---|' * len(names), file=file)
        for step in stages[names[0]]:
            print(f'| {step} | ' + ' | '.join(text_of(stages[n].get(step, 0)) for n in names) + ' |',
                  file=file)
        print(EXPLANATIONS, end='', file=file)
    plot(table, growth)


def plot(rows, growth):
    # Not before: a process started from a large one counts that one's memory as its own peak.
    import matplotlib
    matplotlib.use('Agg')
    from matplotlib import pyplot
    rows = [r for r in rows if r['group'] != 'growth'][::-1]
    figure, (axes, lines) = pyplot.subplots(2, figsize=(11, 0.26 * len(rows) + 4.2),
                                             height_ratios=[0.26 * len(rows) + 1.2, 3])
    for label, points in growth.items():
        lines.loglog([c for c, _ in points], [c * t / 1e9 for c, t in points], 'o-', label=label)
    lines.set_xlabel('size of the package')
    lines.set_ylabel('seconds to unpack, in memory')
    lines.legend()
    for y, row in enumerate(rows):
        axes.plot([row['low'], row['high']], [y, y], color='0.7', linewidth=5, solid_capstyle='butt')
        axes.plot(row['ratio'], y, 'o', color='firebrick' if is_missed(row) else 'seagreen')
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
        'client': lambda: measure_extract('client'), 'small': lambda: measure_extract('small'),
        'large': lambda: measure_extract('large'), 'barrier': measure_barrier,
        'growth': measure_growth, 'gui': measure_gui, 'remove': measure_remove,
        'copy': measure_copy, 'log': measure_log, 'text': measure_text}


class Bench:
    """The options and what has been measured."""

    def __init__(self, options):
        self.build = os.path.abspath(options.build)
        self.tmpfs = os.path.abspath(options.tmpfs)
        self.smoke = options.smoke
        self.pairs = 1 if options.smoke else options.pairs
        self.starts = {}
        self.server = None

    def measure(self, name):
        """Everything that is to be kept of one job."""
        self.table, self.stages, self.growth, self.notes = Table(), {}, {}, []
        JOBS[name]()
        return {'rows': self.table.rows, 'stages': self.stages, 'growth': self.growth,
                'notes': self.notes}

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
        shutil.rmtree(self.build + '/targets', ignore_errors=True)  # the jobs may not have used it


def main():
    global bench
    parser = argparse.ArgumentParser(prog='bench/run', description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('names', nargs='*', metavar='NAME')
    parser.add_argument('--report', action='store_true')
    parser.add_argument('--pairs', type=int)
    parser.add_argument('--smoke', action='store_true')
    parser.add_argument('--build', default=ROOT + '/build/bench')
    parser.add_argument('--tmpfs', default='/dev/shm/quillmere-bench')
    options = parser.parse_args()
    if unknown := [n for n in options.names if n not in JOBS]:
        parser.error(f'{unknown[0]} is none of {" ".join(JOBS)}')
    bench = Bench(options)
    os.makedirs(bench.tmpfs, exist_ok=True)
    os.makedirs(bench.build + '/inputs', exist_ok=True)
    build(bench.build)
    results, kept = {}, bench.build + '/results.json'
    if os.path.exists(kept):
        with open(kept) as file:
            results = json.load(file)
    wanted = options.names or list(JOBS)
    if options.report and (unmeasured := [n for n in JOBS if n not in wanted and n not in results]):
        parser.error(f'no figures yet for {" ".join(unmeasured)}')
    try:
        print(Table.HEAD, flush=True)
        for name in wanted:
            results[name] = bench.measure(name)
            if not bench.smoke:
                with open(kept, 'w') as file:
                    json.dump(results, file)
        if not bench.smoke and (options.report or not options.names):
            write_report(results)
    finally:
        bench.close()


if __name__ == '__main__':
    main()

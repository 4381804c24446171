"""Benchmarks of unpacking a client, from the archive's first byte read to the last file closed."""

import os
import shutil
import statistics
import subprocess
from typing import Sequence

from bench.figures import row_of, text_of
from bench.harness import Bench, Job, Run
from bench.inputs import KINDS, MB, Targets, client, client_tree, input_path
from bench.inputs import make_archive, make_package, make_tree

NO_BARRIER = '--no-barrier'


def ours(bench: Bench, archive: str, targets: Targets, *options: str) -> Job:
    return lambda: bench.printed(
        [bench.program('bench_extract'), archive, targets.fresh(), *options])


def lean(bench: Bench, archive: str, targets: Targets) -> Job:
    """The floor: counts the entries and unpacks them, and nothing else."""
    return lambda: bench.printed([bench.program('floor_extract'), archive, targets.fresh()])


def bsdtar(bench: Bench, archive: str, targets: Targets) -> Job:
    """What a user would do without a launcher: one pass over the archive."""
    def unpack() -> Run:
        return bench.tool(['bsdtar', '-xf', archive, '-C', targets.fresh()],
                          ['bsdtar', '--version'])
    return unpack


def measure_unpack(bench: Bench, name: str, kinds: Sequence[str] = KINDS) -> None:
    """Every kind of archive against both floors. The barriers, which the floors have not, are
    left out; they have rows of their own."""
    this = client(bench, name)
    tree = client_tree(bench, this)
    for kind in kinds:
        archive = make_archive(bench, tree, kind)
        for place, where, pairs in ((bench.memory, 'memory', this.memory_pairs),
                                    (bench.build, 'disk', this.disk_pairs)):
            if name == 'large' and kind == 'xz':
                pairs = 2  # most of a minute each time
            targets = Targets(bench, place, many_files=name != 'large')
            what = f'unpack {this.label}, {kind}, {where}'
            launcher = ours(bench, archive, targets, NO_BARRIER)
            bench.pair(what, lean(bench, archive, targets), launcher, pairs, 1.03)
            bench.pair(what + ', against `bsdtar -xf`', bsdtar(bench, archive, targets), launcher,
                       pairs, 1.0 if kind == 'tar' else None)
            targets.clear()


def measure_kind(bench: Bench) -> None:
    """What the default kind costs more than a plain tar, which tells of no damage: in memory than
    the leanest two passes over that, on a disk than our own, both with barriers."""
    for name, pairs in (('client', 31), ('small', 9)):
        this = client(bench, name)
        tree = client_tree(bench, this)
        plain, default = (make_archive(bench, tree, kind) for kind in ('tar', 'default'))
        targets = Targets(bench, bench.memory)
        bench.pair(f'default kind against plain tar, {this.label}, memory',
                   lean(bench, plain, targets), ours(bench, default, targets, NO_BARRIER), pairs,
                   1.25)
        targets.clear()
        targets = Targets(bench, bench.build)
        bench.pair(f'default kind against plain tar, {this.label}, disk with barriers',
                   ours(bench, plain, targets), ours(bench, default, targets), pairs, 1.05)


def measure_packages(bench: Bench) -> None:
    """What a packager chooses from: each kind as make-package makes it, in size and time."""
    tree = client_tree(bench, client(bench, 'client'))
    for kind in ('default', 'tar', 'lz4', 'zstd', 'gzip', 'xz'):
        package = make_package(bench, tree, kind, '.qpk')
        targets, disk = Targets(bench, bench.memory), Targets(bench, bench.build)
        bench.progress.moving(f'{kind}: unpacking')
        runs = [lean(bench, package, targets)() for _ in range(bench.count(9))]
        counting = statistics.median(float(r.lines[-2]) for r in runs)
        both = statistics.median(r.wall for r in runs)
        on_disk = statistics.median(ours(bench, package, disk)().wall
                                    for _ in range(bench.count(9)))
        targets.clear()
        bench.progress.moving(f'{kind}: size inside another package')
        inside = subprocess.run(['xz', '-T0', '-6', '-c', package], check=True,
                                stdout=subprocess.PIPE).stdout
        bench.result.kinds[kind] = {
            'size': os.path.getsize(package), 'counting': counting, 'unpacking': both - counting,
            'both': both, 'disk': on_disk, 'inside': len(inside)}
        bench.progress.line(f'  {kind}: {text_of(both)} in memory, {text_of(on_disk)} on disk')


def measure_barrier(bench: Bench) -> None:
    for name in ('client', 'small', 'large'):
        this = client(bench, name)
        archive = make_archive(bench, client_tree(bench, this), 'tar')
        targets = Targets(bench, bench.build, many_files=name != 'large')
        bench.pair(f'unpack {this.label} with barriers, disk, against without',
                   ours(bench, archive, targets, NO_BARRIER), ours(bench, archive, targets),
                   2 * this.disk_pairs, None if name == 'large' else 1.2)
        targets.clear()


def growing_archive(bench: Bench, label: str, count: int) -> str:
    """An archive with so many entries of 1 kB, or so many MB in one file."""
    sizes = [1000] * count if label == 'entries' else [count * MB]
    name = input_path(bench, f'growth-{label.split()[0].lower()}-{count}')
    tree = make_tree(bench, name, sizes)
    archive = make_archive(bench, tree, 'tar')
    shutil.rmtree(tree + '/data', ignore_errors=True)  # the archive has it; 5 GB the less
    return archive


def measure_growth(bench: Bench) -> None:
    """The time of an entry and of a megabyte as the work grows, against the smallest."""
    for label, unit, counts in (('entries', 'an entry', [1000, 10000, 100000]),
                                ('MB in one file', 'a megabyte', [10, 100, 1000, 5000])):
        first: list[float] = []
        targets = Targets(bench, bench.memory)
        for count in counts:
            scaled = bench.scaled(count)
            job = ours(bench, growing_archive(bench, label, scaled), targets, NO_BARRIER)
            what = f'{unit} out of {count:,} {label}'
            bench.progress.moving(what)
            times = [job().wall / scaled for _ in range(bench.count(5))]
            first = first or times
            bench.result.growth.setdefault(label, []).append([count, statistics.median(times)])
            bench.add(row_of(what, [statistics.median(first)] * len(times), times))
        targets.clear()

"""Benchmarks of removing an old copy, and of copies."""

from bench.harness import Bench, Job, Run, run
from bench.inputs import Targets, client, client_tree, input_path
from bench.inputs import make_archive, make_tree, nested


def measure_remove(bench: Bench) -> None:
    many = make_archive(bench, client_tree(bench, client(bench, 'small')), 'tar')
    deep = make_archive(bench, make_tree(bench, input_path(bench, 'deep'),
                                         [1000] * bench.scaled(10000), nested), 'tar')
    for place, where, pairs in ((bench.memory, 'memory', 15), (bench.build, 'disk', 9)):
        for archive, label in ((many, '20,000 files'),
                               (deep, '10,000 files in 500 nested directories')):
            targets = Targets(bench, place)
            ours = removal(bench, archive, targets, [bench.program('bench_files'), 'remove'])
            bench.pair(f'remove {label}, {where}, against `rm -rf`',
                       removal(bench, archive, targets, ['rm', '-rf']), ours, pairs, 1.0)
            if archive == many:
                bench.pair(f'remove {label}, {where}, against a lean remover',
                           removal(bench, archive, targets, [bench.program('floor_remove')]),
                           ours, pairs)


def removal(bench: Bench, archive: str, targets: Targets, remover: list[str]) -> Job:
    """Unpacks an old copy, which is not measured, and has it removed."""
    def remove() -> Run:
        path = targets.fresh()
        run(['bsdtar', '-xf', archive, '-C', path])
        if targets.disk:
            run(['sync'])
        if remover[0] == 'rm':
            return bench.tool([*remover, path], [*remover, '/nonexistent'])
        return bench.printed([*remover, path])
    return remove


def measure_copy(bench: Bench) -> None:
    this = client(bench, 'large')
    large = client_tree(bench, this) + '/data/0000/000000'
    small = make_tree(bench, input_path(bench, 'thousand'), [10000] * bench.scaled(1000))
    for place, where, pairs in ((bench.memory, 'memory', 9), (bench.build, 'disk', 5)):
        copy_large(bench, large, Targets(bench, place, many_files=False),
                   f'copy 1,500 MB, {where}', pairs)
        copy_small(bench, small, Targets(bench, place),
                   f'copy 1,000 files of 10 kB, {where}', pairs)


def copy_large(bench: Bench, source: str, targets: Targets, what: str, pairs: int) -> None:
    def with_dd() -> Run:
        return bench.tool(['dd', 'if=' + source, f'of={targets.fresh()}/copy', 'bs=32M',
                           'conv=fsync'], ['dd', 'if=/dev/null', 'of=/dev/null'])

    def with_ours() -> Run:
        return bench.printed([bench.program('bench_files'), 'copy', source,
                              targets.fresh() + '/copy'])

    bench.pair(what + ', against `dd bs=32M conv=fsync`', with_dd, with_ours, pairs, 1.02)
    targets.clear()


def copy_small(bench: Bench, source: str, targets: Targets, what: str, pairs: int) -> None:
    copy_and_sync = 'cp -r "$0" "$1" && find "$1" -type f -exec sync {} +'
    idle = 'cp --version; find /dev/null -exec sync --version {} +'

    def with_cp() -> Run:
        return bench.tool(['sh', '-c', copy_and_sync, source, targets.fresh() + '/copy'],
                          ['sh', '-c', idle])

    def with_ours() -> Run:
        return bench.printed([bench.program('bench_files'), 'copytree', source,
                              targets.fresh() + '/copy'])

    bench.pair(what + ', against `cp -r` and `sync` of each', with_cp, with_ours, pairs, 1.02)
    targets.clear()

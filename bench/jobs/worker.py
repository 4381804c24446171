"""Benchmarks of the worker thread while the dialog follows it."""

import statistics

from bench.figures import text_of
from bench.harness import Bench, Job
from bench.inputs import Stage, Targets
from bench.jobs.unpack import growing_archive


def measure_worker(bench: Bench) -> None:
    program = bench.program('bench_gui')
    env = Stage(bench).on('offscreen')
    slot = statistics.median(bench.printed([program, 'slot', '100000'], env).wall
                             for _ in range(bench.count(7)))
    bench.progress.line(f'  a report of progress costs the GUI thread {text_of(slot)}')
    bench.result.facts['slot'] = slot
    for entries, pairs in ((20000, 9), (100000, 5)):
        archive = growing_archive(bench, 'entries', bench.scaled(entries))
        memory, disk = Targets(bench, bench.memory), Targets(bench, bench.build)

        def job(kind: str, targets: Targets, archive: str = archive) -> Job:
            return lambda: bench.printed([program, kind, archive, targets.fresh()], env)

        label = f'worker, {entries:,} files'
        bench.pair(f'{label}, reports sent, against none sent', job('alone', memory),
                   job('queued', memory), pairs)
        bench.pair(f'{label}, dialog, against reports nobody shows', job('queued', memory),
                   job('dialog', memory), pairs, 1.02)
        runs = bench.pair(f'{label}, dialog, against none, on disk', job('alone', disk),
                          job('dialog', disk), pairs)
        # The program prints by how much it grew before it prints its time.
        for key, column in (('alone', 0), ('dialog', 1)):
            bench.result.facts[f'grown {key} {entries}'] = statistics.median(
                int(pair[column].lines[-2]) for pair in runs)
        memory.clear()
        disk.clear()

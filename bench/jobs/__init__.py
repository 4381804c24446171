"""The benchmark jobs by name, in the order of the page."""

from dataclasses import dataclass
from typing import Callable

from bench.harness import Bench
from bench.jobs import files, library, start, unpack, worker

FAST_KINDS, SLOW_KINDS = ('default', 'tar', 'zstd'), ('gzip', 'xz')  # with 1.5 GB


@dataclass
class BenchJob:
    """A job, what it measures, and the minutes that it takes in full and in a quick run."""
    title: str
    measure: Callable[[Bench], None]
    full: float
    quick: float  # 0: left out of a quick run, its last figures stay


JOBS = {
    'start': BenchJob('A start with nothing to do', start.measure_start, 1, 0.5),
    'window': BenchJob('The first window', start.measure_window, 0.5, 0.2),
    'stages': BenchJob('The steps of a start', start.measure_stages, 0.2, 0.1),
    'kind': BenchJob('The default kind of package', unpack.measure_kind, 2, 1),
    'packages': BenchJob('What a packager chooses from', unpack.measure_packages, 4, 3),
    'client': BenchJob('Unpacking 300 files, 58 MB',
                       lambda bench: unpack.measure_unpack(bench, 'client'), 10, 3.5),
    'small': BenchJob('Unpacking 20,000 small files',
                      lambda bench: unpack.measure_unpack(bench, 'small'), 8, 2.5),
    'large': BenchJob('Unpacking one file of 1.5 GB',
                      lambda bench: unpack.measure_unpack(bench, 'large', FAST_KINDS), 5, 2.5),
    'large-slow': BenchJob('Unpacking one file of 1.5 GB, slow kinds',
                           lambda bench: unpack.measure_unpack(bench, 'large', SLOW_KINDS), 17, 0),
    'barrier': BenchJob('Barriers against loss of power', unpack.measure_barrier, 1.5, 0.5),
    'growth': BenchJob('Growth', unpack.measure_growth, 2.5, 1.5),
    'gui': BenchJob('The worker and the dialog', worker.measure_worker, 5, 1.5),
    'remove': BenchJob('Removal', files.measure_remove, 5, 1.5),
    'copy': BenchJob('Copies', files.measure_copy, 1.5, 0.5),
    'log': BenchJob('The log', library.measure_log, 0.2, 0.1),
    'text': BenchJob('Texts', library.measure_text, 0.2, 0.1),
}

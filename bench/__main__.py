"""Measures, keeps the figures in bench/results.json and writes docs/performance.md. bench/run
starts it and has the text of its options."""

import argparse
import os
import signal
import sys
import time

from bench import figures, report
from bench.harness import Bench, fail
from bench.jobs import JOBS


def options_of(arguments: list[str]) -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog='bench/run', add_help=False,
                                     usage='bench/run [OPTION...] [NAME...] (see --help)')
    parser.add_argument('names', nargs='*')
    mode = parser.add_mutually_exclusive_group()
    for name in ('quick', 'smoke', 'report', 'list'):
        mode.add_argument('--' + name, dest='mode', action='store_const', const=name)
    parser.add_argument('--save', action='store_true')
    parser.add_argument('--pairs', type=int)
    parser.add_argument('--build', default=figures.ROOT + '/build/bench')
    parser.add_argument('--memory', default='/dev/shm')
    options = parser.parse_args(arguments)
    if unknown := [n for n in options.names if n not in JOBS]:
        parser.error(f'no benchmark has the name {unknown[0]}; --list shows them')
    if options.pairs is not None and options.pairs < 1:
        parser.error('--pairs wants at least one')
    return options


def list_jobs() -> None:
    results = figures.load()
    print('name        full     quick    last measured     what')
    for name, job in JOBS.items():
        last = results.jobs[name].run if name in results.jobs else 'not yet'
        quick = f'{job.quick:g} min' if job.quick else '-'
        full = f'{job.full:g} min'
        print(f'{name:11} {full:8} {quick:8} {last:17} {job.title}')


def measure(bench: Bench, names: list[str], keep: bool) -> figures.Results:
    """Runs the jobs; each one's figures are kept as soon as it is done."""
    results = figures.Results() if bench.smoke else figures.load()
    run = results.begin_run('quick' if bench.quick else 'full')
    for done, name in enumerate(names):
        bench.progress.job = f'[{done + 1}/{len(names)} {name}] '
        bench.progress.line(f'{bench.progress.job}{JOBS[name].title}')
        bench.result = results.jobs[name] = figures.Result(run)
        begin = time.monotonic()
        JOBS[name].measure(bench)
        bench.result.seconds = round(time.monotonic() - begin, 1)
        bench.progress.line(f'  took {bench.result.seconds:.0f} s')
        if keep:
            figures.save(results)
    return results


def main() -> None:
    # Figures with a point, and the same messages, translation and conversions everywhere.
    os.environ['LC_ALL'] = 'C.UTF-8'
    os.environ.pop('LANGUAGE', None)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    options = options_of(sys.argv[1:])
    if options.mode == 'list':
        list_jobs()
        return
    if options.mode == 'report':
        report.write(figures.load())
        return
    names = options.names or [n for n, j in JOBS.items() if options.mode != 'quick' or j.quick]
    smoke = options.mode == 'smoke'
    keep = not smoke and (options.save or not options.names)
    begin = time.monotonic()
    with Bench(options.build, options.memory, options.mode or 'full', options.pairs) as bench:
        if not smoke:
            minutes = sum(JOBS[n].quick if bench.quick else JOBS[n].full for n in names)
            bench.progress.line(f'{len(names)} benchmarks; about {max(round(minutes), 1)} min, '
                                'and up to 5 more when their inputs are made')
        bench.make_programs()
        results = measure(bench, names, keep)
    if smoke:
        if not options.names and (missing := report.missing_headlines(results)):
            fail(f'the page wants a row that no benchmark has: {missing[0]}')
        report.page_of(results)
        print(f'every benchmark builds and runs ({time.monotonic() - begin:.0f} s)')
    elif keep:
        report.write(results)


if __name__ == '__main__':
    try:
        main()
    except KeyboardInterrupt:
        sys.exit(130)
    except BrokenPipeError:  # whoever read has seen enough
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())

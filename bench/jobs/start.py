"""Benchmarks of a start: whole, to the first window, and step by step."""

import statistics
import subprocess
import time

from bench.harness import Bench, Run, fail, run
from bench.inputs import Stage

PLATFORMS = (('offscreen', 'offscreen'), ('xcb', 'X11'))


def measure_start(bench: Bench) -> None:
    stage = Stage(bench)
    for name, label in PLATFORMS:
        env = stage.on(name)

        def floor(env: dict[str, str] = env) -> Run:
            return run(stage.floor(), env)

        bench.pair(f'A/A: the floor of a start against itself, {label}', floor, floor, 60)
        bench.pair(f'start with nothing to do, {label}', floor,
                   lambda env=env: run([stage.launcher()], env), 60, 1.08, memory_goal=1.07)


def measure_window(bench: Bench) -> None:
    stage = Stage(bench, wait=0.2)  # the window must stand long enough to be seen
    stage.upgrade_always()
    env = stage.on('xcb')
    window = bench.program('bench_window')
    bench.pair('first window of an upgrade, X11',
               lambda: bench.printed([window, *stage.floor(), '--show'], env),
               lambda: bench.printed([window, stage.launcher()], env), 30, 1.15)


def measure_stages(bench: Bench) -> None:
    """Each step's median; no rows, because a step has no floor."""
    stage = Stage(bench)
    for name, label in PLATFORMS:
        steps: dict[str, list[int]] = {}
        total = bench.count(40)
        for done in range(total):
            bench.progress.moving(f'steps of a start, {label}: run {done + 1} of {total}')
            for step, nanoseconds in stages_of(stage, name):
                steps.setdefault(step, []).append(nanoseconds)
        bench.result.steps[label] = {s: statistics.median(v) for s, v in steps.items()}
        bench.progress.line(f'  steps of a start, {label}: measured {total} times')


def stages_of(stage: Stage, platform: str) -> list[tuple[str, int]]:
    argv = [stage.root + '/bin/bench_stages', str(time.monotonic_ns())]
    done = subprocess.run(argv, env=stage.on(platform), stdout=subprocess.DEVNULL,
                          stderr=subprocess.PIPE, text=True, check=False)
    ended = time.monotonic_ns()
    if done.returncode != 0:
        fail('bench_stages failed: ' + done.stderr)
    steps = []
    for line in done.stderr.split('\n'):
        step, _, value = line.rpartition(' ')
        if not value.isdigit() or ':' in step:
            continue  # a trace of the launcher's own
        steps.append(('exit', ended - int(value)) if step == 'end' else (step, int(value)))
    return steps

"""Runs benchmark programs and floors in pairs, in turn, and says how far it is."""

import fcntl
import os
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass, field
from typing import Callable, Optional

from bench.figures import ROOT, Result, Row, row_of, text_of

GB = 1000 ** 3


def fail(text: str) -> None:
    sys.exit(f'bench/run: {text}')


class Progress:
    """What is being done: a moving line on a terminal; elsewhere a line for each row, and one
    whenever there has been none for a while."""

    SILENCE = 10  # seconds

    def __init__(self, quiet: bool = False) -> None:
        self.quiet = quiet  # nothing but the moving line
        self.terminal = sys.stdout.isatty()
        self.job = ''
        self._said = time.monotonic()

    def moving(self, text: str) -> None:
        if self.terminal:
            width = shutil.get_terminal_size().columns - 1
            print('\r\033[K' + f'{self.job}{text}'[:width], end='', flush=True)
        elif time.monotonic() - self._said > self.SILENCE:
            self.line(f'  ... {text}')

    def clear(self) -> None:
        if self.terminal:
            print('\r\033[K', end='', flush=True)

    def line(self, text: str) -> None:
        if not self.quiet:
            self.clear()
            print(text, flush=True)
            self._said = time.monotonic()

    def row(self, row: Row) -> None:
        goal = f'  {row.goal_text()} {row.verdict()}' if row.verdict() else ''
        self.line(f'  {row.ratio:5.2f}  ({row.spread_text()})  {row.what}: '
                  f'{text_of(row.floor, row.unit)}, {text_of(row.ours, row.unit)}{goal}')


@dataclass
class Run:
    """What a process took: nanoseconds on the clock and of processor time, kilobytes at most."""
    wall: float
    cpu: float
    memory: float
    lines: list[str] = field(default_factory=list)  # that it printed


Job = Callable[[], Run]


def run(argv: list[str], env: Optional[dict[str, str]] = None,
        output: str = '/dev/null') -> Run:
    """A whole process, from exec to exit. A failure ends the benchmark."""
    flags = os.O_WRONLY | os.O_CREAT | os.O_TRUNC
    actions = [(os.POSIX_SPAWN_OPEN, 1, output, flags, 0o600),
               (os.POSIX_SPAWN_OPEN, 2, '/dev/null', os.O_WRONLY, 0)]
    start = time.perf_counter_ns()
    pid = os.posix_spawnp(argv[0], argv, env or os.environ, file_actions=actions)
    try:
        _, status, usage = os.wait4(pid, 0)
    except BaseException:  # an interrupt
        os.kill(pid, signal.SIGTERM)
        os.waitpid(pid, 0)
        raise
    wall = time.perf_counter_ns() - start
    if status != 0:
        fail(f'failed with status {status}: {" ".join(argv)}')
    return Run(wall, (usage.ru_utime + usage.ru_stime) * 1e9, usage.ru_maxrss)


class Bench:
    """Where to build and work, how often to run, and what the job at hand has found."""

    def __init__(self, build: str, memory: str, mode: str, pairs: Optional[int]) -> None:
        self.build, self.memory = os.path.abspath(build), ''
        self._memory_place = memory  # where `memory` is made
        self.smoke, self.quick, self.pairs = mode == 'smoke', mode == 'quick', pairs
        self.progress = Progress(quiet=self.smoke)
        self.result = Result()
        self._starts: dict[str, Run] = {}  # of tools that had nothing to do
        self._server: Optional[subprocess.Popen] = None
        self._display = ''

    def __enter__(self) -> 'Bench':
        os.makedirs(self.build + '/inputs', exist_ok=True)
        self._lock = os.open(self.build + '/inputs', os.O_RDONLY)
        try:
            fcntl.flock(self._lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            fail(f'another benchmark is at work in {self.build}')
        self.memory = tempfile.mkdtemp(prefix='quillmere-bench.', dir=self._memory_place)
        for place, need in ((self.build, 35), (self._memory_place, 8)):
            free = shutil.disk_usage(place).free // GB
            if free < need and not self.smoke:
                os.rmdir(self.memory)
                fail(f'{place} has {free} GB free, and the benchmarks may need {need} '
                     '(choose others with --build and --memory)')
        return self

    def __exit__(self, *_: object) -> None:
        if self._server:
            self._server.terminate()
            self._server.wait()
        self.progress.moving('removing what was unpacked')
        subprocess.run(['rm', '-rf', self.memory, self.build + '/targets'], check=False)
        self.progress.clear()

    # ------------------------------------------------------------ programs

    def make_programs(self) -> None:
        """Builds the launcher, the benchmark programs and the floors, as a release."""
        for what, argv in (
                ('configuring', ['cmake', '-S', ROOT, '-B', self.build, '-G', 'Ninja',
                                 '-DCMAKE_BUILD_TYPE=Release', '-DQUILLMERE_TESTS=OFF',
                                 '-DQUILLMERE_BENCH=ON']),
                ('building', ['cmake', '--build', self.build])):
            self.progress.line(f'{what} the benchmarks in {self.build}')
            made = subprocess.run(argv, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                  check=False)
            if made.returncode != 0:
                fail(f'{what} failed\n{made.stdout}')

    def program(self, name: str) -> str:
        return f'{self.build}/bench/{name}'

    def printed(self, argv: list[str], env: Optional[dict[str, str]] = None) -> Run:
        """A run with the time that the benchmark program itself has measured and printed last."""
        path = os.path.join(self.memory, 'output')
        result = run(argv, env, path)
        with open(path, encoding='utf-8') as file:
            result.lines = file.read().split('\n')[:-1]
        result.wall = float(result.lines[-1])
        return result

    def tool(self, argv: list[str], idle: list[str]) -> Run:
        """A public tool; its start, measured by the command `idle` that has nothing to do, is
        taken off, because benchmark programs do not count theirs."""
        key = ' '.join(idle)
        if key not in self._starts:
            runs = [run(idle) for _ in range(1 if self.smoke else 11)]
            self._starts[key] = Run(statistics.median(r.wall for r in runs),
                                    statistics.median(r.cpu for r in runs), 0)
        result = run(argv)
        result.wall = max(result.wall - self._starts[key].wall, 1)
        result.cpu = max(result.cpu - self._starts[key].cpu, 1)
        return result

    def display(self) -> str:
        """An X server of the benchmark's own, started at the first need."""
        if not self._server:
            reader, writer = os.pipe()
            self._server = subprocess.Popen(
                ['Xvfb', '-noreset', '-dpi', '96', '-nolisten', 'tcp',
                 '-screen', '0', '1280x1024x24',
                 '-displayfd', str(writer)],
                pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            os.close(writer)
            with os.fdopen(reader) as file:
                self._display = file.readline().strip()
            if not self._display:
                fail('Xvfb does not start')
        return ':' + self._display

    # ------------------------------------------------------------ comparisons

    def count(self, full: int) -> int:
        """How many runs to make where a full benchmark makes `full`."""
        if self.smoke:
            return 1
        return self.pairs or (max(2, full // 3) if self.quick else full)

    def scaled(self, size: int) -> int:
        """A size of the inputs, which a smoke run has small."""
        return max(size // 100, 1) if self.smoke else size

    def add(self, row: Row) -> None:
        self.result.rows.append(row)
        self.progress.row(row)

    def pair(self, what: str, floor: Job, ours: Job, pairs: int, goal: Optional[float] = None, *,
             memory_goal: Optional[float] = None,
             limit: Optional[float] = None) -> list[tuple[Run, Run]]:
        """A row: floor and ours run in turn, so that whatever else the machine does hits both;
        one pair in two in the other order."""
        runs: list[tuple[Run, Run]] = []
        total = self.count(pairs)
        for done in range(total):
            self.progress.moving(f'{what}: pair {done + 1} of {total}')
            if done % 2:
                second, first = ours(), floor()
            else:
                first, second = floor(), ours()
            runs.append((first, second))
        cpu = [o.cpu / f.cpu for f, o in runs if f.cpu > 0]
        self.add(row_of(what, [f.wall for f, _ in runs], [o.wall for _, o in runs], goal=goal,
                        limit=limit, cpu=round(statistics.median(cpu), 3) if cpu else None))
        if memory_goal:
            self.add(row_of(what + ', peak memory', [f.memory for f, _ in runs],
                            [o.memory for _, o in runs], goal=memory_goal, unit='kB'))
        return runs

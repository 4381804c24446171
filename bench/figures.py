"""The figures of benchmarks: one row for each comparison, how it is judged, how it is kept."""

import json
import os
import platform
import statistics
import time
from dataclasses import asdict, dataclass, field
from typing import Any, Optional, Union

BENCH = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(BENCH)
RESULTS = BENCH + '/results.json'


def quartiles(values: list[float]) -> tuple[float, float]:
    """The middle half of the values; all of them where there are too few for that."""
    if len(values) < 4:
        return min(values), max(values)
    low, _, high = statistics.quantiles(values, n=4)
    return low, high


def text_of(value: float, unit: str = 'ns') -> str:
    """A figure as a reader wants it: three digits and a unit."""
    if unit == 'kB':
        return f'{value / 1024:.1f} MB'
    for name, size in (('s', 1e9), ('ms', 1e6), ('µs', 1e3)):
        if value >= size:
            return f'{value / size:.3g} {name}'
    return f'{value:.0f} ns'


@dataclass
class Row:
    """A job of ours against its floor: medians, and the ratio of each pair of runs."""
    what: str
    floor: float
    ours: float
    ratio: float
    low: float  # the middle half of the ratios, or all of few
    high: float
    unit: str = 'ns'  # of floor and ours; or kB
    cpu: Optional[float] = None  # ratio of the processor times
    goal: Optional[float] = None  # the highest ratio that is good enough
    limit: Optional[float] = None  # the same for `ours`, where no ratio says it
    ratios: list[float] = field(default_factory=list)

    def verdict(self) -> str:
        """Met or missed, when the whole spread is on one side of the goal. As printed, so that
        no row contradicts itself. One pair alone has no spread."""
        if self.limit:
            return 'met' if self.ours <= self.limit else 'missed'
        if not self.goal:
            return ''
        if len(self.ratios) == 1:
            return 'not resolved'
        if round(self.high, 2) <= self.goal:
            return 'met'
        return 'missed' if round(self.low, 2) > self.goal else 'not resolved'

    def goal_text(self) -> str:
        if self.limit:
            return f'≤ {text_of(self.limit, self.unit)}'
        return f'≤ {self.goal:.2f}' if self.goal else ''

    def spread_text(self) -> str:
        return f'{self.low:.2f} – {self.high:.2f}'


def row_of(what: str, floors: list[float], ours: list[float], **rest: Any) -> Row:
    """The row of runs in pairs."""
    ratios = [o / f for f, o in zip(floors, ours)]
    low, high = quartiles(ratios)
    return Row(what, statistics.median(floors), statistics.median(ours), statistics.median(ratios),
               low, high, ratios=[round(r, 3) for r in ratios], **rest)


@dataclass
class Result:
    """All that one benchmark job has found in its last run."""
    run: str = ''  # the key of its run among the conditions
    seconds: float = 0
    rows: list[Row] = field(default_factory=list)
    steps: dict[str, dict[str, float]] = field(default_factory=dict)  # platform: step: ns
    growth: dict[str, list[list[float]]] = field(default_factory=dict)  # unit: [count, ns of one]
    kinds: dict[str, dict[str, float]] = field(default_factory=dict)  # kind: column: figure
    facts: dict[str, float] = field(default_factory=dict)


@dataclass
class Results:
    """What bench/results.json holds."""
    runs: dict[str, dict[str, Any]] = field(default_factory=dict)
    jobs: dict[str, Result] = field(default_factory=dict)

    def rows(self) -> dict[str, Row]:
        return {row.what: row for result in self.jobs.values() for row in result.rows}

    def facts(self) -> dict[str, float]:
        return {k: v for result in self.jobs.values() for k, v in result.facts.items()}

    def begin_run(self, mode: str) -> str:
        """Notes the conditions under which measuring begins, and returns their key."""
        run = time.strftime('%Y-%m-%d %H:%M')
        self.runs[run] = {'mode': mode, 'processors': os.cpu_count(), 'model': cpu_model(),
                          'kernel': platform.release().split('-')[0],
                          'load': round(os.getloadavg()[1], 1)}
        return run


def cpu_model() -> str:
    with open('/proc/cpuinfo', encoding='utf-8') as file:
        for line in file:
            if line.startswith('model name'):
                return line.partition(':')[2].strip()
    return platform.machine()


def load(path: str = RESULTS) -> Results:
    if not os.path.exists(path):
        return Results()
    with open(path, encoding='utf-8') as file:
        data = json.load(file)
    jobs = {}
    for name, job in data['jobs'].items():
        job['rows'] = [Row(**row) for row in job.get('rows', [])]
        jobs[name] = Result(**job)
    return Results(data['runs'], jobs)


def save(results: Results, path: str = RESULTS) -> None:
    """A line for each row, so that a change of one figure is a change of one line."""
    used = {result.run for result in results.jobs.values()}
    results.runs = {run: where for run, where in results.runs.items() if run in used}
    data = asdict(results)
    for name, job in data['jobs'].items():
        job['rows'] = [_filled(row) for row in job['rows']]
        data['jobs'][name] = _filled(job)
    with open(path + '.part', 'w', encoding='utf-8') as file:
        file.write(_lines(data, 4) + '\n')
    os.replace(path + '.part', path)


def _filled(members: dict[str, Any]) -> dict[str, Any]:
    return {key: value for key, value in members.items() if value not in (None, [], {})}


def _lines(value: Union[dict, list, Any], levels: int, indent: str = '') -> str:
    """JSON with a line for each member of the outer levels."""
    if levels == 0 or not isinstance(value, (dict, list)) or not value:
        if isinstance(value, float):
            value = float(f'{value:.5g}')
        elif isinstance(value, dict):
            value = {k: float(f'{v:.5g}') if isinstance(v, float) else v for k, v in value.items()}
        return json.dumps(value, ensure_ascii=False)
    inner = indent + ' '
    if isinstance(value, dict):
        parts = [f'{json.dumps(k, ensure_ascii=False)}: {_lines(v, levels - 1, inner)}'
                 for k, v in value.items()]
    else:
        parts = [_lines(v, levels - 1, inner) for v in value]
    left, right = '{}' if isinstance(value, dict) else '[]'
    return f'{left}\n{inner}' + f',\n{inner}'.join(parts) + f'\n{indent}{right}'

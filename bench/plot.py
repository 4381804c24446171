"""The two plots of docs/performance.md."""

import matplotlib
matplotlib.use('Agg')
from matplotlib import pyplot  # noqa: E402

from bench.figures import Row, text_of  # noqa: E402

COLOURS = {'met': '#2a7f4f', 'missed': '#b3261e', 'not resolved': '#b07a00', '': '#555555'}
RANGE = (0.6, 1.6)  # of the ratios shown; a bar that goes further is cut


def draw_headlines(rows: dict[str, Row], labels: dict[str, str], path: str) -> None:
    """A line for each of these rows: its ratio, spread, goal, time and verdict."""
    figure, axes = pyplot.subplots(figsize=(10, 4.2))
    for y, (what, label) in enumerate(reversed(labels.items())):
        row = rows.get(what)
        if row:
            draw_row(axes, y, row)
        else:
            axes.text(1.005, y, 'not measured yet', va='center', fontsize=9, color='0.5')
    axes.axvline(1, color='0.3', linewidth=0.8)
    axes.set_yticks(range(len(labels)), list(labels.values())[::-1])
    axes.set_ylim(-0.6, len(labels) - 0.4)
    axes.set_xlim(*RANGE)
    axes.set_xlabel('ratio to the least it can cost  (dot: median, bar: middle half of the pairs, '
                    'stroke: goal)', fontsize=9)
    axes.tick_params(axis='y', length=0)
    for side in ('top', 'right', 'left'):
        axes.spines[side].set_visible(False)
    figure.tight_layout()
    figure.savefig(path, dpi=100)


def draw_row(axes: matplotlib.axes.Axes, y: int, row: Row) -> None:
    colour = COLOURS[row.verdict()]
    axes.plot([row.low, row.high], [y, y], color=colour, alpha=0.35, linewidth=7,
              solid_capstyle='butt')
    axes.plot(row.ratio, y, 'o', color=colour)
    if row.goal:
        axes.plot(row.goal, y, '|', color='black', markersize=15, markeredgewidth=1.6)
    axes.text(1.02, y, f'{text_of(row.ours, row.unit)}, {row.verdict()}', va='center', fontsize=9,
              color=colour, transform=axes.get_yaxis_transform())


def draw_growth(growth: dict[str, list[list[float]]], path: str) -> None:
    """What one costs among how many: level lines mean that large packages cost no more each."""
    figure, panels = pyplot.subplots(1, 2, figsize=(10, 4))
    for axes, (label, xlabel, ylabel, size) in zip(panels, (
            ('entries', 'entries of 1 kB in the package', 'µs for each entry', 1e3),
            ('MB in one file', 'MB in one file', 'ms for each MB', 1e6))):
        points = growth.get(label, [])
        axes.semilogx([c for c, _ in points], [t / size for _, t in points], 'o-',
                      color=COLOURS['met'])
        for count, time in points:
            axes.annotate(f'{time / size:.3g}', (count, time / size), (0, 8),
                          textcoords='offset points', ha='center', fontsize=9)
        axes.set_xticks([c for c, _ in points], [f'{c:,}' for c, _ in points])
        axes.set_xticks([], minor=True)
        axes.set_ylim(0, 1.3 * max((t / size for _, t in points), default=1))
        axes.set_xlabel(xlabel)
        axes.set_ylabel(ylabel)
        for side in ('top', 'right'):
            axes.spines[side].set_visible(False)
    figure.tight_layout()
    figure.savefig(path, dpi=100)

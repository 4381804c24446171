"""Writes the generated parts of docs/performance.md between their marks, and its plots. All that
stands outside the marks is written by hand and stays."""

import re
import sys
from typing import Iterator

from bench.figures import ROOT, Result, Results, Row, text_of
from bench.jobs import JOBS

PAGE = ROOT + '/docs/performance.md'
PACKAGER_PAGE = ROOT + '/docs/packaging.md'  # whose table of kinds is a benchmark's

# What a user feels: rows, what they are called where they stand for themselves, and their floors.
HEADLINES = {
    'start with nothing to do, X11':
        ('start with nothing to do', 'a bare window program of the same toolkit'),
    'start with nothing to do, X11, peak memory':
        ('memory of such a start', 'the same program'),
    'first window of an upgrade, X11':
        ('first window of an upgrade', 'the same program, which shows the dialog'),
    'default kind against plain tar, 300 files, 58 MB, memory':
        ('unpacking of a 58 MB client, in memory', 'the leanest two passes over a plain tar'),
    'default kind against plain tar, 300 files, 58 MB, disk with barriers':
        ('unpacking of a 58 MB client, on a disk', 'our own out of a plain tar'),
    'unpack 20,000 small files with barriers, disk, against without':
        ('20,000 files safe from loss of power', 'the same without barriers'),
    'remove 20,000 files, disk, against `rm -rf`':
        ('removal of 20,000 files', '`rm -rf`'),
    'a log line written':
        ('a line of the log', 'a widely used logger that flushes every line'),
}
MARK = re.compile(r'(<!-- bench: (\S+) -->\n).*?(<!-- end -->)', re.DOTALL)


def table(head: str, lines: Iterator[str]) -> str:
    """A Markdown table with its first column to the left and the others to the right."""
    columns = head.count('|') + 1
    return '\n'.join([f'| {head} |', '|---|' + '---:|' * (columns - 1),
                      *(f'| {line} |' for line in lines)])


def missing_headlines(results: Results) -> list[str]:
    rows = results.rows()
    return [what for what in HEADLINES if what not in rows]


def headlines(results: Results) -> str:
    rows = results.rows()

    def line(what: str) -> str:
        label, floor = HEADLINES[what]
        if what not in rows:
            return f'{label} | not measured yet | | {floor} | | |'
        row = rows[what]
        return (f'{label} | {text_of(row.ours, row.unit)} | **{row.ratio:.2f}** | {floor} | '
                f'{row.spread_text()} | {row.goal_text()} | {row.verdict()}')

    return table('what a user feels | takes | times | what | spread | goal | verdict',
                 (line(what) for what in HEADLINES))


def goals(results: Results) -> str:
    """How many goals are met, and each that is missed."""
    judged = [row for row in results.rows().values() if row.verdict()]
    count = {v: sum(row.verdict() == v for row in judged)
             for v in ('met', 'missed', 'not resolved')}
    lines = [f'Of {len(judged)} goals {count["met"]} are met, {count["missed"]} missed and '
             f'{count["not resolved"]} not resolved.']
    if count['missed']:
        lines += ['', table('missed | ratio | spread | goal', (
            f'{row.what} | {row.ratio:.2f} | {row.spread_text()} | {row.goal_text()}'
            for row in judged if row.verdict() == 'missed'))]
    return '\n'.join(lines)


def rows_table(rows: list[Row]) -> str:
    def line(row: Row) -> str:
        cpu = f'{row.cpu:.2f}' if row.cpu else ''
        verdict = f'**{row.verdict()}**' if row.verdict() == 'missed' else row.verdict()
        return (f'{row.what} | {text_of(row.floor, row.unit)} | {text_of(row.ours, row.unit)} | '
                f'{row.ratio:.2f} | {row.spread_text()} | {cpu} | {row.goal_text()} | {verdict}')

    return table('what | floor | ours | ratio | spread | processor | goal | verdict',
                 (line(row) for row in rows))


def steps_table(steps: dict[str, dict[str, float]]) -> str:
    platforms = list(steps)
    names = {step: None for platform in platforms for step in steps[platform]}
    return table('step | ' + ' | '.join(platforms), (
        f'{name} | ' + ' | '.join(text_of(steps[p].get(name, 0)) for p in platforms)
        for name in names))


def worker_facts(results: Results) -> str:
    """What a report of progress costs both threads, and what it keeps in memory."""
    facts, rows, lines = results.facts(), results.rows(), []
    if 'slot' in facts:
        lines.append(f'- A report of progress costs the GUI thread {text_of(facts["slot"])} of '
                     'processor time, when 100,000 come as fast as they can be sent.')
    for entries in (20000, 100000):
        row = rows.get(f'worker, {entries:,} files, reports sent, against none sent')
        if row:
            cost = (row.ours - row.floor) / entries
            lines.append(f'- Sending it costs the worker {text_of(cost)} when there are '
                         f'{entries:,}.')
        if f'grown dialog {entries}' in facts:
            grown = [text_of(facts[f'grown {key} {entries}'], 'kB') for key in ('dialog', 'alone')]
            lines.append(f'- During {entries:,} files the process grows by {grown[0]} with the '
                         f'dialog, by {grown[1]} without.')
    return '\n'.join(lines)


def kinds_table(results: Results) -> str:
    """The kinds of package side by side; nothing before they are measured."""
    kinds = results.jobs.get('packages', Result()).kinds
    if not kinds:
        return ''
    return table('kind | archive | counting | unpacking | both | both, on disk | '
                 'inside a .deb (xz)', (
                     f'{"**checked**" if kind == "default" else kind} | {k["size"] / 1e6:.1f} MB | '
                     f'{text_of(k["counting"])} | {text_of(k["unpacking"])} | '
                     f'{text_of(k["both"])} | {text_of(k["disk"])} | {k["inside"] / 1e6:.1f} MB'
                     for kind, k in kinds.items()))


def details(results: Results) -> str:
    """Every row, folded by job."""
    parts = []
    for name, job in JOBS.items():
        result = results.jobs.get(name, Result())
        said = [rows_table(result.rows)] if result.rows else []
        said += [steps_table(result.steps)] if result.steps else []
        said += [kinds_table(results)] if result.kinds else []
        said += [worker_facts(results)] if result.facts else []
        if said:
            verdicts = [v for row in result.rows if (v := row.verdict())]
            counts = ', '.join(f'{verdicts.count(v)} {v}' for v in dict.fromkeys(verdicts))
            head = f'<b>{job.title}</b>' + (f': {counts}' if counts else '')
            parts.append(f'<details>\n<summary>{head} (<code>bench/run {name}</code>)</summary>\n\n'
                         + '\n\n'.join(said + [f'Measured {result.run}.']) + '\n\n</details>')
    return '\n\n'.join(parts)


def conditions(results: Results) -> str:
    """When and where, for each run that has left figures on the page."""
    lines = []
    for run, where in results.runs.items():
        jobs = [name for name, result in results.jobs.items() if result.run == run]
        what = 'everything' if len(jobs) == len(results.jobs) else ', '.join(jobs)
        lines.append(f'- {run}, {where["mode"]} run ({what}): {where["processors"]} processors '
                     f'({where["model"]}), Linux {where["kernel"]}, load {where["load"]:.1f}')
    return '\n'.join(lines)


PARTS = {'headlines': headlines, 'goals': goals, 'conditions': conditions, 'details': details,
         'kinds': kinds_table}


def page_of(results: Results, path: str = PAGE) -> str:
    """The page with its generated parts made anew; one without figures stays as it is."""
    def part(mark: re.Match) -> str:
        made = PARTS[mark[2]](results)
        return f'{mark[1]}\n{made}\n\n{mark[3]}' if made else mark[0]

    with open(path, encoding='utf-8') as file:
        return MARK.sub(part, file.read())


def write(results: Results) -> None:
    for path in (PACKAGER_PAGE, PAGE):
        page = page_of(results, path)
        with open(path, 'w', encoding='utf-8') as file:
            file.write(page)
    by_hand = ' '.join(MARK.sub('', page).split())
    for row in results.rows().values():
        if row.verdict() == 'missed' and f'**{row.what}**' not in by_hand:
            print(f'bench/run: docs/performance.md gives no reason why "{row.what}" misses its '
                  'goal', file=sys.stderr)
    # Not before: a process started from a large one counts that one's memory as its own peak.
    from bench import plot
    labels = {what: label for what, (label, _) in HEADLINES.items()}
    plot.draw_headlines(results.rows(), labels, ROOT + '/docs/performance.png')
    plot.draw_growth(results.jobs.get('growth', Result()).growth, ROOT + '/docs/growth.png')
    print('written: docs/performance.md, docs/performance.png, docs/growth.png')

"""Benchmarks of the log and of texts."""

from bench.harness import Bench, Job


def measure_log(bench: Bench) -> None:
    def job(program: str, line: str) -> Job:
        return lambda: bench.printed([bench.program(program), line, bench.memory])

    floor = job('floor_log', 'written')
    bench.pair('A/A: the floor of a log line against itself', floor, floor, 15)
    bench.pair('a log line written', floor, job('bench_log', 'written'), 25, 0.95)
    bench.pair('a log line filtered out', job('floor_log', 'filtered'),
               job('bench_log', 'filtered'), 15, limit=100)


def measure_text(bench: Bench) -> None:
    def job(program: str, text: str) -> Job:
        return lambda: bench.printed([bench.program(program), text])

    for text, what, goal in (('path', 'a path built by `+`, against `std::string`', 1.5),
                             ('map', 'look-up in a map, against `std::string`', 1.5),
                             ('nfc', 'NFC of 1 MB, against ICU', 1.05),
                             ('utf16', 'UTF-16 view of 1 MB, against ICU', 1.05)):
        bench.pair(what, job('floor_text', text), job('bench_text', text), 15, goal)

"""What the benchmarks work on: clients cut from files of this machine, their archives, and
directories to unpack them into. Inputs stay in the build directory; making them takes minutes."""

import os
import random
import shutil
import subprocess
from dataclasses import dataclass
from typing import Callable, Iterator, Optional

from bench.figures import ROOT
from bench.harness import Bench, fail, run

MB = 1000 * 1000
MAKE_PACKAGE = ROOT + '/packaging/make-package'


def machine_bytes() -> Iterator[bytes]:
    """The contents of the machine's programs, libraries and texts, without an end."""
    while True:
        for folder in ('/usr/bin', '/usr/lib', '/usr/share'):
            for path, folders, files in os.walk(folder):
                folders.sort()
                for name in sorted(files):
                    full = os.path.join(path, name)
                    if os.path.islink(full) or not os.path.isfile(full):
                        continue
                    with open(full, 'rb') as file:
                        while block := file.read(1 << 20):
                            yield block


class Source:
    """Cuts pieces of any size out of machine_bytes()."""

    def __init__(self) -> None:
        self.blocks, self.rest = machine_bytes(), b''

    def write(self, path: str, size: int) -> None:
        with open(path, 'wb') as file:
            while size:
                if not self.rest:
                    self.rest = next(self.blocks)
                piece, self.rest = self.rest[:size], self.rest[size:]
                file.write(piece)
                size -= len(piece)


def sizes_of(count: int, total: int) -> list[int]:
    """Many small files and a few large ones, the same in each run."""
    dice = random.Random(1)
    weights = [dice.lognormvariate(0, 1.5) for _ in range(count)]
    return [int(w * total / sum(weights)) for w in weights]


def hundreds(number: int) -> str:
    """The directory of a client's file: a hundred share one."""
    return f'data/{number // 100:04d}'


def nested(number: int) -> str:
    """The directory of a file in a deep tree: twenty share one, each inside the one before."""
    return '/'.join(['data'] + ['d'] * (number // 20))


def make_tree(bench: Bench, path: str, sizes: list[int],
              folder_of: Callable[[int], str] = hundreds) -> str:
    """A client with files of these sizes."""
    if os.path.exists(path):
        return path
    bench.progress.moving(f'making {len(sizes):,} files, {sum(sizes) // MB:,} MB')
    source, half = Source(), path + '.part'
    shutil.rmtree(half, ignore_errors=True)
    os.makedirs(half + '/bin')
    os.makedirs(half + '/package')
    for number, size in enumerate(sizes):
        folder = f'{half}/{folder_of(number)}'
        os.makedirs(folder, exist_ok=True)
        source.write(f'{folder}/{number:06d}', size)
    shutil.copy('/bin/true', half + '/bin/cloud-ui')
    shutil.copy('/bin/true', half + '/package/start-stop')
    os.rename(half, path)
    return path


def pack(client: str, root: str, number: int, *options: str) -> str:
    """The package that a packager makes of the client; `root` gets its INFO, too."""
    subprocess.run([MAKE_PACKAGE, '--client', client, '--build', str(number), '--root', root,
                    *options], check=True, stdout=subprocess.DEVNULL)
    return root + '/package/quillmere.qpk'


# "default" is whatever make-package makes unasked. What compresses is faster here than there.
KINDS = ('default', 'tar', 'zstd', 'gzip', 'xz')
COMPRESSORS = {'zstd': ['zstd', '-q', '-3', '-c'], 'gzip': ['gzip', '-n', '-c'],
               'xz': ['xz', '-T0', '-2', '-c']}


def make_archive(bench: Bench, tree: str, kind: str) -> str:
    """The tree as an archive of this kind; those that are not the default differ in nothing but
    their compression."""
    path = f'{tree}.{kind}'
    if os.path.exists(path):
        return path
    if kind not in COMPRESSORS:
        return make_package(bench, tree, kind)
    plain = make_archive(bench, tree, 'tar')
    bench.progress.moving(f'making {path}')
    with open(plain, 'rb') as tar, open(path + '.part', 'wb') as file:
        subprocess.run(COMPRESSORS[kind], stdin=tar, stdout=file, check=True)
    os.rename(path + '.part', path)
    return path


def make_package(bench: Bench, tree: str, kind: str, suffix: str = '') -> str:
    """The tree as make-package packs it."""
    path = f'{tree}.{kind}{suffix}'
    if not os.path.exists(path):
        bench.progress.moving(f'making {path}')
        options = () if kind == 'default' else ('--compression', kind)
        os.rename(pack(tree, tree + '.root', 1, *options), path)
        shutil.rmtree(tree + '.root')
    return path


@dataclass
class Client:
    """A client to unpack, and in how many pairs of runs in memory and on disk."""
    label: str
    name: str
    sizes: list[int]
    memory_pairs: int
    disk_pairs: int


def client(bench: Bench, name: str) -> Client:
    if name == 'client':
        return Client('300 files, 58 MB', name, sizes_of(300, bench.scaled(58 * MB)), 31, 15)
    if name == 'small':
        return Client('20,000 small files', name,
                      sizes_of(bench.scaled(20000), bench.scaled(60 * MB)), 9, 7)
    return Client('one file of 1.5 GB', name, [bench.scaled(1500 * MB)], 5, 3)


def input_path(bench: Bench, name: str) -> str:
    return f'{bench.build}/inputs/{name}{"-smoke" if bench.smoke else ""}'


def client_tree(bench: Bench, this: Client) -> str:
    return make_tree(bench, input_path(bench, this.name), this.sizes)


def forget(tree: str) -> None:
    """Has the tree on the disk and its pages free: the next run must neither wait for what
    this one has left to be written, nor need memory that the machine has not touched yet, which
    a virtual one has to fetch from its host."""
    os.sync()
    for path, _, files in os.walk(tree):
        for name in files:
            file = os.open(os.path.join(path, name), os.O_RDONLY)
            os.posix_fadvise(file, 0, 0, os.POSIX_FADV_DONTNEED)
            os.close(file)


class Targets:
    """Fresh directories to work in, each removed when the next is asked for. On a disk those of
    many files are kept until the end, and each is put into another part of it: an ext4 that has
    just freed inodes there looks at every one of them whenever it makes a new one."""

    made = 0  # in all, so that no name comes twice

    def __init__(self, bench: Bench, place: str, many_files: bool = True) -> None:
        self.base = place + '/targets'
        self.disk = place != bench.memory and not bench.smoke
        self.keep = self.disk and many_files
        os.makedirs(self.base, exist_ok=True)
        if self.disk:  # ext4 only
            subprocess.run(['chattr', '+T', self.base], stderr=subprocess.DEVNULL, check=False)
        self.last: Optional[str] = None

    def fresh(self) -> str:
        self.clear()
        if self.disk and self.last:
            forget(self.last)
        Targets.made += 1
        self.last = f'{self.base}/{Targets.made}'
        os.mkdir(self.last)
        return self.last

    def clear(self) -> None:
        if self.last and not self.keep:
            shutil.rmtree(self.last, ignore_errors=True)  # a benchmark may have removed it


class Stage:
    """A package root, and a home in which nothing is to be done. The start script ends at once,
    or `wait` seconds later."""

    def __init__(self, bench: Bench, wait: Optional[float] = None) -> None:
        base = bench.build + '/stage'
        shutil.rmtree(base, ignore_errors=True)
        self.bench, self.root = bench, base + '/root'
        subprocess.run(['cmake', '--install', bench.build, '--prefix', self.root], check=True,
                       stdout=subprocess.DEVNULL)
        shutil.copy(bench.program('bench_stages'), self.root + '/bin')
        tree = make_tree(bench, base + '/client', [10000] * 20)
        self.script = tree + '/package/start-stop'
        if wait:
            with open(self.script, 'w', encoding='utf-8') as file:
                file.write(f'#!/bin/sh\nsleep {wait}\n')
        pack(tree, self.root, 5)
        self.home, runtime = base + '/home', base + '/runtime'
        for folder in (self.home, runtime):
            os.makedirs(folder, mode=0o700)
        clean = {k: v for k, v in os.environ.items()
                 if not k.startswith(('QT_', 'XDG_', 'WAYLAND'))}
        self.env = dict(clean, HOME=self.home, XDG_RUNTIME_DIR=runtime)
        run([self.launcher()], self.on('offscreen'))
        if not os.path.exists(self.home + '/.Quillmere/app/INFO'):
            fail('the staged launcher has not made a copy')

    def upgrade_always(self) -> None:
        """From now on every start upgrades: the version inside the package stays older than the
        root's."""
        with open(self.root + '/INFO', encoding='utf-8') as file:
            info = file.read()
        with open(self.root + '/INFO', 'w', encoding='utf-8') as file:
            file.write(info.replace('build_version=5', 'build_version=6'))

    def launcher(self) -> str:
        return self.root + '/bin/launcher'

    def floor(self) -> list[str]:
        return [self.bench.program('floor_start'), self.root + '/lib/plugins',
                self.root + '/images/ico_72_quill_mere.png', self.script]

    def on(self, platform: str) -> dict[str, str]:
        """The environment for the toolkit's platform "offscreen" or "xcb"."""
        env = dict(self.env, QT_QPA_PLATFORM=platform)
        if platform == 'xcb':
            env['DISPLAY'] = self.bench.display()
        return env

"""What a loss of power leaves: the changes of a recorded start, and the states of the disk that a
journalling file system may show after any of them.

Everything up to the last barrier is there. Of what came later each change may be missing by
itself: a name, a rename, a removal, a file's contents. A change that a missing one was needed for
is missing, too; a file whose contents are missing is empty, or as long as it was and all zeros."""
import ast
import os
import pickle
import random
import re
import stat
from dataclasses import dataclass, field
from pathlib import Path
from typing import Iterator, Optional

CALLS = "openat,write,pwrite64,rename,unlink,unlinkat,rmdir,mkdir,symlink,syncfs"


@dataclass(eq=False)
class Node:
    """A file (its contents, bytes), a link (its target, a text) or a directory (its names)."""
    content: object
    mode: int = 0o755
    names: dict = field(default_factory=dict)
    final: object = None  # the content that it will have


def read_tree(path: Path) -> Node:
    info = os.lstat(path)
    if stat.S_ISLNK(info.st_mode):
        return Node(os.readlink(path))
    if not stat.S_ISDIR(info.st_mode):
        return Node(path.read_bytes(), stat.S_IMODE(info.st_mode))
    return Node(None, stat.S_IMODE(info.st_mode),
                {name: read_tree(path / name) for name in sorted(os.listdir(path))})


def write_tree(node: Node, path: Path) -> None:
    if isinstance(node.content, str):
        path.symlink_to(node.content)
    elif node.content is not None:
        path.write_bytes(node.content)
        path.chmod(node.mode)
    else:
        path.mkdir(exist_ok=True)
        for name, child in node.names.items():
            write_tree(child, path / name)
        path.chmod(node.mode)


def digest(node: Node) -> tuple:
    names = tuple((name, digest(child)) for name, child in sorted(node.names.items()))
    return node.content, node.mode, names


@dataclass
class Change:
    """One change: what `directory` loses and another gains by name, or a file's contents."""
    directory: Optional[Node] = None
    loses: Optional[str] = None
    gains: Optional[tuple] = None  # (directory, name, node)
    replaces: bool = False         # whether the name that is gained was taken
    file: Optional[Node] = None
    content: bytes = b""
    barrier: bool = False

    def apply(self) -> None:
        """Does nothing where something is missing that the change stands on."""
        if self.file:
            self.file.content = self.content
        lost = self.directory.names.get(self.loses) if self.directory else None
        if self.directory and (lost is None or not self.gains and lost.names):
            return
        if self.gains:
            directory, name, node = self.gains
            if name in directory.names and not self.replaces or lost and lost is not node:
                return
            directory.names[name] = node
        if self.directory:
            del self.directory.names[self.loses]


class Recording:
    """The changes that one traced start has made below `top`, where `before` had been. What it
    unpacked was, as far as it came, the copy `whole`."""

    def __init__(self, top: Path, before: Node, whole: Node, trace: str):
        self.top, self.tree, self.whole = top, before, whole
        self.changes: list[Change] = []
        self.written: set[int] = set()
        self.first = [(node, dict(node.names), node.content) for node in nodes(before)]
        for line in trace.splitlines():
            if " = -1 " not in line and f"{top}/log" not in line and "resumed" not in line:
                self.read(line)
        self.end = digest(self.tree)
        for node, names, content in self.first:
            node.names, node.content = names, content
        self.start = pickle.dumps((self.tree, self.changes))

    def replay(self, count: int, missing: set[int], zeros: bool) -> Node:
        """The tree after the first `count` changes but those with the numbers `missing`."""
        tree, changes = pickle.loads(self.start)
        for number, change in enumerate(changes[:count]):
            if zeros and change.file and number in missing:
                change.content = bytes(len(change.content))
            elif number in missing:
                continue
            change.apply()
        return tree

    def place(self, at: str, name: str) -> Optional[tuple[Node, str, str]]:
        """The directory, the name and the path that a call means; None outside of `top`."""
        path = os.path.normpath(os.path.join(at, name))
        if not path.startswith(f"{self.top}/"):
            return None
        relative = os.path.relpath(path, self.top)
        *parents, last = relative.split("/")
        node = self.tree
        for parent in parents:
            node = node.names[parent]
        return node, last, relative

    def read(self, line: str) -> None:
        call, _, rest = line.partition("(")
        at = re.search(r"(?:AT_FDCWD|\b\d+)<([^>]*)>.* = ", rest)
        directory = text(at[1]) if at else "/"
        names = [text(found) for found in re.findall(r'"((?:[^"\\]|\\.)*)"', rest)]
        if call == "syncfs":  # one of a file alone is taken for nothing
            self.changes.append(Change(barrier=True))
        elif call in ("write", "pwrite64"):
            self.wrote(self.place("/", directory))
        elif call in ("unlink", "unlinkat", "rmdir") and (place := self.place(directory, names[0])):
            self.add(Change(place[0], place[1]))
        elif call.startswith("rename") and (place := self.place("/", names[0])):
            target = self.place("/", names[1])
            self.add(Change(place[0], place[1], (*target[:2], place[0].names[place[1]]),
                            target[1] in target[0].names))
        elif call.startswith(("open", "mkdir", "symlink")):
            place = self.place(directory, names[-1])
            if place and (not call.startswith("open") or "O_CREAT" in rest):
                self.made(call, *place, names[0])

    def made(self, call: str, directory: Node, name: str, path: str, target: str) -> None:
        if call.startswith("open") and name in directory.names:
            return
        node = Node({"o": b"", "m": None, "s": target}[call[0]])
        final = self.whole
        for part in path.split("/")[1:]:
            final = final.names.get(part, Node(b"")) if final else final
        node.mode, node.final = final.mode, final.content
        self.first.append((node, {}, node.content))
        self.add(Change(gains=(directory, name, node)))

    def wrote(self, place) -> None:
        node = place and place[0].names.get(place[1])
        if node and id(node) not in self.written:
            self.written.add(id(node))
            self.add(Change(file=node, content=node.final))

    def add(self, change: Change) -> None:
        self.changes.append(change)
        change.apply()


def nodes(top: Node) -> Iterator[Node]:
    yield top
    for child in top.names.values():
        yield from nodes(child)


def text(quoted: str) -> str:
    return os.fsdecode(ast.literal_eval(f'b"{quoted}"'))


def states(recording: Recording, most: int) -> Iterator[tuple[str, Node]]:
    """(what is missing, tree) for each state that a loss of power may leave, each tree once, of
    about `most` at one place."""
    changes = recording.changes
    chance = random.Random(0)
    seen = set()
    barrier = 0
    for end in range(len(changes) + 1):
        later = [n for n in range(barrier, end) if not changes[n].barrier]
        if len(later) <= 3:
            choices = [{n for k, n in enumerate(later) if bits >> k & 1}
                       for bits in range(2 ** len(later))]
        else:
            choices = [set(), set(later), *({n} for n in later[-3:]),
                       *({n for n in later if chance.random() < share}
                         for share in (i / most for i in range(1, most)))]
        for missing in choices:
            for zeros in False, True:
                tree = recording.replay(end, missing, zeros)
                if (key := hash(digest(tree))) not in seen:
                    seen.add(key)
                    yield f"after {end} changes without {sorted(missing)}", tree
        if end < len(changes) and changes[end].barrier:
            barrier = end + 1

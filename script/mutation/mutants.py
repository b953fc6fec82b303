"""All mutants of the library, a choice among them, and the explanations of those that change nothing visible."""

import fnmatch
import hashlib
import random

from mutation.kinds import KINDS
from mutation.sources import Source

# Platform records and operations: declarations only, fixed by the operating system.
LEFT_OUT = ["platform/*"]


class Mutant:
    """One change of one file. Its identifier and its key hold as long as its line does, in any place."""

    def __init__(self, source, kind, change, occurrence):
        self.start, self.end, self.new, self.what = change
        self.file = source.name
        self.kind = kind
        self.source = source
        self.function = source.function(self.start)
        self.line = source.line(self.start)
        self.key = f"{self.file} | {self.function} | {self.kind}: {self.what}\n{self.line}"
        self.identifier = hashlib.sha1(f"{self.key}\n{occurrence}".encode()).hexdigest()[:8]

    def changed_text(self):
        text = self.source.text
        return text[:self.start] + self.new + text[self.end:]

    def entry(self):
        """What an explanation of this mutant begins with."""
        return self.key

    def __str__(self):
        place = f"{self.file}:{self.source.line_number(self.start)}"
        return f"{self.identifier}  {place:<36} {self.kind}: {self.what}    | {self.line}"


def mutants_of(source):
    seen = {}
    for kind, find in KINDS.items():
        for change in find(source):
            start, end, new, _ = change
            if source.text[start:end] == new:
                continue
            mutant = Mutant(source, kind, change, 0)
            occurrence = seen[mutant.key] = seen.get(mutant.key, -1) + 1
            yield mutant if occurrence == 0 else Mutant(source, kind, change, occurrence)


def all_mutants(folder):
    mutants = []
    for path in sorted([*folder.rglob("*.cpp"), *folder.rglob("*.h")]):
        name = path.relative_to(folder).as_posix()
        if not any(fnmatch.fnmatch(name, pattern) for pattern in LEFT_OUT):
            mutants.extend(mutants_of(Source(name, path.read_text(encoding="utf-8"))))
    return mutants


def choose(mutants, seed, pattern):
    """The mutants of the matching files in a seeded order that spreads over the files and the kinds: one of each kind of
    each file, then another of each, and so on."""
    groups = {}
    for mutant in mutants:
        if fnmatch.fnmatch(mutant.file, pattern):
            groups.setdefault((mutant.file, mutant.kind), []).append(mutant)
    chance = random.Random(seed)
    rounds = {}
    for _, group in sorted(groups.items()):
        chance.shuffle(group)
        for number, mutant in enumerate(group):
            rounds.setdefault(number, []).append(mutant)
    chosen = []
    for _, mutants_of_round in sorted(rounds.items()):
        chance.shuffle(mutants_of_round)
        chosen.extend(mutants_of_round)
    return chosen


class Explanations:
    def __init__(self, entries):
        self.entries = entries

    def find(self, mutant):
        return self.entries.get(mutant.key)

    def without_mutant(self, mutants):
        keys = {mutant.key for mutant in mutants}
        return [key for key in self.entries if key not in keys]


def read_explanations(path):
    """Entries are between empty lines: two lines that say which mutant, as the report prints them, then the reason."""
    entries = {}
    for block in path.read_text(encoding="utf-8").split("\n\n"):
        lines = [line for line in block.strip().split("\n") if not line.startswith("#")]
        if len(lines) >= 3:
            entries["\n".join(lines[:2])] = " ".join(line.strip() for line in lines[2:])
        elif any(lines):
            raise ValueError(f"no explanation in: {block.strip()}")
    return Explanations(entries)

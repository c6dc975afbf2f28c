#!/usr/bin/env python3
"""Tries the tests: makes one small slip at a time in src/ and sees whether a test notices.

Works on a copy of the last commit, never in the checkout. Each mutant, drawn from the seed, is built incrementally
and tested up to the first failure, by the tests of its folder first. Mutants that do not compile, and those that
change nothing (the programs come out the same to the byte), are counted apart and others are drawn for them. What no
test notices is shown to the comparison of the guide's pictures, which sees what windows look like. At the end: the
share caught by folder, and what survived."""
import argparse
import collections
import hashlib
import io
import os
import pathlib
import random
import re
import resource
import signal
import subprocess
import sys
import tarfile
import tempfile
import time

from mutanti import slips

MEMORY = 4 << 30
FILE = 1 << 30
BUILD = 7200  # seconds, for all of it
WAIT = 3  # how much longer a test may wait than work
CAUGHT, SURVIVED, NO_BUILD, NO_CHANGE = "caught", "survived", "does not compile", "changes nothing"


class Copy:
    """The last commit, unpacked and built in a folder of its own."""

    def __init__(self, work, jobs, limit):
        self.tree, self.build = work / "tree", work / "build"
        self.log, self.jobs, self.limit = work / "log.txt", str(jobs), limit
        self.environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", HOME=str(work / "home"), TMPDIR=str(work / "tmp"))
        for folder in (self.tree, self.build, work / "home", work / "tmp"):
            folder.mkdir(parents=True, exist_ok=True)

    def unpack(self, checkout):
        archive = subprocess.run(["git", "archive", "HEAD"], cwd=checkout, check=True, stdout=subprocess.PIPE).stdout
        wanted = set()
        with tarfile.open(fileobj=io.BytesIO(archive)) as tar:
            for member in tar.getmembers():
                if not member.isfile():
                    continue
                file, content = self.tree / member.name, tar.extractfile(member).read()
                wanted.add(file)
                if not file.exists() or file.read_bytes() != content:  # an unchanged file is not built again
                    file.parent.mkdir(parents=True, exist_ok=True)
                    file.write_bytes(content)
                    file.chmod(member.mode)
        for file in self.tree.rglob("*"):
            if file.is_file() and file not in wanted:
                file.unlink()

    def run(self, *command, limit, processor=resource.RLIM_INFINITY):
        """Whether it ended well and in time; what it said is in the log. Each of its processes has that much
        processor time, in seconds: on a busy machine a slow test is not taken for one that turns in circles."""
        def bounds():
            resource.setrlimit(resource.RLIMIT_CPU, (processor, processor))
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_FSIZE, (FILE, FILE))
        with open(self.log, "w") as log:
            process = subprocess.Popen(command, cwd=self.tree, env=self.environment, stdin=subprocess.DEVNULL,
                                       stdout=log, stderr=log, start_new_session=True, preexec_fn=bounds)
            try:
                return process.wait(limit) == 0
            except subprocess.TimeoutExpired:
                return False
            finally:
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
                process.wait()

    def configure(self):
        return self.run("cmake", "-G", "Ninja", "-S", ".", "-B", str(self.build), "-DCMAKE_BUILD_TYPE=Debug",
                        "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DVATICLO_FIGURE=ON", limit=600)

    def make(self, *target):
        return self.run("cmake", "--build", str(self.build), "-j", self.jobs, *target, limit=BUILD)

    def test(self, *which):
        return self.run("ctest", "--test-dir", str(self.build), "-j", self.jobs, "--stop-on-failure",
                        "--output-on-failure", "--timeout", str(WAIT * self.limit), *which, limit=2 * WAIT * self.limit,
                        processor=self.limit)

    def pictures(self):
        return self.run("scripts/confronta_figure.sh", str(self.build / "docs/figure/vaticlo_figure"), limit=600)

    def caught_in(self, folder):
        """Whether the folder's own tests notice, or those of the windows where it has none: sooner than all."""
        program = f"{folder}_test"
        if (self.build / "tests" / program).exists():
            return self.make("--target", program) and not self.test("-R", f"^{folder}: ")
        return self.make() and not self.test("-R", "^gui: ")

    def programs(self):
        """A digest of all that was linked."""
        digest = hashlib.sha256()
        for file in sorted(self.build.rglob("*")):
            if "CMakeFiles" not in file.parts and file.is_file() and os.access(file, os.X_OK):
                digest.update(file.read_bytes())
        return digest.digest()

    def outcome(self, file, text, mutant, unchanged):
        file.write_text(mutant)
        try:
            if self.caught_in(file.relative_to(self.tree).parts[1]):
                return CAUGHT
            if not self.make():
                return NO_BUILD
            if self.programs() == unchanged:
                return NO_CHANGE
            return SURVIVED if self.test() and self.pictures() else CAUGHT
        finally:
            file.write_text(text)


def draw(tree, only, chance):
    """Slips in random order, each kind as often as the others: (file, its text, slip)."""
    kinds = collections.defaultdict(list)
    for file in sorted((tree / "src").rglob("*")):
        if file.suffix in (".cpp", ".h") and "windows" not in file.parts and re.search(only, str(file.relative_to(tree))):
            text = file.read_text()
            for slip in slips(text):
                kinds[slip.kind].append((file, text, slip))
    for sites in kinds.values():
        chance.shuffle(sites)
    while kinds:
        kind = chance.choice(sorted(kinds))
        yield kinds[kind].pop()
        if not kinds[kind]:
            del kinds[kind]


def told(file, text, slip, becomes):
    """The place, and the lines before and after."""
    first = text.rfind("\n", 0, slip.start) + 1
    last = text.find("\n", slip.end)
    before = text[first:last]
    after = text[first:slip.start] + becomes + text[slip.end:last]
    return f"{file}:{text.count(chr(10), 0, slip.start) + 1}: {slip.kind}\n" + "".join(
        f"      {sign} {' '.join(line.split())}\n" for sign, line in (("-", before), ("+", after)))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--count", type=int, default=100, help="mutants that count (100)")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--only", default="", metavar="REGEX", help="files, as src/FOLDER/FILE")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--limit", type=int, default=60, metavar="SECONDS",
                        help="a test that takes more processor time has noticed (60), or that waits three times as long")
    parser.add_argument("--work", type=pathlib.Path, metavar="DIR", help="keep copy and build there for the next time")
    options = parser.parse_args()

    with tempfile.TemporaryDirectory(prefix="mutazioni-") as temporary:
        copy = Copy((options.work or pathlib.Path(temporary)).resolve(), options.jobs, options.limit)
        copy.unpack(pathlib.Path(__file__).parent.parent)
        print("building the copy and running its tests once ...", flush=True)
        started = time.monotonic()
        if not (copy.configure() and copy.make() and copy.test() and copy.pictures()):
            print(copy.log.read_text()[-4000:])
            sys.exit("The copy itself does not build, or fails its tests.")
        print(f"done in {time.monotonic() - started:.0f} s", flush=True)
        unchanged = copy.programs()

        chance = random.Random(options.seed)
        tally, survivors, valid = collections.defaultdict(collections.Counter), [], 0
        for file, text, slip in draw(copy.tree, options.only, chance):
            if valid == options.count:
                break
            becomes = chance.choice(slip.becomes)
            name = file.relative_to(copy.tree)
            description = told(name, text, slip, becomes)
            outcome = copy.outcome(file, text, text[:slip.start] + becomes + text[slip.end:], unchanged)
            valid += outcome in (CAUGHT, SURVIVED)
            tally[name.parts[1]][outcome] += 1
            print(f"[{valid}] {outcome}: {description}", end="", flush=True)
            if outcome == SURVIVED:
                survivors.append(description)

    print("\nSurvived:\n" + "".join(survivors))
    total = sum(tally.values(), collections.Counter())
    print(f"{'folder':12}{'caught':>8}{'of':>5}{'share':>7}   {NO_BUILD}, {NO_CHANGE}")
    for folder, counts in [*sorted(tally.items()), ("all", total)]:
        of = counts[CAUGHT] + counts[SURVIVED]
        share = f"{counts[CAUGHT] / of:.0%}" if of else "-"
        print(f"{folder:12}{counts[CAUGHT]:8}{of:5}{share:>7}   {counts[NO_BUILD]}, {counts[NO_CHANGE]}")


if __name__ == "__main__":
    main()

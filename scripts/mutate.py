#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Usage: mutate.py [--again] [--quick] [--list] [--jobs N] [FOLDER|FILE...]

Shows which faults core_tests would miss. Makes one small change at a time to the sources of the
core (a mutant), and runs core_tests with it. A mutant that no test notices shows a gap in the
tests, or it changes nothing that a test could see. Without FOLDERs or FILEs it goes through the
whole core. scripts/mutants.py says what is changed.

  --again   tries only what no earlier run has noticed or come to; for use after adding tests, or
            after stopping a run; what is known of a source counts until that source changes
  --quick   runs only the tests of the changed file itself
  --list    prints the mutants and runs nothing
  --jobs N  how many to try at a time; the default is the number of processors

A mutant is named FILE:LINE:COLUMN OLD -> NEW. Each one that is not noticed is printed with its
line before and after the change, in the form of scripts/mutants-equivalent.txt. That file has the
mutants that no test can notice, with the reasons, and they are not tried. It knows them by the
text of the line and of the line above, so it stays true when lines move.

The tests are built without optimization in build/mutants/, with the library's own checks of
indexes. A mutant is first linked with the tests of its own file, and only if these pass, with all.
It counts as noticed if a test fails, the program crashes, or it takes far more processor time or
memory than usual. Exits with 1 if something was not noticed, or a listed mutant does not exist."""

import argparse
import collections
import concurrent.futures
import os
import pathlib
import re
import resource
import shlex
import subprocess
import sys
import tempfile
import threading
import zlib

from mutants import EQUIVALENT, ROOT, Equivalents, mutants_of, name_of

BUILD = ROOT / "build/mutants"
CORE = ["base", "database", "lookup", "search", "presentation"]
MEMORY_BYTES = 3 << 30
WALL_SECONDS = 1200  # for mutants that wait for something that never comes
COLUMNS = ["places", "compiled", "noticed", "equivalent", "unnoticed"]


def own_test(file):
    return f"tests/{os.path.splitext(file)[0]}_test.cpp"


def install_packages():
    script = '. scripts/common.sh; need_packages "${build_packages[@]}" "${mutation_packages[@]}"'
    if subprocess.run(["bash", "-c", script, "mutate.py"], cwd=ROOT, check=False).returncode:
        sys.exit(1)


def build():
    if not (BUILD / "build.ninja").exists():
        subprocess.run(["cmake", "-S", ROOT, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=",
                        "-DCMAKE_CXX_COMPILER=clang++", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold",
                        "-DCMAKE_CXX_FLAGS=-O0 -w -D_GLIBCXX_ASSERTIONS"], check=True)
    subprocess.run(["cmake", "--build", BUILD, "--target", "core_tests"], check=True)


def run(command, seconds="unlimited", folder=BUILD):
    """Returns whether a command succeeds with this much processor time."""
    limits = ["prlimit", "--core=0", f"--as={MEMORY_BYTES}", f"--cpu={seconds}"]
    try:
        return subprocess.run(limits + command, cwd=BUILD, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, timeout=WALL_SECONDS, check=False,
                              env=os.environ | {"TMPDIR": str(folder)}).returncode == 0
    except subprocess.TimeoutExpired:
        return False


class Bench:
    """Compiles, links and runs mutants with what the build made."""

    def __init__(self, quick):
        self.quick = quick
        ninja = ["ninja", "-C", str(BUILD)]
        answer = subprocess.run(ninja + ["-t", "commands", "core_tests"], check=True, text=True,
                                capture_output=True).stdout.splitlines()
        self.link = [word for word in shlex.split(answer[-1]) if word not in (":", "&&")]
        self.compile = {}  # by source
        for line in answer:
            words = shlex.split(line)
            if "-c" in words:
                source = os.path.relpath(words[words.index("-c") + 1], ROOT)
                self.compile[source] = words[words[0].endswith("ccache"):]
        self.users = collections.defaultdict(list)  # the core's sources that include a header
        deps = subprocess.run(ninja + ["-t", "deps"], check=True, text=True,
                              capture_output=True).stdout
        for block in deps.split("\n\n"):
            paths = [os.path.relpath(os.path.realpath(BUILD / line.strip()), ROOT)
                     for line in block.splitlines()[1:]]
            if paths and paths[0].split("/")[0] in CORE:
                for path in paths[1:]:
                    self.users[path].append(paths[0])
        self.precompiled = self.precompile()
        self.limits = {}
        self.lock = threading.Lock()

    def precompile(self):
        """Compiles the standard headers once, which halves the time of everything that follows."""
        text = "".join((ROOT / source).read_text(encoding="utf-8")
                       for source in self.compile if source.split("/")[0] in CORE)
        header = BUILD / "standard.h"
        header.write_text("\n".join(sorted(set(re.findall(r"^#include <[a-z_]+>", text, re.M)))))
        command = self.command_for(f"{CORE[0]}/text.cpp", header, f"{header}.pch")
        if not run(command[:1] + ["-x", "c++-header"] + command[1:]):
            sys.exit("mutate.py: the standard headers do not compile")
        return f"{header}.pch"

    def command_for(self, source, file, output):
        """The command that compiles `file` as the build compiles `source`."""
        command = list(self.compile[source])
        command[command.index("-o") + 1] = output
        command[-1] = file
        return command

    def try_out(self, mutant):
        """Returns what became of the mutant, as a column of the summary."""
        with tempfile.TemporaryDirectory(dir=BUILD) as name:
            folder = pathlib.Path(name)
            objects = self.compiled(mutant, folder)
            if not objects:
                return "places"
            for tests in self.test_sets(mutant.file):
                limit = self.limit_of(tests)
                if not self.make_program(folder / "core_tests", tests, objects):
                    return "places"
                if not run([folder / "core_tests", "--gtest_fail_fast"], limit, folder):
                    return "noticed"
            return "unnoticed"

    def sources_with(self, file):
        """What to compile again. Of a header, that is its source, or without one all sources that
        include it, and its tests: the linker takes what they define and drops other copies."""
        if file not in self.users:
            return [file]
        source = f"{os.path.splitext(file)[0]}.cpp"
        return ([source] if source in self.users[file] else self.users[file]) + [
            test for test in [own_test(file)] if test in self.compile]

    def compiled(self, mutant, folder):
        """The objects of all sources that the mutant changes; none if one does not compile."""
        changed_file = folder / mutant.file
        changed_file.parent.mkdir()
        text = (ROOT / mutant.file).read_text(encoding="utf-8")
        changed_file.write_text(text[:mutant.at] + mutant.new + text[mutant.at + len(mutant.old):],
                                encoding="utf-8")
        objects = []
        for source in self.sources_with(mutant.file):
            objects.append(folder / f"{os.path.basename(source)}.o")
            command = self.command_for(
                source, changed_file if source == mutant.file else ROOT / source, objects[-1])
            if not run(command[:1] + ["-I", folder, "-include-pch", self.precompiled] +
                       command[1:]):
                return []
        return objects

    def test_sets(self, file):
        """The objects of the tests to link with: first those of the file itself, or of its folder
        if it has none of its own, and then all."""
        # Without those of platform/, which share what a user has once, and so cannot run together.
        everything = [word for word in self.link
                      if "core_tests.dir/" in word and ".dir/platform/" not in word]
        beside = [word for word in everything if f".dir/{os.path.dirname(file)}/" in word]
        ending = f"{os.path.basename(own_test(file))}.o"
        own = [word for word in beside if word.endswith(ending)] or beside
        # What is linked first runs first, and these are the likeliest to fail.
        everything = beside + [word for word in everything if word not in beside]
        return [own] if self.quick else [own, everything]

    def make_program(self, program, tests, objects):
        # The mutant comes first: what is defined twice, the linker takes from there.
        rest = [word for word in self.link if "core_tests.dir/" not in word]
        rest[rest.index("-o") + 1] = program
        again = {os.path.basename(path) for path in objects}
        tests = [test for test in tests if os.path.basename(test) not in again]
        return run(rest[:1] + objects + tests + rest[1:])

    def limit_of(self, tests):
        """The processor time, in seconds, that these tests may take."""
        with self.lock:
            key = len(tests), tests[0]
            if key not in self.limits:
                with tempfile.TemporaryDirectory(dir=BUILD) as folder:
                    program = os.path.join(folder, "core_tests")
                    before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
                    if not (self.make_program(program, tests, []) and
                            any(run([program], folder=folder) for _ in range(3))):
                        sys.exit(f"mutate.py: without any change, {tests[0]} or another test fails")
                    after = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
                self.limits[key] = 1 + int(3 * (after - before))
            return self.limits[key]


class Memory:
    """What became of each mutant in all runs in this build folder, written as soon as it is known.
    A source's mutants are new ones once the source changes."""

    def __init__(self):
        self.path = BUILD / "tried.txt"
        lines = self.path.read_text(encoding="utf-8").splitlines() if self.path.exists() else []
        self.kinds = dict(line.split(" ", 1)[::-1] for line in lines)
        self.sums = {}
        self.lock = threading.Lock()

    def key_of(self, mutant):
        if mutant.file not in self.sums:
            self.sums[mutant.file] = zlib.crc32((ROOT / mutant.file).read_bytes())
        return f"{self.sums[mutant.file]:08x} {name_of(mutant)}"

    def settled(self, mutant):
        """What became of the mutant, if another run would not change it."""
        kind = self.kinds.get(self.key_of(mutant))
        return kind if kind in ("noticed", "places") else None

    def add(self, mutant, kind):
        with self.lock, self.path.open("a", encoding="utf-8") as file:
            file.write(f"{kind} {self.key_of(mutant)}\n")


def chosen_files(arguments):
    for argument in arguments or CORE:
        path = pathlib.Path(argument).resolve()
        path = path if path.exists() else ROOT / argument
        found = [path] if path.is_file() else [*path.glob("*.h"), *path.glob("*.cpp")]
        if not found:
            sys.exit(f"mutate.py: no source: {argument}")
        yield from sorted(os.path.relpath(file, ROOT) for file in found)


def print_unnoticed(mutant):
    print(f"\n# {name_of(mutant)}\n{mutant.file}\n  {mutant.above}\n- {mutant.before}\n"
          f"+ {mutant.after}", flush=True)


def print_summary(counts):
    print("\n| folder | " + " | ".join(COLUMNS) + " |\n| --- " + "| ---: " * len(COLUMNS) + "|")
    for folder in [*CORE, "all"]:
        if folder in counts:
            print(f"| {folder} | " +
                  " | ".join(str(counts[folder][column]) for column in COLUMNS) + " |")
    everything = counts["all"]
    different = everything["compiled"] - everything["equivalent"]
    if different:
        print(f"\n{100 * everything['noticed'] / everything['compiled']:.1f} % of those that "
              f"compile are noticed, {100 * everything['noticed'] / different:.1f} % of those that are not "
              "listed as equivalent.")


def main():
    parser = argparse.ArgumentParser(usage=__doc__.removeprefix("Usage: "))
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("files", nargs="*")
    arguments = parser.parse_args()

    mutants = [mutant for file in chosen_files(arguments.files) for mutant in mutants_of(file)]
    if arguments.list:
        for mutant in mutants:
            print(name_of(mutant))
        return 0
    install_packages()
    build()
    bench = Bench(arguments.quick)
    mutants = [mutant for mutant in mutants
               if mutant.file in bench.compile or mutant.file in bench.users]
    equivalents = Equivalents()
    memory = Memory()

    def kind_of(mutant):
        if mutant in equivalents:
            return "equivalent"
        kind = memory.settled(mutant) if arguments.again else None
        if kind is None:
            kind = bench.try_out(mutant)
            memory.add(mutant, kind)
        return kind

    counts = collections.defaultdict(collections.Counter)
    unnoticed = 0
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        for mutant, kind in zip(mutants, pool.map(kind_of, mutants)):
            for folder in (mutant.file.split("/")[0], "all"):
                counts[folder].update({"places", kind, "compiled"} if kind != "places"
                                      else {"places"})
            if kind == "unnoticed":
                unnoticed += 1
                print_unnoticed(mutant)
    print_summary(counts)
    stale = [] if arguments.files else equivalents.keys - equivalents.used
    for file, _, before, after in stale:
        print(f"{EQUIVALENT.name}: no such mutant any more: {file}\n- {before}\n+ {after}")
    return 1 if unnoticed or stale else 0


if __name__ == "__main__":
    sys.exit(main())

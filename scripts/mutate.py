#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""mutate.py [--again] [--quick] [--list] [--jobs N] [FOLDER|FILE...]: shows which faults core_tests would miss.

Makes one small change at a time to the sources of the core (a mutant), and runs core_tests with it.
A change that no test notices shows a gap in the tests, or changes nothing that a test could see.
Without arguments it goes through the whole core, otherwise through the folders or files named.

  --again   tries only what the last run with these files did not notice; after adding tests
  --quick   runs only the tests of the changed file itself, if it has any
  --list    prints the mutants and runs nothing
  --jobs N  how many to try at a time; the default is the number of processors

What is changed, each place once:

  < <= > >= == !=         to the neighboring comparison: < to <=, == to !=
  + - * / %  << >> & | ^  to another operator; so are += and its like
  && || !                 to the other one; ! is taken away
  123, 0x7F, 'a'          to the next number or character; any escaped character to a blank
  true, false             to the other one
  break; continue;        taken away

Counting with ++ and -- stays, because any test notices a loop that does not end. So do asserts,
tables of numbers, templates' arguments and #include lines. The formatter sees to it that operators have blanks
on both sides if, and only if, they take two operands.

A mutant is named FILE:LINE:COLUMN OLD -> NEW. Each one that is not noticed is printed with the line
before and after the change, in the form of scripts/mutants-equivalent.txt. Mutants in that file are
not tried: it has those that no test can notice, with the reasons. It knows them by the text of the
line, and if necessary of the line above, so it stays true when lines move.

The programs are built without optimization in build/mutants/, with the library's own checks of
indexes. A mutant is first linked with the tests of its own file, and only if these pass, with all.
It counts as noticed if a test fails, the program crashes, or it takes far more processor time or
memory than usual. Exits with 1 if something was not noticed, or a listed mutant no longer exists."""

import argparse
import collections
import concurrent.futures
import json
import os
import pathlib
import re
import resource
import shlex
import subprocess
import sys
import tempfile
import threading

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/mutants"
EQUIVALENT = ROOT / "scripts/mutants-equivalent.txt"
CORE = ["base", "database", "lookup", "search", "presentation"]
MEMORY_BYTES = 3 << 30
WALL_SECONDS = 300  # for mutants that wait for something that never comes

TOKEN = re.compile(r"""
    (?P<skip> //[^\n]* | /\*.*?\*/ | ^\#[^\n]* | "(?:\\.|[^"\\])*" )
  | (?P<char> (?:u8|[uUL])?'(?:\\.[0-9A-Fa-f]*|[^'\\])' )
  | (?P<number> \b\d[0-9A-Za-z_.']* )
  | (?P<word> [A-Za-z_]\w* )
  | (?P<binary> (?<=\ )(?:<<=|>>=|<=>|[-+*/%&|^<>=!]=|<<|>>|&&|\|\||[-+*/%&|^<>])(?=\s) )
  | (?P<unary> !(?=[\w(]) )
""", re.VERBOSE | re.MULTILINE | re.DOTALL)
TABLE = re.compile(r"[\s{}(),;]*(?:(?:0x[0-9A-F]+|\d+)[\s{}(),;]+)+(?://.*)?")
PAIRS = ("< <=", "> >=", "== !=", "+ -", "* /", "<< >>", "& |", "&& ||", "+= -=", "*= /=",
         "<<= >>=", "&= |=", "true false")
OTHER = dict(pair.split() for pair in PAIRS) | dict(reversed(pair.split()) for pair in PAIRS)
OTHER |= {"%": "*", "%=": "*=", "^": "|", "^=": "|=", "!": "", "break": "", "continue": ""}

Mutant = collections.namedtuple("Mutant", "file line column old new at above before after")
COLUMNS = ["places", "compiled", "noticed", "equivalent", "unnoticed"]


def changed(token):
    """What to put in the place of a token; None if it stays."""
    text = token.group()
    if token.lastgroup == "char":
        prefix, character = text[:-1].split("'", 1)
        following = " " if character.startswith("\\") else chr(ord(character) + 1)
        return f"{prefix}'{following}'" if following not in "'\\" else None
    if token.lastgroup == "number":
        digits = re.fullmatch(r"(0[xX][0-9A-Fa-f]+|\d+)([uUlLzZ]*)", text.replace("'", ""))
        if not digits:
            return None
        number = int(digits[1], 0) + 1
        return (hex(number) if digits[1][:2] in ("0x", "0X") else str(number)) + digits[2]
    return OTHER.get(text)


def asserted(text):
    """The places of `text` inside assert and static_assert."""
    places = set()
    for start in re.finditer(r"\b(?:static_)?assert\(", text):
        end = text.index(";", start.end())
        places.update(range(start.start(), end))
    return places


def mutants_of(file):
    text = (ROOT / file).read_text(encoding="utf-8")
    lines = text.splitlines()
    fixed = asserted(text)
    for token in TOKEN.finditer(text):
        new = None if token.lastgroup == "skip" or token.start() in fixed else changed(token)
        line = text.count("\n", 0, token.start())
        if new is None or TABLE.fullmatch(lines[line]):
            continue
        column = token.start() - (text.rfind("\n", 0, token.start()) + 1)
        before = lines[line]
        after = before[:column] + new + before[column + len(token.group()):]
        above = next((other.strip() for other in reversed(lines[:line]) if other.strip()), "")
        yield Mutant(file, line + 1, column + 1, token.group(), new, token.start(), above,
                     before.strip(), after.strip())


def name_of(mutant):
    return (f"{mutant.file}:{mutant.line}:{mutant.column} {mutant.old} -> "
            f"{mutant.new or 'nothing'}")


def own_test(file):
    return f"tests/{os.path.splitext(file)[0]}_test.cpp"


class Equivalents:
    """The mutants in mutants-equivalent.txt: file, line above (may be empty), before and after."""

    def __init__(self):
        self.keys = set()
        self.used = set()
        text = EQUIVALENT.read_text(encoding="utf-8") if EQUIVALENT.exists() else ""
        for block in re.split(r"\n\s*\n", text):
            lines = [line for line in block.splitlines() if not line.startswith("#")]
            parts = {line[:2]: line[2:].strip() for line in lines[1:]}
            if lines and not ({"- ", "+ "} <= parts.keys() and "# " in block):
                sys.exit(f"{EQUIVALENT.name}: lines or the reason are missing:\n{block}")
            if lines:
                self.keys.add((lines[0], parts.get("  ", ""), parts["- "], parts["+ "]))

    def __contains__(self, mutant):
        for above in (mutant.above, ""):
            key = (mutant.file, above, mutant.before, mutant.after)
            if key in self.keys:
                self.used.add(key)
                return True
        return False


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
        """What to compile again. Of the tests, those of a header, because they use what is in it
        and nothing else of the core may."""
        if file not in self.users:
            return [file]
        return self.users[file] + [test for test in [own_test(file)] if test in self.compile]

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
        """The objects of the tests to link with: those of the file itself, then all."""
        everything = [word for word in self.link if "core_tests.dir/" in word]
        own = [word for word in everything if word.endswith(f"/{own_test(file)[6:]}.o")]
        if not own:
            return [everything]
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
                    if not (self.make_program(program, tests, []) and run([program], folder=folder)):
                        sys.exit(f"mutate.py: without any change, {tests[0]} or another test fails")
                    after = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
                self.limits[key] = 1 + int(3 * (after - before))
            return self.limits[key]


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
    compiled = counts["all"]["compiled"]
    if compiled:
        print(f"\n{100 * counts['all']['noticed'] / compiled:.1f} % of those that compile are "
              "noticed.")


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
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
    build()
    bench = Bench(arguments.quick)
    mutants = [mutant for mutant in mutants
               if mutant.file in bench.compile or mutant.file in bench.users]
    equivalents = Equivalents()
    memory = BUILD / "unnoticed.txt"
    if arguments.again:
        names = set(memory.read_text(encoding="utf-8").splitlines())
        mutants = [mutant for mutant in mutants if name_of(mutant) in names]

    def kind_of(mutant):
        return "equivalent" if mutant in equivalents else bench.try_out(mutant)

    counts = collections.defaultdict(collections.Counter)
    unnoticed = []
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        for mutant, kind in zip(mutants, pool.map(kind_of, mutants)):
            for folder in (mutant.file.split("/")[0], "all"):
                counts[folder].update({"places", kind} | ({"compiled"} - {kind} if kind != "places"
                                                          else set()))
            if kind == "unnoticed":
                unnoticed.append(name_of(mutant))
                print_unnoticed(mutant)
    memory.write_text("".join(name + "\n" for name in unnoticed), encoding="utf-8")
    print_summary(counts)
    stale = [key for key in equivalents.keys - equivalents.used
             if not arguments.files and not arguments.again]
    for file, _, before, after in stale:
        print(f"{EQUIVALENT.name}: no such mutant any more: {file}\n- {before}\n+ {after}")
    return 1 if unnoticed or stale else 0


if __name__ == "__main__":
    sys.exit(main())

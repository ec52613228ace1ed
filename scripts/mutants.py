# SPDX-License-Identifier: MIT
"""What mutate.py changes in a source, and which changes scripts/mutants-equivalent.txt explains.

Each place is changed once:

  < <= > >= == !=         to the neighboring comparison: < to <=, == to !=
  + - * / %  << >> & | ^  to another operator; so are += and its like
  && || !                 to the other one; ! is taken away
  123, 0x7F, 'a'          to the next number or character; an escaped character to a blank
  true, false             to the other one
  break; continue;        taken away

Counting with ++ and -- stays, because any test notices a loop that does not end. So do asserts,
tables of numbers, templates' arguments and #include lines. The formatter sees to it that operators
have blanks on both sides if, and only if, they take two operands."""

import collections
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
EQUIVALENT = ROOT / "scripts/mutants-equivalent.txt"

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
            self.keys.update((lines[0], parts.get("  ", ""), parts["- "], line[2:].strip())
                             for line in lines if line.startswith("+ "))

    def __contains__(self, mutant):
        for above in (mutant.above, ""):
            key = (mutant.file, above, mutant.before, mutant.after)
            if key in self.keys:
                self.used.add(key)
                return True
        return False

#!/usr/bin/env python3
"""Finds colours that are written outside the one table of colours.

Usage: check_palette.py SRC. A colour is a call that makes one (RGB, Rgb, PALETTERGB) with numbers,
or a number of six hexadecimal digits that a colour type, name or call takes. Exits with 1 and a
line for each that stands in another file than forms/Palette.h.
"""
import pathlib
import re
import sys

TABLE = "forms/Palette.h"
MADE = re.compile(r"\b(?:RGB|Rgb|PALETTERGB|PALETTEINDEX)\s*\(\s*(?:0x)?[0-9A-Fa-f]+\s*[,)]")
NUMBER = re.compile(
    r"(?i)\b(?:\w*colou?r\w*|colorref|background|foreground|brush|pen)\b[^;\n]*?"
    r"\b0x(?:00|ff)?[0-9a-f]{6}\b"
)
# Pieces of colours: masks, and the bit that marks a colour of the user's scheme.
ALLOWED = re.compile(r"0x(?:FF000000|80000000|00FFFFFF)U?\b", re.IGNORECASE)


def without_comments(text):
    text = re.sub(r"/\*.*?\*/", lambda m: "\n" * m.group().count("\n"), text, flags=re.DOTALL)
    return re.sub(r"//[^\n]*", "", text)


def offences(source):
    for path in sorted(source.rglob("*")):
        name = path.relative_to(source).as_posix()
        if path.suffix not in {".h", ".cpp"} or name == TABLE:
            continue
        lines = without_comments(path.read_text(encoding="latin-1")).splitlines()
        for number, line in enumerate(lines, 1):
            line = ALLOWED.sub("", line)
            if MADE.search(line) or NUMBER.search(line):
                yield f"{name}:{number}: {line.strip()}"


def main():
    found = list(offences(pathlib.Path(sys.argv[1])))
    for line in found:
        print(line)
    print(f"{len(found)} colours outside {TABLE}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

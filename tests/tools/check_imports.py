#!/usr/bin/env python3
"""Checks that a Windows program can be loaded by Windows XP SP3 and keeps its protections.

Usage: check_imports.py LIST PROGRAM...

LIST names, one line a library, the functions of the system's libraries that are known to be there
("library: function ..."). Reported are imports that it does not name, a missing mark of address
randomisation or of data execution prevention, and sections that can be written and executed.
"""
import struct
import sys

DYNAMIC_BASE, NX_COMPAT = 0x40, 0x100
EXECUTE, WRITE = 0x20000000, 0x80000000


def known_functions(path):
    known = {}
    with open(path, encoding="ascii") as lines:
        for line in lines:
            library, separator, functions = line.partition(":")
            if separator and not line.startswith("#"):
                known.setdefault(library.strip().lower(), set()).update(functions.split())
    return known


class Program:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        header = struct.unpack_from("<I", self.data, 0x3C)[0]
        if self.data[header:header + 4] != b"PE\0\0":
            raise ValueError(f"{path} is no Windows program")
        self.count, optional_size = (struct.unpack_from("<H", self.data, header + at)[0]
                                     for at in (6, 20))
        self.optional = header + 24
        self.wide = struct.unpack_from("<H", self.data, self.optional)[0] == 0x20B
        self.table = self.optional + optional_size

    def characteristics(self):
        return struct.unpack_from("<H", self.data, self.optional + 70)[0]

    def sections(self):
        for index in range(self.count):
            at = self.table + 40 * index
            name = self.data[at:at + 8].rstrip(b"\0").decode("latin-1")
            size, address, raw_size, raw = struct.unpack_from("<IIII", self.data, at + 8)
            yield name, address, max(size, raw_size), raw, struct.unpack_from("<I", self.data, at + 36)[0]

    def offset(self, address):
        for _, start, size, raw, _ in self.sections():
            if start <= address < start + size:
                return address - start + raw
        raise ValueError(f"address {address:#x} lies in no section")

    def text(self, address):
        start = self.offset(address)
        return self.data[start:self.data.index(b"\0", start)].decode("latin-1")

    def imports(self):
        """(library, function); a function without a name is its number."""
        directory = struct.unpack_from("<I", self.data,
                                       self.optional + (112 if self.wide else 96) + 8)[0]
        entry = self.offset(directory)
        form, size, by_number = ("<Q", 8, 1 << 63) if self.wide else ("<I", 4, 1 << 31)
        while True:
            names, _, _, library, addresses = struct.unpack_from("<IIIII", self.data, entry)
            if library == 0:
                return
            at = self.offset(names or addresses)
            while value := struct.unpack_from(form, self.data, at)[0]:
                is_number = value & by_number
                yield self.text(library), str(value & 0xFFFF) if is_number else self.text(value + 2)
                at += size
            entry += 20


def findings(program, known):
    for library, function in program.imports():
        if function not in known.get(library.lower(), ()):
            yield f"imports {function} of {library}, which the list does not name"
    if not program.characteristics() & DYNAMIC_BASE:
        yield "is always loaded at the same address"
    if not program.characteristics() & NX_COMPAT:
        yield "lets data be executed"
    for name, _, _, _, flags in program.sections():
        if flags & EXECUTE and flags & WRITE:
            yield f"has section {name}, which can be written and executed"


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    known = known_functions(sys.argv[1])
    failed = False
    for path in sys.argv[2:]:
        for finding in findings(Program(path), known):
            print(f"{path} {finding}")
            failed = True
    sys.exit(failed)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Checks the help folder against the places that the program opens in it.

Usage: check_help.py [FOLDER]     FOLDER is resources/help when not given

The places are the rows of tests/support/LinkTable.h whose target is a help page; the
program is held against the same rows. Prints one line for each fault and a closing line;
exit status 1 when there is any fault. Page names are compared letter for letter, since the
program's texts are. The one target that the program spells differently from the file is
listed here and is compared the way Windows does.
"""

import collections
import pathlib
import re
import sys
from html.parser import HTMLParser
from urllib.parse import unquote, urlsplit

TABLE = pathlib.Path(__file__).resolve().parents[1] / "support" / "LinkTable.h"

# A row of the table that leads into the help folder: {"Window.control", "\\help\\PAGE", true}.
HELP_ROW = re.compile(r'\{\s*"[^"]+",\s*"\\\\help\\\\([^"]+)",\s*true\s*\}')
HELP_FOLDER = r'"\\help\\'

# The program spells this one with a small g; on Windows it is Graph.htm all the same.
IN_ANY_CASE = ["graph.htm#DetailedLog"]

VOID = {"area", "base", "br", "col", "hr", "img", "input", "link", "meta", "param"}


class Page(HTMLParser):
    """What one page holds: its anchors, links, pictures and frame."""

    def __init__(self):
        super().__init__(convert_charrefs=True)
        self.lang = self.title = ""
        self.anchors = []
        self.bareNames = []
        self.links = []
        self.pictures = []
        self.sheets = []
        self.navigation = []
        self.headings = 0
        self.faults = []
        self.open = []
        self.inNavigation = 0
        self.inTitle = False

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        if tag not in VOID:
            self.open.append(tag)
            if attrs.get("role") == "navigation":
                self.inNavigation = len(self.open)
        if tag == "html":
            self.lang = attrs.get("lang") or ""
        self.inTitle = tag == "title"
        self.headings += tag == "h1"
        self.note_anchor(tag, attrs)
        self.note_link(tag, attrs)

    def note_anchor(self, tag, attrs):
        if attrs.get("id"):
            self.anchors.append(attrs["id"])
            if tag == "a" and attrs.get("name") != attrs["id"]:
                self.faults.append(f"anchor {attrs['id']} has no name of the same text")
        elif tag == "a" and attrs.get("name"):
            self.faults.append(f"anchor name {attrs['name']} has no id of the same text")

    def note_link(self, tag, attrs):
        if tag == "a" and "href" in attrs:
            self.links.append(attrs["href"] or "")
            if self.inNavigation:
                self.navigation.append(attrs["href"] or "")
        if tag == "link" and attrs.get("rel") == "stylesheet":
            self.sheets.append(attrs.get("href") or "")
        if tag == "img":
            self.pictures.append(attrs.get("src") or "")
            if "alt" not in attrs:
                self.faults.append(f"picture {attrs.get('src')} has no alt text")
            elif not attrs["alt"] and attrs.get("src") != "img/vantrel.png":
                self.faults.append(f"picture {attrs.get('src')} has an empty alt text")
        if tag in ("script", "iframe", "object", "embed", "base"):
            self.faults.append(f"element {tag} has no place in a help page")

    def handle_endtag(self, tag):
        if not self.open or self.open[-1] != tag:
            line = self.getpos()[0]
            self.faults.append(f"line {line}: </{tag}> closes {self.open[-1:] or 'nothing'}")
            return
        if self.inNavigation == len(self.open):
            self.inNavigation = 0
        self.open.pop()
        self.inTitle = False

    def handle_data(self, data):
        if self.inTitle:
            self.title += data


def read_page(path):
    page = Page()
    raw = path.read_bytes()
    for number, line in enumerate(raw.split(b"\n"), 1):
        if any(byte > 126 or (byte < 32 and byte not in (9, 13)) for byte in line):
            page.faults.append(f"line {number}: not plain ASCII")
    if b"\r" in raw and raw.count(b"\r\n") != raw.count(b"\n"):
        page.faults.append("mixes two kinds of line end")
    if not raw.lower().startswith(b"<!doctype html"):
        page.faults.append("does not begin with a document type")
    page.feed(raw.decode("latin-1"))
    page.close()
    if page.open:
        page.faults.append(f"leaves open: {', '.join(page.open)}")
    return page


def check_frame(page):
    if not page.title.strip():
        yield "has no title"
    if not page.lang:
        yield "names no language"
    if page.sheets != ["style.css"]:
        yield f"style sheets are {page.sheets}, not style.css alone"
    if page.headings != 1:
        yield f"has {page.headings} main headings instead of 1"
    if not page.navigation:
        yield "has no navigation"
    for anchor, count in collections.Counter(page.anchors).items():
        if count > 1:
            yield f"id {anchor} stands {count} times"


def check_external(address):
    parts = urlsplit(address)
    host = (parts.hostname or "").lower()
    if parts.scheme in ("http", "https") and (host == "example" or host.endswith(".example")):
        return None
    return f"leads outside: {address}"


def split_target(target):
    path, _, anchor = target.partition("#")
    return unquote(path), unquote(anchor)


def check_target(pages, own, target):
    """None when the target is there, else what is wrong with it."""
    name, anchor = split_target(target)
    name = name or own
    if name not in pages:
        return f"no page {name!r} (as in {target!r})"
    if anchor and anchor not in pages[name].anchors:
        return f"no anchor {anchor!r} in {name!r}"
    return None


def check_file(files, reference):
    name = unquote(reference)
    return None if name in files else f"no file {name!r}"


def check_links(pages, files, own, page):
    for link in page.links:
        outside = urlsplit(link).scheme or link.startswith("//")
        fault = check_external(link) if outside else check_target(pages, own, link)
        if fault:
            yield f"link: {fault}"
    for reference in page.pictures + page.sheets:
        fault = check_file(files, reference)
        if fault:
            yield f"reference: {fault}"


def check_sheet(folder, files):
    sheet = folder / "style.css"
    text = sheet.read_text("latin-1") if sheet.exists() else ""
    for reference in re.findall(r"url\(\s*['\"]?([^'\")]+)", text):
        fault = check_file(files, reference)
        if fault:
            yield f"style.css: {fault}"
    if "@import" in text:
        yield "style.css: imports another sheet"


def read_targets(table):
    """The pages and anchors that the table leads to, each once, and what is wrong with it."""
    text = table.read_text("latin-1") if table.is_file() else ""
    rows = HELP_ROW.findall(text)
    faults = []
    if not rows:
        faults.append(f"{table}: no row leads to a help page")
    if text.count(HELP_FOLDER) != len(rows):
        faults.append(f"{table}: {text.count(HELP_FOLDER)} help pages, but {len(rows)} rows")
    faults += [f"{table}: no row leads to {t!r}" for t in IN_ANY_CASE if t not in rows]
    return list(dict.fromkeys(rows)), faults


def check_target_in_any_case(pages, target):
    name, anchor = split_target(target)
    for own in pages:
        if own.lower() == name.lower():
            return check_target(pages, "", f"{own}#{anchor}")
    return f"no page {name!r}, in whatever case"


def check_program_targets(pages, targets):
    for target in targets:
        if target in IN_ANY_CASE:
            fault = check_target_in_any_case(pages, target)
        else:
            fault = check_target(pages, "", target)
        if fault:
            yield f"opened by the program: {fault}"


def check_reachable(pages):
    """Each page's navigation must lead to all pages, so that none is a dead end."""
    for own, page in pages.items():
        reached = {split_target(link)[0] or own for link in page.navigation}
        for name in sorted(set(pages) - reached):
            yield f"{own}: its navigation leaves out {name!r}"


def check_same_column(pages):
    """The column of contents is repeated in each page and must not drift apart."""
    columns = collections.Counter(tuple(page.navigation) for page in pages.values())
    usual = columns.most_common(1)[0][0] if columns else ()
    for own, page in pages.items():
        if tuple(page.navigation) != usual:
            yield f"{own}: its navigation differs from the other pages'"


def check_names(files):
    """Two names that differ in case alone are one file on Windows."""
    for name, count in collections.Counter(f.lower() for f in files).items():
        if count > 1:
            yield f"{name}: {count} files differ in case alone"


def check_folder(folder, targets):
    files = {str(p.relative_to(folder).as_posix()) for p in folder.rglob("*") if p.is_file()}
    pages = {name: read_page(folder / name) for name in sorted(files) if name.endswith(".htm")}
    faults = list(check_names(files)) + list(check_program_targets(pages, targets))
    for own, page in pages.items():
        own_faults = page.faults + list(check_frame(page))
        own_faults += list(check_links(pages, files, own, page))
        faults += [f"{own}: {fault}" for fault in own_faults]
    faults += list(check_reachable(pages)) + list(check_same_column(pages))
    faults += list(check_sheet(folder, files))
    used = {unquote(r) for page in pages.values() for r in page.pictures}
    return pages, used, faults


def main(arguments):
    default = pathlib.Path(__file__).resolve().parents[2] / "resources" / "help"
    folder = pathlib.Path(arguments[0]) if arguments else default
    if not folder.is_dir():
        print(f"{folder}: no such folder")
        return 1
    targets, faults = read_targets(TABLE)
    pages, used, found = check_folder(folder, targets)
    faults += found
    for fault in faults:
        print(fault)
    links = sum(len(page.links) for page in pages.values())
    print(f"help: {len(pages)} pages, {len(targets)} targets, {links} links, "
          f"{len(used)} pictures, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

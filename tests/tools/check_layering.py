#!/usr/bin/env python3
"""Checks what a build alone cannot see of the dependency rule.

usage: check_layering.py SRC

Reads the table of components from SRC/CMakeLists.txt and every #include under SRC:
- an include of another component's header needs that component in the table's row, directly or by way of a
  component that is in it;
- the operating system's headers are included only under win32/ and app/;
- no two files include each other in a circle;
- every folder with code is a component of the table (app/ has a build file of its own).
Prints one line a violation; the exit code says whether there was one.
"""
import pathlib
import re
import sys

COMPONENT = re.compile(r"vantrel_component\(\s*([\w/]+)(?:\s+LINKS\s+([^)]*))?\)")
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', re.M)
SYSTEM = {
    "windows.h", "winsock2.h", "windef.h", "winbase.h", "winuser.h", "wingdi.h", "winreg.h",
    "commctrl.h", "commdlg.h", "shellapi.h", "shlobj.h", "shlwapi.h", "shobjidl.h", "mmsystem.h",
    "ole2.h", "oleacc.h", "objbase.h", "objidl.h", "oleauto.h", "uxtheme.h", "richedit.h",
    "imagehlp.h", "dbghelp.h", "tlhelp32.h", "psapi.h", "process.h", "io.h", "direct.h", "tchar.h",
    "windowsx.h", "winver.h", "winnls.h", "wincodec.h", "gdiplus.h", "vsstyle.h", "initguid.h",
}
OUTSIDE_THE_TABLE = {"app"}


def read_table(src):
    text = re.sub(r"#.*", "", (src / "CMakeLists.txt").read_text())
    return {component: set((links or "").split()) for component, links in COMPONENT.findall(text)}


def close(table):
    """What each component may include: its row, the rows of those, and so on."""
    closed = {}
    for component in table:
        reached, todo = set(), [component]
        while todo:
            for used in table.get(todo.pop(), ()):
                if used not in reached:
                    reached.add(used)
                    todo.append(used)
        closed[component] = reached | {component}
    return closed


def code_files(src):
    return sorted(p for p in src.rglob("*") if p.suffix in (".h", ".cpp", ".inc"))


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.S)


def includes_of(path):
    return INCLUDE.findall(without_comments(path.read_text(encoding="utf-8")))


def component_of(src, path):
    component = path.parent.relative_to(src).as_posix()
    return "app" if component == "app" or component.startswith("app/") else component


def is_own_system_place(component):
    return component == "app" or component.split("/")[-1] == "win32"


def check_includes(src, table, closed):
    for path in code_files(src):
        component, name = component_of(src, path), path.relative_to(src).as_posix()
        for own, system in includes_of(path):
            if (system or own).lower() in SYSTEM and not is_own_system_place(component):
                yield f"{name}: includes the operating system's <{system or own}>"
            used = str(pathlib.PurePosixPath(own).parent) if own else ""
            if used in table and component not in OUTSIDE_THE_TABLE:
                if used not in closed.get(component, {component}):
                    yield f"{name}: may not use {own}"
            elif own and (src / own).exists() is False and (path.parent / own).exists():
                yield f'{name}: include "{own}" by its component'


def check_folders(src, table):
    for component in sorted({component_of(src, path) for path in code_files(src)}):
        if component not in table and component not in OUTSIDE_THE_TABLE:
            yield f"{component}: is not a component of the table"


def check_table(table):
    for component, links in table.items():
        for used in sorted(links - set(table)):
            yield f"{component}: links {used}, which is no component"
    for component in table:
        if component in set().union(*(close(table)[used] for used in table[component] & set(table)), set()):
            yield f"{component}: uses itself by way of others"


def check_circles(src):
    """One line a circle, from the first file of it that is met."""
    graph = {}
    for path in code_files(src):
        own = [src / own for own, _ in includes_of(path) if own]
        graph[path] = [target for target in own if target.exists()]
    state, trail = {}, []

    def visit(path):
        state[path] = "open"
        trail.append(path)
        for target in graph.get(path, ()):
            if state.get(target) == "open":
                circle = trail[trail.index(target):] + [target]
                yield "circle: " + " -> ".join(p.relative_to(src).as_posix() for p in circle)
            elif target not in state:
                yield from visit(target)
        trail.pop()
        state[path] = "done"

    for path in graph:
        if path not in state:
            yield from visit(path)


def violations(src):
    table = read_table(src)
    closed = close(table)
    yield from check_table(table)
    yield from check_folders(src, table)
    yield from check_includes(src, table, closed)
    yield from check_circles(src)


def main(arguments):
    if len(arguments) != 2:
        print(__doc__)
        return 2
    src = pathlib.Path(arguments[1]).resolve()
    files = code_files(src)
    if not files:
        print(f"no code under {src}")
        return 2
    found = list(violations(src))
    for line in found:
        print(line)
    print(f"{len(files)} files, {len(read_table(src))} components, {len(found)} violations")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))

#!/usr/bin/env python3
"""Feeds check_layering.py miniature source trees, valid and invalid, and checks what it reports."""
import pathlib
import tempfile
import unittest

import check_layering

TABLE = """
vantrel_component(text)
vantrel_component(forms LINKS text)
vantrel_component(windows LINKS forms)
# vantrel_component(ghost)
if(WIN32)
  vantrel_component(forms/win32 LINKS forms)
endif()
"""

VALID = {
    "CMakeLists.txt": TABLE,
    "text/Trim.h": "#include <string>\n",
    "forms/Form.h": '#include "text/Trim.h"\n',
    "forms/Form.cpp": '#include "forms/Form.h"\n',
    "windows/Main.h": '#include "forms/Form.h"\n#include "text/Trim.h"\n',
    "forms/win32/Window.cpp": '#include <windows.h>\n#include "forms/Form.h"\n',
    "app/Main.cpp": '#include <windows.h>\n#include "windows/Main.h"\n',
}


class Layering(unittest.TestCase):
    def violations(self, **changes):
        tree = dict(VALID)
        tree.update(changes.pop("files", {}))
        with tempfile.TemporaryDirectory() as folder:
            src = pathlib.Path(folder)
            for name, content in tree.items():
                (src / name).parent.mkdir(parents=True, exist_ok=True)
                (src / name).write_text(content)
            return list(check_layering.violations(src))

    def one_violation(self, words, files):
        found = self.violations(files=files)
        self.assertEqual(1, len(found), found)
        self.assertIn(words, found[0])

    def test_a_valid_tree_has_no_violation(self):
        self.assertEqual([], self.violations())

    def test_an_include_against_the_table(self):
        self.one_violation("text/Trim.cpp: may not use forms/Form.h",
                        {"text/Trim.cpp": '#include "forms/Form.h"\n'})

    def test_a_component_below_does_not_see_the_one_beside(self):
        self.one_violation("may not use forms/win32/Window.h",
                        {"windows/Main.cpp": '#include "forms/win32/Window.h"\n',
                         "forms/win32/Window.h": ""})

    def test_the_system_in_a_portable_component(self):
        self.one_violation("forms/Form.cpp: includes the operating system's <windows.h>",
                        {"forms/Form.cpp": "#include <windows.h>\n"})

    def test_the_system_in_other_letters(self):
        self.one_violation("<Windows.h>", {"forms/Form.cpp": "  #  include <Windows.h>\n"})

    def test_a_circle_of_headers(self):
        self.one_violation("circle: forms/A.h -> forms/B.h -> forms/A.h",
                        {"forms/A.h": '#include "forms/B.h"\n',
                         "forms/B.h": '#include "forms/A.h"\n'})

    def test_a_circle_of_sources(self):
        self.one_violation("circle: forms/Form.cpp -> forms/Form.cpp",
                        {"forms/Form.cpp": '#include "forms/Form.cpp"\n'})

    def test_a_folder_that_is_no_component(self):
        self.one_violation("ghost: is not a component", {"ghost/Ghost.h": ""})

    def test_an_include_without_its_component(self):
        self.one_violation('include "Form.h" by its component', {"forms/Form.cpp": '#include "Form.h"\n'})

    def test_components_that_use_each_other(self):
        found = self.violations(files={"CMakeLists.txt": TABLE.replace("(text)", "(text LINKS forms)")})
        self.assertIn("text: uses itself by way of others", found)

    def test_a_link_to_no_component(self):
        self.one_violation("links attic, which is no component",
                        {"CMakeLists.txt": TABLE + "vantrel_component(app2 LINKS attic)\n"})

    def test_comments_do_not_count(self):
        self.assertEqual([], self.violations(
            files={"text/Trim.cpp": '/*\n#include "forms/Form.h"\n*/\n// #include <windows.h>\n'}))


if __name__ == "__main__":
    unittest.main()

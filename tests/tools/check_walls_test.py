#!/usr/bin/env python3
"""Feeds check_walls.py miniature houses, sound and broken, and looks at what it says."""
import pathlib
import tempfile
import unittest

import check_walls

TABLE = """
vantrel_room(text)
vantrel_room(forms LINKS text)
vantrel_room(windows LINKS forms)
# vantrel_room(ghost)
if(WIN32)
  vantrel_room(forms/win32 LINKS forms)
endif()
"""

SOUND = {
    "CMakeLists.txt": TABLE,
    "text/Trim.h": "#include <string>\n",
    "forms/Form.h": '#include "text/Trim.h"\n',
    "forms/Form.cpp": '#include "forms/Form.h"\n',
    "windows/Main.h": '#include "forms/Form.h"\n#include "text/Trim.h"\n',
    "forms/win32/Window.cpp": '#include <windows.h>\n#include "forms/Form.h"\n',
    "app/Main.cpp": '#include <windows.h>\n#include "windows/Main.h"\n',
}


class Walls(unittest.TestCase):
    def breaches(self, **changes):
        house = dict(SOUND)
        house.update(changes.pop("files", {}))
        with tempfile.TemporaryDirectory() as folder:
            src = pathlib.Path(folder)
            for name, content in house.items():
                (src / name).parent.mkdir(parents=True, exist_ok=True)
                (src / name).write_text(content)
            return list(check_walls.breaches(src))

    def one_breach(self, words, files):
        found = self.breaches(files=files)
        self.assertEqual(1, len(found), found)
        self.assertIn(words, found[0])

    def test_a_sound_house_has_no_breach(self):
        self.assertEqual([], self.breaches())

    def test_an_include_against_the_table(self):
        self.one_breach("text/Trim.cpp: may not use forms/Form.h",
                        {"text/Trim.cpp": '#include "forms/Form.h"\n'})

    def test_a_room_below_does_not_see_the_one_beside(self):
        self.one_breach("may not use forms/win32/Window.h",
                        {"windows/Main.cpp": '#include "forms/win32/Window.h"\n',
                         "forms/win32/Window.h": ""})

    def test_the_system_inside_the_house(self):
        self.one_breach("forms/Form.cpp: includes the operating system's <windows.h>",
                        {"forms/Form.cpp": "#include <windows.h>\n"})

    def test_the_system_in_other_letters(self):
        self.one_breach("<Windows.h>", {"forms/Form.cpp": "  #  include <Windows.h>\n"})

    def test_a_circle_of_headers(self):
        self.one_breach("circle: forms/A.h -> forms/B.h -> forms/A.h",
                        {"forms/A.h": '#include "forms/B.h"\n',
                         "forms/B.h": '#include "forms/A.h"\n'})

    def test_a_circle_of_sources(self):
        self.one_breach("circle: forms/Form.cpp -> forms/Form.cpp",
                        {"forms/Form.cpp": '#include "forms/Form.cpp"\n'})

    def test_a_folder_that_is_no_room(self):
        self.one_breach("ghost: is not a room", {"ghost/Ghost.h": ""})

    def test_an_include_without_its_room(self):
        self.one_breach('include "Form.h" by its room', {"forms/Form.cpp": '#include "Form.h"\n'})

    def test_rooms_that_use_each_other(self):
        found = self.breaches(files={"CMakeLists.txt": TABLE.replace("(text)", "(text LINKS forms)")})
        self.assertIn("text: uses itself by way of others", found)

    def test_a_link_to_no_room(self):
        self.one_breach("links attic, which is no room",
                        {"CMakeLists.txt": TABLE + "vantrel_room(app2 LINKS attic)\n"})

    def test_comments_do_not_count(self):
        self.assertEqual([], self.breaches(
            files={"text/Trim.cpp": '/*\n#include "forms/Form.h"\n*/\n// #include <windows.h>\n'}))


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Feeds check_palette.py small sources, sound and broken, and looks at what it finds."""
import pathlib
import tempfile
import unittest

import check_palette


class CheckPalette(unittest.TestCase):
    def found(self, text, name="forms/Other.cpp"):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, name)
            path.parent.mkdir(parents=True)
            path.write_text(text)
            return list(check_palette.offences(pathlib.Path(folder)))

    def test_a_made_colour_is_found(self):
        self.assertEqual(len(self.found("x = RGB(1, 2, 3);")), 1)
        self.assertEqual(len(self.found("x = Rgb(0xFF, 0, 0);")), 1)

    def test_a_number_that_is_a_colour_is_found_with_its_line(self):
        self.assertEqual(self.found("\nColor c = 0x00FFC0C0;"),
                         ["forms/Other.cpp:2: Color c = 0x00FFC0C0;"])

    def test_the_table_comments_and_masks_are_let_through(self):
        self.assertEqual(self.found("x = Rgb(1, 2, 3);", "forms/Palette.h"), [])
        self.assertEqual(self.found("// RGB(1, 2, 3)\n/* Color c = 0x00FFC0C0; */"), [])
        self.assertEqual(self.found("color &= ~0xFF000000U;"), [])

    def test_other_numbers_are_none(self):
        self.assertEqual(self.found("constexpr DWORD Access = 0x0F003F;"), [])


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Feeds check_help.py tables and help folders, sound and broken, and looks at what it finds."""
import pathlib
import shutil
import tempfile
import unittest

import check_help

PAGES = pathlib.Path(__file__).resolve().parents[2] / "resources" / "help"
LOG = r'{"FrmFrameLog.Label46", "\\help\\graph.htm#DetailedLog", true},'


class ReadTargets(unittest.TestCase):
    def read(self, text):
        with tempfile.TemporaryDirectory() as folder:
            table = pathlib.Path(folder, "LinkTable.h")
            table.write_text(text)
            return check_help.read_targets(table)

    def test_rows_are_read_over_two_lines_and_each_target_once(self):
        row = '{"FrmFrameMain.Label9", "\\\\help\\\\settings.htm#Hidetotray",\n     true},\n'
        outside = '{"frmMain.Label29", "\\"www.qorvel.example/Vantrel/Help.htm\\"", false},\n'
        self.assertEqual(self.read(row + outside + row + LOG),
                         (["settings.htm#Hidetotray", "graph.htm#DetailedLog"], []))

    def test_a_table_without_a_help_page_is_a_fault(self):
        self.assertIn("no row leads to a help page", self.read("")[1][0])

    def test_a_missing_table_is_a_fault(self):
        self.assertIn("no row leads to a help page",
                      check_help.read_targets(pathlib.Path("nowhere", "LinkTable.h"))[1][0])

    def test_a_row_that_cannot_be_read_is_a_fault(self):
        faults = self.read(LOG + r'{"frmMain.LnkHelp", Base, "\\help\\welcome.htm", true},')[1]
        self.assertEqual(len(faults), 1)
        self.assertIn("2 help pages, but 1 rows", faults[0])

    def test_a_spelling_that_the_table_no_longer_has_is_a_fault(self):
        self.assertIn("no row leads to 'graph.htm#DetailedLog'",
                      self.read(LOG.replace("graph", "Graph"))[1][0])


class CheckFolder(unittest.TestCase):
    def faults(self, targets=(), dropped=None):
        with tempfile.TemporaryDirectory() as place:
            folder = pathlib.Path(place, "help")
            shutil.copytree(PAGES, folder)
            if dropped:
                (folder / dropped).unlink()
            return check_help.check_folder(folder, list(targets))[2]

    def test_the_one_odd_spelling_and_an_anchor_are_found(self):
        self.assertEqual(self.faults(["graph.htm#DetailedLog", "settings.htm#Hidetotray"]), [])

    def test_another_odd_spelling_or_anchor_is_a_fault(self):
        for target in ("Welcome.htm", "settings.htm#HideToTray", "log.htm"):
            self.assertEqual(len(self.faults([target])), 1, target)

    def test_a_page_picture_or_sheet_that_is_not_there_is_a_fault(self):
        for dropped in ("Graph.htm", "img/graph.png", "img/icon-graph.png", "style.css"):
            self.assertTrue(self.faults(dropped=dropped), dropped)

    def test_a_page_that_only_the_program_opens_is_missed(self):
        self.assertTrue(any("opened by the program" in fault for fault in
                            self.faults(["graph.htm#DetailedLog"], dropped="Graph.htm")))


if __name__ == "__main__":
    unittest.main()

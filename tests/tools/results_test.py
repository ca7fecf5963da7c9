#!/usr/bin/env python3
"""Tests of tools/results: nothing that went wrong may be counted as passed, or not at all."""
import contextlib
import importlib.machinery
import importlib.util
import io
import os
import sys
import tempfile
import unittest

TOOL = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools", "results")
loader = importlib.machinery.SourceFileLoader("results", TOOL)
results = importlib.util.module_from_spec(importlib.util.spec_from_loader("results", loader))
sys.dont_write_bytecode = True  # no cache folder beside the tool
loader.exec_module(results)

PASSED = '<testcase classname="A" name="One" status="run"/>'
FAILED = '<testcase classname="A" name="Two" status="run"><failure>1\n2</failure></testcase>'
SKIPPED = '<testcase classname="A" name="Three" status="run"><skipped/></testcase>'


class Results(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def gather(self, tests, statuses, cases):
        """tests: name to 'is a GoogleTest program'; statuses: name to CTest's word for its end."""
        results.programs = lambda _: tests
        rows = "".join(f'<testcase name="{n}" status="{s}"><system-out>last words</system-out>'
                       "</testcase>" for n, s in statuses.items())
        junit = self.write("junit", f"<testsuite>{rows}</testsuite>")
        for name, text in cases.items():
            self.write(name + ".xml", text)
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            results.gather("run", "", self.folder, junit)
        return [row.split("\t") for row in output.getvalue().splitlines()]

    def states(self, *arguments):
        return [row[0] for row in self.gather(*arguments)]

    def suite(self, *cases):
        return "<testsuites><testsuite>" + "".join(cases) + "</testsuite></testsuites>"

    def test_each_case_is_a_row(self):
        rows = self.gather({"p": True}, {"p": "fail"},
                           {"p": self.suite(PASSED, FAILED, SKIPPED)})
        self.assertEqual([["passed", "run: p: A.One", ""], ["failed", "run: p: A.Two", "1\\n2"],
                          ["skipped", "run: p: A.Three", ""]], rows)

    def test_a_program_without_results_fails_with_its_last_words(self):
        (row,) = self.gather({"p": True}, {"p": "fail"}, {})
        self.assertEqual(["failed", "run: p"], row[:2])
        self.assertIn("last words", row[2])

    def test_results_cut_short_fail(self):
        self.assertEqual(["failed"], self.states({"p": True}, {"p": "run"}, {"p": "<testsu"}))

    def test_a_program_that_fails_after_its_cases_passed_fails(self):
        self.assertEqual(["passed", "failed"],
                         self.states({"p": True}, {"p": "fail"}, {"p": self.suite(PASSED)}))

    def test_a_second_run_counts_in_place_of_the_first(self):
        first, second = self.suite(PASSED, FAILED), self.suite(PASSED)
        self.assertEqual(["passed"], self.states({"p": True}, {"p": "run"},
                                                 {"p": first, "p_1": second}))
        # It crashed before it left its results: the first run's failure stands.
        os.remove(os.path.join(self.folder, "p_1.xml"))
        self.assertEqual(["passed", "failed"],
                         self.states({"p": True}, {"p": "fail"}, {"p": first}))

    def test_a_program_that_ran_no_case_fails(self):
        self.assertEqual(["skipped", "failed"],
                         self.states({"p": True}, {"p": "run"}, {"p": self.suite(SKIPPED)}))

    def test_a_test_that_never_ran_fails(self):
        self.assertEqual(["failed"], self.states({"p": True}, {}, {}))

    def test_any_other_test_is_one_row(self):
        self.assertEqual(["passed", "failed"], self.states({"a": False, "b": False},
                                                           {"a": "run", "b": "fail"}, {}))

    def report(self, rows):
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            status = results.report([self.write("rows.tsv", rows)])
        return status, output.getvalue().splitlines()[-1]

    def test_the_closing_line(self):
        self.assertEqual((0, "2 passed, 0 failed"), self.report("passed\ta\t\npassed\tb\t\n"))
        self.assertEqual((1, "1 passed, 1 failed"), self.report("passed\ta\t\nfailed\tb\tx\\ny\n"))

    def test_a_run_without_any_result_fails(self):
        self.assertEqual((1, "0 passed, 0 failed"), self.report(""))


if __name__ == "__main__":
    unittest.main()

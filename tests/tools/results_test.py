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

PASSED = "begun\tA.One\npassed\tA.One\t0.1\t\n"
FAILED = "begun\tA.Two\nfailed\tA.Two\t0.2\t1\\n2\n"
SKIPPED = "begun\tA.Three\nskipped\tA.Three\t0\t\n"
RUNNING = "begun\tA.Four\n"


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
            self.write(name + ".rows", text)
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            results.gather("run", "", self.folder, junit)
        return [row.split("\t") for row in output.getvalue().splitlines()]

    def states(self, *arguments):
        return [row[0] for row in self.gather(*arguments)]

    def test_each_case_is_a_row(self):
        rows = self.gather({"p": True}, {"p": "fail"}, {"p": PASSED + FAILED + SKIPPED})
        self.assertEqual([["passed", "run: p: A.One", ""], ["failed", "run: p: A.Two", "1\\n2"],
                          ["skipped", "run: p: A.Three", ""]], rows)

    def test_a_program_without_results_fails_with_its_last_words(self):
        (row,) = self.gather({"p": True}, {"p": "fail"}, {})
        self.assertEqual(["failed", "run: p"], row[:2])
        self.assertIn("last words", row[2])

    def test_what_had_run_before_the_program_was_ended_counts(self):
        rows = self.gather({"p": True}, {"p": "fail"}, {"p": PASSED + RUNNING})
        self.assertEqual([["passed", "run: p: A.One"], ["failed", "run: p: A.Four"]],
                         [row[:2] for row in rows])
        self.assertIn("last words", rows[1][2])

    def test_what_had_run_before_the_whole_run_was_ended_counts(self):
        rows = self.gather({"p": True}, {}, {"p": PASSED + RUNNING})
        self.assertEqual([["passed", "run: p: A.One"], ["failed", "run: p: A.Four"]],
                         [row[:2] for row in rows])
        self.assertEqual(["passed", "failed"], self.states({"p": True}, {}, {"p": PASSED}))

    def test_a_program_that_fails_after_its_cases_passed_fails(self):
        self.assertEqual(["passed", "failed"],
                         self.states({"p": True}, {"p": "fail"}, {"p": PASSED}))

    def test_a_program_that_ran_no_case_fails(self):
        self.assertEqual(["skipped", "failed"],
                         self.states({"p": True}, {"p": "run"}, {"p": SKIPPED}))

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

#!/usr/bin/env python3
"""compare.py on two small runs: ratios, marks, rows in one run only, failures."""
import contextlib
import io
import json
import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import compare  # noqa: E402


def row(op, ours, error=""):
    return {"op": op, "size": "512x512", "ours": ours, "opencv": None, "fftw": None, "bound": None,
            "error": error}


class CompareTest(unittest.TestCase):
    def run_compare(self, before, after, *extra):
        with tempfile.TemporaryDirectory() as d:
            paths = []
            for name, rows in (("b.json", before), ("a.json", after)):
                paths.append(os.path.join(d, name))
                with open(paths[-1], "w") as f:
                    json.dump({"header": "", "bandwidth": [], "rows": rows}, f)
            out = io.StringIO()
            with contextlib.redirect_stdout(out):
                self.assertEqual(compare.main(paths + list(extra)), 0)
            return out.getvalue().splitlines()

    def test_ratios_marks_and_geomean(self):
        lines = self.run_compare([row("A", 2.0), row("B", 1.0), row("C", 1.0)],
                                 [row("A", 1.0), row("B", 4.0), row("C", 1.02)])
        self.assertTrue(lines[1].startswith("A ") and lines[1].endswith("0.50+"), lines[1])
        self.assertTrue(lines[2].endswith("4.00-"), lines[2])
        self.assertTrue(lines[3].endswith("1.02 "), lines[3])  # within the 5% threshold
        self.assertEqual(lines[-1], "compared 3, geomean after/before = 1.27")  # (0.5 * 4 * 1.02) ** (1/3)

    def test_rows_in_one_run_and_failed_rows_are_listed_not_compared(self):
        lines = self.run_compare([row("A", 1.0), row("Gone", 1.0), row("F", 1.0)],
                                 [row("A", 1.0), row("New", 1.0), row("F", None, "status -8")])
        text = "\n".join(lines)
        self.assertIn("only in before", text)
        self.assertIn("only in after", text)
        self.assertIn("failed: before -; after status -8", text)
        self.assertEqual(lines[-1], "compared 1, geomean after/before = 1.00")


if __name__ == "__main__":
    unittest.main()

"""Which branches script/gcov-branches marks as branches of exceptions."""
import importlib.util
import sys
import unittest
from importlib.machinery import SourceFileLoader

loader = SourceFileLoader("gcov_branches", sys.argv.pop(1))
gcov_branches = importlib.util.module_from_spec(importlib.util.spec_from_loader("gcov_branches", loader))
sys.dont_write_bytecode = True
loader.exec_module(gcov_branches)


class Marked(unittest.TestCase):
    def branches(self, text, leads_to_handler=None):
        marked = gcov_branches.marked(text, leads_to_handler or {})
        return [line for line in marked.split("\n") if line.startswith("branch")]

    def test_branches_of_executed_code_stay(self):
        text = "        2:    5:    if (x)\n        2:    5-block  0\nbranch  0 taken 2 (fallthrough)\nbranch  1 taken 0"
        self.assertEqual(self.branches(text), ["branch  0 taken 2 (fallthrough)", "branch  1 taken 0"])

    def test_branches_of_code_that_only_exceptions_reach_are_marked(self):
        text = ("        2:    5:    f(a, b);\n        2:    5-block  0\nbranch  0 taken 0\n"
                "    $$$$$:    5-block  1\nbranch  1 never executed")
        self.assertEqual(self.branches(text), ["branch  0 taken 0", "branch 1 taken 0 (throw)"])

    def test_branches_of_other_code_that_was_not_executed_stay(self):
        text = "    #####:    5:    if (x)\n    %%%%%:    5-block  0\nbranch  0 never executed\nbranch  1 never executed"
        self.assertEqual(self.branches(text), ["branch  0 never executed", "branch  1 never executed"])

    def test_branches_to_handlers_are_marked_where_they_were_not_executed(self):
        text = "    #####:    5:    f();\nbranch  0 never executed\nbranch  1 never executed"
        self.assertEqual(self.branches(text, {5: [False, True]}), ["branch  0 never executed", "branch 1 taken 0 (throw)"])

    def test_copies_of_a_template_are_marked_in_order(self):
        text = "\n".join(["    #####:    5:    f();", "branch  0 never executed", "branch  1 never executed"] * 2)
        self.assertEqual(self.branches(text, {5: [False, True, True, False]}),
                         ["branch  0 never executed", "branch 1 taken 0 (throw)",
                          "branch 0 taken 0 (throw)", "branch  1 never executed"])

    def test_an_unknown_number_of_branches_marks_nothing(self):
        text = "    #####:    5:    f();\nbranch  0 never executed"
        self.assertEqual(self.branches(text, {5: [True, True]}), ["branch  0 never executed"])

    def test_lines_that_only_exceptions_reach_are_marked(self):
        text = "    =====:    5:    } catch (const std::exception&) {\nbranch  0 never executed"
        self.assertEqual(self.branches(text), ["branch 0 taken 0 (throw)"])


if __name__ == "__main__":
    unittest.main()

"""Which changes script/seed-faults makes of a line, and where it makes none."""
import importlib.util
import sys
import unittest
from importlib.machinery import SourceFileLoader

loader = SourceFileLoader("seed_faults", sys.argv.pop(1))
seed_faults = importlib.util.module_from_spec(importlib.util.spec_from_loader("seed_faults", loader))
sys.dont_write_bytecode = True
loader.exec_module(seed_faults)


def changed(line):
    return {line[:start] + new + line[end:] for _, start, end, new in seed_faults.changes_of_line(line)}


class ChangesOfALine(unittest.TestCase):
    def test_operators_are_exchanged_one_at_a_time(self):
        self.assertEqual(changed("    total = a + b - c;"), {"    total = a - b - c;", "    total = a + b + c;"})

    def test_template_brackets_and_signs_are_no_operators(self):
        self.assertEqual(changed("    std::vector<int> values{-a, *b, &c};"), set())

    def test_constants_change_by_one_and_keep_their_suffix(self):
        self.assertEqual(changed("    x = 2.5F;"), {"    x = 3.5F;"})
        self.assertEqual(changed("    x = 16U;"), {"    x = 17U;"})
        self.assertEqual(changed("    x = true;"), {"    x = false;"})

    def test_numbers_in_names_are_no_constants(self):
        self.assertEqual(changed("    a1 = VbVec3f::x;"), set())

    def test_conditions_are_negated(self):
        self.assertIn("    if (!(isOpen())) {", changed("    if (isOpen()) {"))

    def test_a_condition_that_declares_is_left_alone(self):
        self.assertEqual(changed("    if (const auto* node = find(name))"), set())

    def test_calls_are_left_out_but_declarations_stay(self):
        self.assertIn("    ;", changed("    m_list->clear(all);"))
        self.assertEqual(changed("    return clear(all);"), set())
        self.assertEqual(changed("    Guard guard(all);"), set())


class CodeMask(unittest.TestCase):
    def test_comments_and_texts_are_no_code(self):
        text = 'a(); // b\nc("d", \'e\'); /* f\n g */ h(1\'000);'
        mask = seed_faults.code_mask(text)
        code = "".join(letter for letter, is_code in zip(text, mask) if is_code)
        self.assertEqual(code, "a(); \nc(, );  h(1'000);")


class Stages(unittest.TestCase):
    def test_tests_of_the_class_come_first_and_all_run_once(self):
        tests = ["app/files/FileFlow", "scene/fields/NxField", "base/Files", "endtoend/CommandRun"]
        stages = seed_faults.stages("meridane/base/Files.cpp", tests)
        self.assertEqual(stages[0], ["base/Files"])
        self.assertEqual(sorted(sum(stages, [])), sorted(tests))


unittest.main()

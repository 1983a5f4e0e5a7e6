"""What changes the hash of the plug-in interface, which cmake/InterfaceHash.cmake computes."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

cmake, script = sys.argv.pop(1), sys.argv.pop(1)


class Hash(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.write("a.h", '#include "b.h"\n\nstruct A {\n    int x; // a place\n};\n')
        self.write("b.h", "struct B {};\n")
        self.before = self.hash()

    def write(self, name, text):
        (self.root / name).write_text(text)

    def hash(self):
        self.write("headers.txt", "a.h\n")
        output = self.root / "hash.h"
        subprocess.run([cmake, "-D", f"ROOT={self.root}", "-D", f"HEADERS={self.root}/headers.txt", "-D",
                        f"OUTPUT={output}", "-P", script], check=True)
        return output.read_text()

    def test_a_member_changes_it(self):
        self.write("a.h", '#include "b.h"\n\nstruct A {\n    int x;\n    int y;\n};\n')
        self.assertNotEqual(self.hash(), self.before)

    def test_an_included_header_changes_it(self):
        self.write("b.h", "struct B { int x; };\n")
        self.assertNotEqual(self.hash(), self.before)

    def test_comments_and_blanks_leave_it(self):
        self.write("a.h", '/* what it\n * is */\n#include "b.h"\nstruct A\n{\n  int x; /* another word */ };\n')
        self.assertEqual(self.hash(), self.before)

    def test_the_output_is_written_only_if_it_changes(self):
        output = self.root / "hash.h"
        time = output.stat().st_mtime_ns
        self.hash()
        self.assertEqual(output.stat().st_mtime_ns, time)


unittest.main()

"""What `tools/tidy` says of sources with and without something to object to."""
import json
import subprocess
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]


class TidyTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name).resolve()
        self.source = self.root / "room.cpp"
        self.header = self.root / "room.h"
        self.header.write_text("#pragma once\nint roomCount();\n")
        self.source.write_text('#include "room.h"\n\nint roomCount() {\n  return 3;\n}\n')
        command = f"c++ -std=c++20 -Winvalid-pch -include {self.root}/cmake_pch.hxx -o room.o -c {self.source}"
        entries = [{"directory": str(self.root), "file": str(self.source), "command": command}]
        (self.root / "compile_commands.json").write_text(json.dumps(entries))

    def tidy(self, *files):
        return subprocess.run([PROJECT / "tools/tidy", "--build", self.root, *(files or [self.source])],
                              capture_output=True, text=True)

    def objections(self):
        found = self.tidy()
        self.assertEqual(found.stderr, "")
        self.assertEqual(found.returncode != 0, bool(found.stdout))
        return found.stdout

    def looked_at(self):
        """How many states of the source were found clean so far."""
        return len(list((self.root / "tidy").iterdir()))

    def edit(self, file, before, after):
        text = file.read_text()
        self.assertIn(before, text)
        file.write_text(text.replace(before, after))

    def test_a_clean_source_is_passed_in_silence(self):
        self.assertEqual(self.objections(), "")

    def test_an_include_that_is_not_needed_is_named(self):
        self.edit(self.source, '#include "room.h"\n', '#include "room.h"\n\n#include <vector>\n')
        self.assertIn("included header vector is not used directly", self.objections())

    def test_what_a_header_brings_may_be_used(self):
        (self.root / "inner.h").write_text("#pragma once\nstruct Chair {};\n")
        self.edit(self.header, "int roomCount();\n", '#include "inner.h"\nChair roomChair();\n')
        self.edit(self.source, "int roomCount() {\n  return 3;\n", "Chair roomChair() {\n  return Chair{};\n")
        self.assertEqual(self.objections(), "")

    def test_a_name_against_the_projects_spelling_is_named(self):
        self.edit(self.header, "int roomCount();", "int room_count();")
        self.assertIn("invalid case style for function 'room_count'", self.objections())

    def test_a_source_that_does_not_compile_is_named(self):
        self.edit(self.source, "return 3", "return three")
        self.assertIn("undeclared identifier 'three'", self.objections())

    def test_a_source_that_was_found_clean_is_looked_at_again_only_after_a_change(self):
        self.objections()
        self.objections()
        self.assertEqual(self.looked_at(), 1)
        self.edit(self.header, "int roomCount();", "/// Counts them.\nint roomCount();")
        self.objections()
        self.assertEqual(self.looked_at(), 2)

    def test_an_objection_is_made_again_until_it_is_met(self):
        self.edit(self.header, "int roomCount();", "int room_count();")
        self.assertEqual(self.objections(), self.objections())

    def test_a_source_that_no_target_compiles_is_named(self):
        forgotten = self.root / "forgotten.cpp"
        forgotten.write_text("\n")
        self.assertIn("forgotten.cpp: no CMakeLists.txt names this source", self.tidy(forgotten).stderr)


if __name__ == "__main__":
    unittest.main()

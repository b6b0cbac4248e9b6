"""What `tools/rooms check` says of a house in which something is wrong."""
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]


class RoomsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        shutil.copytree(PROJECT / "src", self.root / "src")
        shutil.copytree(PROJECT / "docs", self.root / "docs", ignore=shutil.ignore_patterns("*.png"))

    def problems(self):
        found = subprocess.run([PROJECT / "tools/rooms", "check", "--root", self.root], capture_output=True, text=True)
        self.assertEqual(found.returncode != 0, bool(found.stderr))
        return found.stderr

    def plant(self, file, line):
        path = self.root / "src" / file
        path.write_text(line + "\n" + path.read_text())

    def edit_table(self, before, after):
        table = self.root / "src/rooms.txt"
        text = table.read_text()
        self.assertIn(before, text)
        table.write_text(text.replace(before, after))

    def test_the_house_as_it_is_has_no_problems(self):
        self.assertEqual(self.problems(), "")

    def test_an_include_against_the_arrows_is_named_with_its_arrow(self):
        self.plant("client/ContentView.cpp", '#include "workspace/WorkspaceStore.h"')
        self.assertIn("src/client/ContentView.cpp:1: the arrow client -> workspace is not declared", self.problems())

    def test_a_room_that_is_reached_only_through_another_is_no_room_of_ones_own(self):
        self.plant("console/AgentsView.cpp", '#include "vocabulary/AccentTone.h"')
        self.assertIn("the arrow console -> vocabulary is not declared", self.problems())

    def test_a_private_arrow_does_not_carry_a_header_that_others_see(self):
        self.plant("client/ContentView.h", '#include "brand/text.h"')
        self.assertIn("the arrow client -> brand is not publicly declared", self.problems())

    def test_the_engine_alone_sees_the_web_engines_headers(self):
        self.plant("client/ContentView.cpp", "#include <webkit/webkit.h>")
        self.assertIn("the arrow client -> webkitgtk is not declared", self.problems())

    def test_the_engine_shows_nobody_the_web_engines_headers(self):
        self.plant("engine/WebView.h", "#include <webkit/webkit.h>")
        self.assertIn("the arrow engine -> webkitgtk is not publicly declared", self.problems())

    def test_the_models_stay_without_a_toolkit(self):
        self.plant("workspace/WorkspaceStore.cpp", "#include <gtkmm/widget.h>")
        self.assertIn("the arrow workspace -> gtkmm is not declared", self.problems())

    def test_an_include_without_its_room_is_refused(self):
        self.plant("brand/surfaces.cpp", '#include "stacks.h"')
        self.assertIn('"stacks.h" names no header with its room', self.problems())

    def test_an_arrow_that_nothing_uses_is_named(self):
        self.edit_table("| workspace preferences layout gtkmm  ", "| workspace preferences layout gtkmm vocabulary  ")
        self.assertIn("nothing uses the arrow console -> vocabulary", self.problems())

    def test_a_room_above_what_it_uses_is_named(self):
        self.edit_table("| vocabulary layout gtkmm  ", "| vocabulary layout gtkmm console  ")
        self.assertIn("'brand' stands above 'console'", self.problems())

    def test_a_source_outside_every_room_is_named(self):
        (self.root / "src/attic").mkdir()
        (self.root / "src/attic/Box.h").write_text("#pragma once\n")
        self.assertIn("src/attic/Box.h: lies in no room", self.problems())

    def test_a_drawing_that_is_not_the_tables_is_named(self):
        document = self.root / "docs/architecture.md"
        document.write_text(document.read_text().replace("brand --> layout", "layout --> brand"))
        self.assertIn("the drawing is not that of src/rooms.txt", self.problems())


if __name__ == "__main__":
    unittest.main()

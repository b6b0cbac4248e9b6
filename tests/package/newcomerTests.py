"""The README followed to the letter, in a fresh copy of the tree, by an ordinary user who has nothing yet; with the time
that each step took."""
import subprocess
import time
import unittest

from ordinaryUser import PROJECT, OrdinaryUser


def setUpModule():
    global user, tree
    user = OrdinaryUser()
    unittest.addModuleCleanup(user.leave)
    tree = user.folder / "quorvel-desktop"
    subprocess.run(["git", "clone", "--quiet", PROJECT, tree], check=True)
    user.give_everything()


class TestANewcomer(unittest.TestCase):
    def follow(self, command):
        self.assertIn(f"./dev {command} ", (tree / "README.md").read_text())
        began = time.monotonic()
        status, said = user.run("./dev", command, cwd=tree)
        self.assertEqual(status, 0, said[-4000:])
        print(f"./dev {command}: {time.monotonic() - began:.0f} s", flush=True)
        return said

    def test_1_dev_run_shows_the_client(self):
        self.assertIn("== A picture of the window is in", self.follow("run"))
        self.assertTrue((tree / "build/pictures/client.png").is_file())

    def test_2_dev_console_shows_the_console(self):
        self.assertIn("== A picture of the window is in", self.follow("console"))
        self.assertTrue((tree / "build/pictures/console.png").is_file())

    def test_3_dev_package_makes_a_package_that_passes_its_tests(self):
        self.assertIn("== The package is build/quorvel-desktop_", self.follow("package"))

    def test_4_nothing_is_left_outside_the_folder_of_what_is_built(self):
        changed = subprocess.check_output(["git", "-C", tree, "-c", f"safe.directory={tree}", "status", "--porcelain",
                                           "--ignored", "--", ":!build"], text=True)
        self.assertEqual(changed, "")
        self.assertEqual([path for path in user.home.rglob("*") if path.is_file() and "ccache" not in str(path)], [])


if __name__ == "__main__":
    unittest.main()

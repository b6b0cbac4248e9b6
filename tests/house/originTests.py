"""The origin of the service is given to the build, checked there, and reaches everything from there."""
import json
import subprocess
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]


class OriginTest(unittest.TestCase):
    def configure(self, *options):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.build = Path(folder.name)
        return subprocess.run(["cmake", "-S", PROJECT, "-B", self.build, "-G", "Ninja", "-DBUILD_TESTING=OFF",
                               "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON", *options], capture_output=True, text=True)

    def told(self, source):
        """The origin that a source is compiled with."""
        commands = json.loads((self.build / "compile_commands.json").read_text())
        command = next(entry["command"] for entry in commands if entry["file"].endswith(source))
        return next(word for word in command.split() if word.startswith("-DQUORVEL_ORIGIN=")).partition("=")[2]

    def test_a_vendors_origin_reaches_the_program_the_catalogues_and_the_demonstration_network(self):
        found = self.configure("-DQUORVEL_ORIGIN=https://desk.vendor-2.example")
        self.assertEqual(found.returncode, 0, found.stderr)
        for source in ("client/QuorvelRoute.cpp", "client/DesktopClientSidebar.cpp", "demo/main.cpp"):
            self.assertEqual(self.told(source), r"\"https://desk.vendor-2.example\"", source)
        for description in self.build.glob("data/*.metainfo.xml"):
            self.assertIn("https://desk.vendor-2.example/", description.read_text())
            self.assertNotIn("app.quorvel.example", description.read_text())

    def test_without_one_the_origin_is_the_stand_in_services(self):
        found = self.configure()
        self.assertEqual(found.returncode, 0, found.stderr)
        self.assertEqual(self.told("client/QuorvelRoute.cpp"), r"\"https://app.quorvel.example\"")

    def test_what_is_no_secure_origin_stops_the_build_from_being_configured(self):
        found = self.configure("-DQUORVEL_ORIGIN=http://desk.vendor.example")
        self.assertNotEqual(found.returncode, 0)
        self.assertIn('QUORVEL_ORIGIN is "http://desk.vendor.example"', found.stderr)

    def test_what_is_no_secure_origin_is_refused_in_a_sentence(self):
        for origin in ("", "http://desk.vendor.example", "https://", "https://desk.vendor.example/",
                       "https://desk.vendor.example:8443", "https://desk.vendor.example/app", "desk.vendor.example",
                       "https://Desk.vendor.example", "https://me@desk.vendor.example", "https://desk..example",
                       "https://-desk.example", "https://desk.vendor.example?x", "https://desk vendor.example"):
            with self.subTest(origin):
                found = subprocess.run(["cmake", f"-DQUORVEL_ORIGIN={origin}", "-P",
                                        PROJECT / "cmake/QuorvelOrigin.cmake"], capture_output=True, text=True)
                self.assertNotEqual(found.returncode, 0)
                said = " ".join(found.stderr.split())
                self.assertIn(f'QUORVEL_ORIGIN is "{origin}". It has to be https:// and a host', said)

    def test_nothing_else_names_the_default(self):
        named = subprocess.run(["git", "-C", PROJECT, "grep", "-l", "app\\.quorvel\\.example", "--", "src", "data",
                                "demo", "tools", "benchmarks", "dev", "CMakeLists.txt", "cmake", "tests/e2e",
                                "tests/torture"], capture_output=True, text=True)
        self.assertEqual(named.stdout.split(), ["cmake/QuorvelOrigin.cmake"])


if __name__ == "__main__":
    unittest.main()

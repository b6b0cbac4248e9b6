"""The package in build/ is one that a distribution would take. Installed into a clean tree both of its programs start, as
an ordinary user and from the message bus too; removed it leaves nothing but what is the user's."""
import os
import re
import shutil
import subprocess
import time
import unittest

from ordinaryUser import PROJECT, OrdinaryUser, stays_root

PROGRAMS = {"quorvel": "com.quorvel.Desktop", "quorvel-console": "com.quorvel.Console"}
PATIENCE = 60


def setUpModule():
    global user, packages, package, content
    user = OrdinaryUser()
    unittest.addModuleCleanup(user.leave)
    for made in PROJECT.glob("build/*.deb"):
        shutil.copy(made, user.folder)
    for needed in ("demo/private-network", "build/release/bin/quorvel-demo-service", "tests/package/use-installed"):
        shutil.copy(PROJECT / needed, user.folder)
    shutil.copytree(PROJECT / "demo/pages", user.folder / "pages")
    packages = sorted(user.folder.glob("*.deb"), key=lambda package: "dbgsym" in package.name)
    package, content = packages[0], user.folder / "content"
    subprocess.run(["dpkg-deb", "--extract", package, content], check=True)
    user.give_everything()


def output_of(*command, **options):
    return subprocess.check_output([str(word) for word in command], text=True, **options)


def field(name):
    return output_of("dpkg-deb", "--field", package, name).strip()


def eventually(condition):
    deadline = time.monotonic() + PATIENCE
    while not (found := condition()) and time.monotonic() < deadline:
        time.sleep(0.1)
    return found


class TestThePackage(unittest.TestCase):
    def test_lintian_has_nothing_to_say(self):
        self.assertEqual(user.run("lintian", "--fail-on", "error,warning", *packages), (0, ""))

    def test_there_is_one_package_and_one_with_its_symbols(self):
        self.assertEqual([made.name.split("_")[0] for made in packages], ["quorvel-desktop", "quorvel-desktop-dbgsym"])

    def test_it_holds_the_programs_and_what_a_desktop_and_a_reader_look_for_and_nothing_else(self):
        doc = "usr/share/doc/quorvel-desktop"
        expected = {f"{doc}/changelog.gz", f"{doc}/copyright"}
        for command, application in PROGRAMS.items():
            expected |= {f"usr/bin/{command}", f"usr/share/man/man1/{command}.1.gz",
                         f"usr/share/applications/{application}.desktop",
                         f"usr/share/dbus-1/services/{application}.service",
                         f"usr/share/icons/hicolor/scalable/apps/{application}.svg",
                         f"usr/share/metainfo/{application}.metainfo.xml"}
        found = {str(path.relative_to(content)) for path in content.rglob("*") if not path.is_dir()}
        self.assertEqual(found, expected)

    def test_it_asks_for_what_no_page_loads_without(self):
        needed = {re.split(r"[ |(]", part.strip())[0] for part in field("Depends").split(",")}
        self.assertLessEqual({"ca-certificates", "default-dbus-session-bus", "libwebkitgtk-6.0-4", "librsvg2-common",
                              "fonts-inter", "fonts-quicksand"}, needed)

    def test_version_and_release_are_the_same_everywhere(self):
        version = re.search(r"project\(QuorvelDesktop VERSION (\S+)", (PROJECT / "CMakeLists.txt").read_text())[1]
        self.assertEqual(field("Version"), version)
        for description in content.glob("usr/share/metainfo/*"):
            self.assertIn(f'<release version="{version}"', description.read_text())
        for command in PROGRAMS:
            self.assertIn(version, output_of(content / "usr/bin" / command, "--version"))

    def test_the_manual_says_every_option_that_the_program_says(self):
        for command in PROGRAMS:
            options = re.findall(r"--[a-z-]+", output_of(content / "usr/bin" / command, "--help"))
            self.assertTrue(options)
            page = output_of("man", "--local-file", content / f"usr/share/man/man1/{command}.1.gz",
                             env=dict(os.environ, MANPAGER="cat", LC_ALL="C.UTF-8"))
            for option in options:
                self.assertIn(option, page)


class TestHardening(unittest.TestCase):
    def of_each_program(self, *command):
        for name in PROGRAMS:
            with self.subTest(name):
                yield output_of(*command, content / "usr/bin" / name)

    def test_the_programs_are_position_independent(self):
        for header in self.of_each_program("readelf", "--file-header", "--dynamic", "--wide"):
            self.assertRegex(header, r"Type: +DYN")
            self.assertRegex(header, r"FLAGS_1.*\bPIE\b")

    def test_what_is_linked_is_bound_at_the_start_and_read_only_from_then_on(self):
        for header in self.of_each_program("readelf", "--dynamic", "--program-headers", "--wide"):
            self.assertRegex(header, r"FLAGS_1.*\bNOW\b")
            self.assertIn("GNU_RELRO", header)

    def test_the_stack_is_guarded_and_cannot_be_executed(self):
        for symbols in self.of_each_program("readelf", "--dyn-syms", "--program-headers", "--wide"):
            self.assertIn("__stack_chk_fail", symbols)
            self.assertRegex(symbols, r"GNU_STACK .* RW ")

    @unittest.skipUnless(os.uname().machine == "x86_64", "only this machine has the instruction")
    def test_indirect_jumps_end_where_they_may(self):
        for code in self.of_each_program("objdump", "--disassemble"):
            self.assertGreater(code.count("endbr64"), 1000)

    def test_every_source_of_the_programs_is_compiled_with_the_protections(self):
        commands = (PROJECT / "build/release/compile_commands.json").read_text()
        compiled = [line for line in commands.splitlines() if '"command"' in line]
        self.assertGreater(len(compiled), 60)
        for command in compiled:
            for flag in ("-fstack-protector-strong", "-fstack-clash-protection", "-D_FORTIFY_SOURCE=2", "-fPIE"):
                self.assertIn(f" {flag} ", command)

    def test_the_symbols_are_in_a_package_of_their_own(self):
        for sections in self.of_each_program("readelf", "--sections", "--wide"):
            self.assertNotRegex(sections, r"\.symtab|\.debug_info")
        self.assertIn("/usr/lib/debug/.build-id/", output_of("dpkg-deb", "--contents", packages[1]))


class TestInstalled(unittest.TestCase):
    """In a root folder of its own, with the machine's packages for all that it depends on; the programs run where they
    are at home, in /usr, with the installed files laid over the machine's."""

    def setUp(self):
        self.installed = user.folder / "installed"
        status, said = user.run("sh", "-c", 'mkdir -p "$0/info" "$0/updates" && cp /var/lib/dpkg/status "$0" && '
                                'cp /var/lib/dpkg/info/*.list "$0/info"', self.installed / "var/lib/dpkg")
        self.assertEqual(status, 0, said)
        self.addCleanup(lambda: shutil.rmtree(self.installed))
        self.runtime = user.folder / "runtime"
        self.runtime.mkdir(mode=0o700)
        user.give_everything()

    def dpkg(self, *arguments):
        status, said = user.run("dpkg", f"--root={self.installed}", "--force-not-root", "--no-triggers", *arguments)
        self.assertEqual(status, 0, said)

    def files(self):
        """All that is in the root folder except the database of what is installed."""
        return {path for path in self.installed.rglob("*")
                if path.is_file() and not path.is_relative_to(self.installed / "var")}

    def written(self):
        return {str(path.relative_to(user.home)) for path in user.home.rglob("*") if path.is_file()}

    def use(self, command):
        """Everything that the program prints while it is used; it does all that is asked of it."""
        environment = user.environment(XDG_RUNTIME_DIR=str(self.runtime))
        status, said = user.run(user.folder / "use-installed", self.installed, user.folder, user.folder / "requests.log",
                                command, PROGRAMS[command], needs_namespaces=True, env=environment)
        self.assertEqual(status, 0, said)
        others = ("dbus-daemon[", "SpiRegistry daemon")
        if stays_root():
            others += ("Quorvel runs as root", "dbus[")
        return [line for line in said.splitlines() if line and not line.startswith(others)]

    def test_both_programs_start_and_removed_leave_their_users_data_alone(self):
        self.dpkg("--install", package)
        self.assertEqual(len(self.files()), 14)

        self.assertEqual(self.use("quorvel-console"), [])
        self.assertEqual(self.written(), set(), "the console writes nothing")

        self.assertEqual(self.use("quorvel"), [])
        kept = self.written()
        self.assertEqual({path.split("/quorvel/")[0] for path in kept}, {".cache", ".local/share", ".local/state"})

        self.dpkg("--purge", "quorvel-desktop")
        self.assertEqual(self.files(), set())
        self.assertEqual(self.written(), kept, "what is the user's stays")


if __name__ == "__main__":
    unittest.main()

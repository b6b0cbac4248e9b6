"""Whether every test that docs/security.md names for a promise is there.

  promisesTests.py BUILD_FOLDER
"""
import json
import re
import subprocess
import sys
from pathlib import Path

PROMISES = Path(__file__).resolve().parents[2] / "docs/security.md"
KINDS = "house|unit|ui|e2e|torture"


def names_of_tests(build):
    """Of each test of the build; where one command runs a whole suite, of each test in it."""
    listed = subprocess.check_output(["ctest", "--test-dir", build, "--show-only=json-v1"], text=True)
    names = []
    for test in json.loads(listed)["tests"]:
        suite = [word for word in test.get("command", []) if re.fullmatch(r"--gtest_filter=.*\.\*", word)]
        if not suite:
            names.append(test["name"])
            continue
        inside = subprocess.check_output([test["command"][0], suite[0], "--gtest_list_tests"], text=True)
        cases = [line.split("#")[0].strip() for line in inside.splitlines() if line.startswith("  ")]
        names += [f"{test['name']}.{case}" for case in cases]
    return names


def is_there(named, tests):
    """The value of a parameter and the name of its set are left out in the document."""
    kind, rest = named.rsplit("/", 1)
    return any(test.startswith(kind + "/") and re.search(rf"/{re.escape(rest)}(\W|$)", test) for test in tests)


def main():
    tests = names_of_tests(sys.argv[1])
    named = re.findall(rf"`((?:{KINDS})/[^`\s]+)`", PROMISES.read_text())
    missing = [name for name in named if not is_there(name, tests)]
    for name in missing:
        print(f"{PROMISES}: there is no test {name}", file=sys.stderr)
    return 1 if missing or not named else 0


sys.exit(main())

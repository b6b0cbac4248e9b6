"""Somebody who uses the project, with a folder that goes with them."""
import os
import pwd
import shutil
import subprocess
import tempfile
from functools import cache
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
# Where the tests run as root, this user, who owns nothing, stands in for an ordinary one.
STAND_IN = "nobody"


@cache
def stays_root():
    """Where the root folder is a changed one, as package builders have it, nobody but root can have namespaces."""
    return os.geteuid() == 0 and subprocess.run(["unshare", "--user", "true"], stderr=subprocess.DEVNULL).returncode != 0


class OrdinaryUser:
    def __init__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="quorvel-user-"))
        self.home = self.folder / "home"
        self.home.mkdir(mode=0o700)
        self.give_everything()

    def give_everything(self):
        """What root has put into the folder belongs to the user from now on."""
        if os.geteuid() == 0:
            subprocess.run(["chown", "-R", f"{STAND_IN}:", self.folder], check=True)

    def leave(self):
        shutil.rmtree(self.folder)

    def environment(self, **more):
        """What a login without a desktop has."""
        return {"PATH": "/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin", "HOME": str(self.home), "LANG": "C.UTF-8", **more}

    def start(self, *command, needs_namespaces=False, **options):
        is_stood_in_for = os.geteuid() == 0 and not (needs_namespaces and stays_root())
        user = ({"user": STAND_IN, "group": pwd.getpwnam(STAND_IN).pw_gid, "extra_groups": []}
                if is_stood_in_for else {})
        options = {"env": self.environment(), "cwd": self.folder, **options}
        return subprocess.Popen([str(word) for word in command], text=True, stdin=subprocess.DEVNULL, **user, **options)

    def run(self, *command, **options):
        """Runs a command to its end; its exit status and all that it said."""
        process = self.start(*command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
        said, _ = process.communicate()
        return process.returncode, said

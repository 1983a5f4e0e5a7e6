"""The tool starts where there is no session bus, without a word and without starting one."""

import os
import stat
import subprocess
import tempfile
import unittest

import access_case
from access_case import Display, wait_for


class WithoutBus(unittest.TestCase):
    def setUp(self):
        self.display = Display()
        self.addCleanup(self.display.end)
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        # What would start a bus leaves a trace instead.
        self.trace = self.folder + "/launched"
        launcher = self.folder + "/bin/dbus-launch"
        os.makedirs(self.folder + "/bin")
        os.makedirs(self.folder + "/runtime", mode=0o700)
        with open(launcher, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\ntouch {self.trace}\nexit 1\n")
        os.chmod(launcher, stat.S_IRWXU)

    def environment(self, **variables):
        environment = {key: value for key, value in os.environ.items() if not key.startswith("DBUS_")}
        environment.update(DISPLAY=self.display.name, QT_QPA_PLATFORM="xcb", HOME=self.folder,
                           XDG_CONFIG_HOME=self.folder + "/config", XDG_STATE_HOME=self.folder + "/state",
                           XDG_RUNTIME_DIR=self.folder + "/runtime",
                           PATH=self.folder + "/bin:" + os.environ["PATH"])
        environment.update(variables)
        return environment

    def check_start(self, **variables):
        environment = self.environment(**variables)
        with open(self.folder + "/errors", "w+", encoding="utf-8") as errors:
            with subprocess.Popen([access_case.PROGRAM], env=environment, stdout=errors, stderr=errors) as tool:
                try:
                    # The window manager may not know the window yet when it is there.
                    def is_closed():
                        subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Orvane", "windowactivate",
                                        "--sync", "key", "--clearmodifiers", "ctrl+q"], env=environment,
                                       capture_output=True, check=False, timeout=access_case.PATIENCE)
                        return tool.poll() is not None

                    wait_for("the window to close", is_closed)
                    self.assertEqual(tool.returncode, 0)
                finally:
                    tool.kill()
            errors.seek(0)
            said = errors.read()
        self.assertEqual(said, "")
        self.assertFalse(os.path.exists(self.trace), "the tool has tried to start a bus")

    def test_no_address(self):
        self.check_start()

    def test_an_address_where_nobody_answers(self):
        self.check_start(DBUS_SESSION_BUS_ADDRESS="unix:path=" + self.folder + "/nobody")


if __name__ == "__main__":
    access_case.main()

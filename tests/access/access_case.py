"""What the tests of assistive programs share: a display, the tool on it, and the tree of what it tells such programs."""

import os
import subprocess
import sys
import tempfile
import time
import unittest

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError) as problem:
    print(f"Skipped: {problem}; script/bootstrap installs what is missing.")
    sys.exit(77)

PATIENCE = 120  # seconds that a test waits for what must happen; only one that fails waits so long
MOST_CHILDREN = 300
PROGRAM = ""  # the tool; set by main


def wait_for(what, condition):
    """Waits until the condition gives something, and returns it. Events are delivered meanwhile."""
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            found = condition()
        except GLib.Error:  # what was asked has gone meanwhile
            found = None
        if found:
            return found
        if time.monotonic() > deadline:
            raise AssertionError(f"In vain: {what}")
        context = GLib.MainContext.default()
        while context.pending():
            context.iteration(False)
        time.sleep(0.02)


def has(node, state):
    return node.get_state_set().contains(state)


def children(node):
    for number in range(min(node.get_child_count(), MOST_CHILDREN)):
        child = node.get_child_at_index(number)
        if child is not None:
            yield child


def walk(node, path=()):
    """All nodes below one, with the names on the way to them."""
    yield node, path
    for child in children(node):
        yield from walk(child, path + (f"{node.get_role_name()} {node.get_name()!r}",))


def press(node, wanted=("Press", "Toggle")):
    """Does the first of these actions of a node."""
    for number in range(node.get_n_actions()):
        if node.get_action_name(number) in wanted:
            return node.do_action(number)
    raise AssertionError(f"{node.get_role_name()} {node.get_name()!r} has none of {wanted}")


def text_of(node):
    return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))


class Display:
    """A display of the test's own, with a window manager, without which no window gets the focus."""

    def __init__(self):
        self.server = subprocess.Popen(
            ["Xvfb", "-r", "-displayfd", "1", "-screen", "0", "1400x1000x24", "-nolisten", "tcp"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.name = ":" + self.server.stdout.readline().decode().strip()
        environment = dict(os.environ, DISPLAY=self.name)
        self.manager = subprocess.Popen(
            ["openbox", "--config-file", "/dev/null"], env=environment, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        wait_for("the window manager", lambda: subprocess.run(
            ["xdotool", "get_desktop"], env=environment, capture_output=True, check=False).returncode == 0)

    def key(self, *names):
        subprocess.run(["xdotool", "key", *names], env=dict(os.environ, DISPLAY=self.name), check=True)

    def end(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()
        self.server.stdout.close()


class Tool:
    """The running tool. It ends with the test."""

    def __init__(self, display, *arguments, **variables):
        self.folder = tempfile.TemporaryDirectory()
        environment = dict(os.environ, DISPLAY=display.name, QT_QPA_PLATFORM="xcb", HOME=self.folder.name,
                           XDG_CONFIG_HOME=self.folder.name + "/config", XDG_STATE_HOME=self.folder.name + "/state",
                           XDG_DATA_HOME=self.folder.name + "/data", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        environment.update(variables)
        self.process = subprocess.Popen([PROGRAM, "--size", "1300x900", *arguments], env=environment)
        self.root = wait_for("the tool on the accessibility bus", self.find)

    def find(self):
        if self.process.poll() is not None:
            raise AssertionError(f"The tool has ended with {self.process.returncode}.")
        desktop = Atspi.get_desktop(0)
        for application in children(desktop):
            if application.get_process_id() == self.process.pid and application.get_child_count() > 0:
                return application
        return None

    def all(self, role=None, name=None):
        """What has that role and name; one that is None is any."""
        self.root.clear_cache()
        for node, _ in walk(self.root):
            if (role is None or node.get_role() == role) and (name is None or node.get_name() == name):
                yield node

    def await_one(self, role, name):
        return wait_for(f"{role.value_nick} {name!r}", lambda: next(self.all(role, name), None))

    def end(self):
        self.process.kill()
        self.process.wait()
        self.folder.cleanup()


def main():
    """Runs the tests of the script that calls it. Its only argument is the tool's program."""
    global PROGRAM
    PROGRAM = sys.argv.pop(1)
    Atspi.init()
    unittest.main(verbosity=2)

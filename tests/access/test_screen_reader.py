"""Works the running tool as a screen reader does: finds controls by role and name, reads and sets values, presses
actions, and hears where the focus goes."""

import unittest

import access_case
from access_case import Atspi, Display, Tool, children, has, press, text_of, wait_for, walk

SCENE = """#mrd 1.0
PointLight "lamp" {
    intensity = 0.5
    color = 0.8 0.1 0.1
    location = 1 2 3
}
Transform "table" {
    Mesh "plate" {
        positions = [-1 0 1, 1 0 1, 1 0 -1, -1 0 -1]
        indices = [0, 1, 2, 0, 2, 3]
    }
}
"""

# Roles of what only holds other things, which the focus must not be on. A filler may be an area that keys scroll.
NO_CONTROLS = {Atspi.Role.UNKNOWN, Atspi.Role.INVALID, Atspi.Role.PANEL, Atspi.Role.REDUNDANT_OBJECT}


class ScreenReader(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = Display()
        cls.addClassCleanup(cls.display.end)

    def setUp(self):
        folder = access_case.tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.scene = folder.name + "/lamp.mrd"
        with open(self.scene, "w", encoding="utf-8") as file:
            file.write(SCENE)

    def start(self):
        tool = Tool(self.display, "--select", "/lamp", self.scene)
        self.addCleanup(tool.end)
        tool.await_one(Atspi.Role.SPIN_BUTTON, "intensity")
        return tool

    def check_number(self, node, expected):
        wait_for(f"{node.get_name()} to be {expected}", lambda: abs(node.get_current_value() - expected) < 1e-6)

    def test_every_control_has_a_name_and_a_role(self):
        tool = self.start()
        nameless = []
        seen = 0
        for node, path in walk(tool.root):
            is_reachable = has(node, Atspi.StateType.FOCUSABLE) and has(node, Atspi.StateType.VISIBLE)
            if not is_reachable or node.get_role() in (Atspi.Role.WINDOW, Atspi.Role.FRAME):
                continue
            seen += 1
            if not node.get_name().strip() or node.get_role() in NO_CONTROLS:
                nameless.append(" / ".join(path[-3:]) + f" / {node.get_role_name()} {node.get_name()!r}")
        self.assertGreater(seen, 50)
        self.assertFalse(nameless, "\n".join(nameless))

    def test_a_number_is_read_and_set_as_one_step(self):
        tool = self.start()
        intensity = tool.await_one(Atspi.Role.SPIN_BUTTON, "intensity")
        self.check_number(intensity, 0.5)
        self.assertEqual(intensity.get_minimum_value(), 0)
        self.assertEqual(intensity.get_maximum_value(), 1)
        self.assertGreater(intensity.get_minimum_increment(), 0)
        self.assertEqual(text_of(intensity), "0.5")
        self.assertIn("How bright", intensity.get_description())

        self.assertTrue(intensity.set_current_value(0.25))
        self.check_number(intensity, 0.25)
        wait_for("the changed mark", lambda: "changed" in intensity.get_description())
        undo = tool.await_one(Atspi.Role.PUSH_BUTTON, "Undo Set lamp.intensity")
        press(undo)
        self.check_number(intensity, 0.5)
        wait_for("one step, which is undone", lambda: not has(undo, Atspi.StateType.ENABLED))

    def test_components_have_names_and_values_of_their_own(self):
        tool = self.start()
        for component, expected in (("x", 1), ("y", 2), ("z", 3)):
            self.check_number(tool.await_one(Atspi.Role.SPIN_BUTTON, f"location {component}"), expected)
        upwards = tool.await_one(Atspi.Role.SPIN_BUTTON, "location y")
        press(upwards, ("Increase",))
        wait_for("a step up", lambda: upwards.get_current_value() > 2)
        whole = upwards.get_parent()
        self.assertEqual(whole.get_role(), Atspi.Role.TABLE_CELL)
        self.assertEqual(whole.get_name(), "location")
        self.assertEqual(whole.get_child_count(), 3)

    def test_a_number_out_of_range_is_said(self):
        tool = self.start()
        intensity = tool.await_one(Atspi.Role.SPIN_BUTTON, "intensity")
        intensity.set_current_value(3)
        wait_for("a warning", lambda: "makes no sense" in intensity.get_description())

    def test_a_check_box_is_read_and_toggled(self):
        tool = self.start()
        box = tool.await_one(Atspi.Role.CHECK_BOX, "on")
        self.assertTrue(has(box, Atspi.StateType.CHECKED))
        press(box)
        wait_for("the box to be empty", lambda: not has(box, Atspi.StateType.CHECKED))
        press(tool.await_one(Atspi.Role.PUSH_BUTTON, "Undo Set lamp.on"))
        wait_for("the box to be checked again", lambda: has(box, Atspi.StateType.CHECKED))

    def test_a_colour_is_said_in_words_and_set_as_text(self):
        tool = self.start()
        def value_cell():
            return next((node for node in tool.all(Atspi.Role.TABLE_CELL, "color") if node.get_child_count() > 0), None)

        color = wait_for("the cell with the colour", value_cell)
        self.assertIn("#cc1a1a, red", color.get_description())
        self.assertTrue(Atspi.EditableText.set_text_contents(color, "0 0 1"))
        wait_for("the new colour", lambda: "#0000ff, blue" in color.get_description())

    def test_the_view_says_what_it_shows(self):
        tool = self.start()
        view = tool.await_one(Atspi.Role.CANVAS, "View")
        wait_for("the picture", lambda: "1 of 1 meshes are in view" in view.get_description())
        self.assertIn("Selected: lamp, a PointLight", view.get_description())

    def test_messages_are_alerts(self):
        tool = Tool(self.display, "--select", "/nothing", self.scene)
        self.addCleanup(tool.end)
        wait_for("an alert", lambda: any("/nothing" in node.get_name() for node in tool.all(Atspi.Role.ALERT)))

    def test_tree_rows_say_class_and_count(self):
        tool = self.start()
        row = tool.await_one(Atspi.Role.TABLE_CELL, "table")
        self.assertIn("Transform, 1 child", row.get_description())

    def test_the_focus_is_heard(self):
        tool = self.start()
        heard = []

        def note(event):
            if event.detail1 == 1 and event.source is not None:
                heard.append((event.source.get_role(), event.source.get_name()))

        listener = Atspi.EventListener.new(note)
        listener.register("object:state-changed:focused")
        self.addCleanup(listener.deregister, "object:state-changed:focused")
        # The bus may need a while until events come.
        find = tool.await_one(Atspi.Role.TEXT, "Find nodes")
        view = tool.await_one(Atspi.Role.CANVAS, "View")

        def moved_to_the_find_line():
            Atspi.Component.grab_focus(view)
            Atspi.Component.grab_focus(find)
            return (Atspi.Role.TEXT, "Find nodes") in heard

        wait_for("the focus in the find line", moved_to_the_find_line)
        heard.clear()
        self.display.key("F6")
        wait_for("the focus in another pane", lambda: len(heard) > 0)

    def test_a_list_opens_its_rows(self):
        tool = Tool(self.display, "--select", "/table/plate", self.scene)
        self.addCleanup(tool.end)
        cell = tool.await_one(Atspi.Role.TABLE_CELL, "positions")
        press(cell)
        rows = wait_for("the rows of the list",
                        lambda: next((node for node in tool.all(name="Rows of the list") if has(
                            node, Atspi.StateType.SHOWING) and node.get_child_count() > 0), None))
        self.assertIn("-1", [child.get_name() for child in children(rows)])


if __name__ == "__main__":
    access_case.main()

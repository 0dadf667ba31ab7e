"""A person at a desktop, who knows windows by what they say.

The desktop is a display and an accessibility bus of its own, on which nothing else runs.
Whatever the person looks for is found by its role and by its caption or label, as a
screen reader finds it; no place on the screen and no name of a program's inside is used.
"""
import os
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 15  # seconds, for each thing that the person waits for
PAUSE = 0.05
# A day has 1,440 minutes and a page thousands of cells: looked into when asked alone.
CLOSED = {Atspi.Role.COMBO_BOX, Atspi.Role.LIST, Atspi.Role.DOCUMENT_WEB}
FIELDS = {Atspi.Role.TEXT, Atspi.Role.PASSWORD_TEXT}


def wait_for(condition, what, patience=PATIENCE):
    """What the condition comes to; windows come and go while it looks at them."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        try:
            if found := condition():
                return found
        except GLib.Error:
            pass
        time.sleep(PAUSE)
    raise LookupError(f"waited {patience} s in vain for {what}")


class Desktop:
    """Started and ended with a `with` block; programs started inside appear on it."""

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory(prefix="tallix_desktop_")
        self.processes = []
        display = self.start(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp"])
        bus = ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"]
        os.environ.update(
            DISPLAY=":" + display, HOME=self.folder.name, XDG_RUNTIME_DIR=self.folder.name,
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", NO_AT_BRIDGE="1")
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.start(bus)
        Atspi.init()
        return self

    def start(self, command):
        """Starts what the desktop consists of; the first line that it writes."""
        process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.processes.append(process)
        return process.stdout.readline().strip()

    def __exit__(self, *_):
        Atspi.exit()
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
            process.stdout.close()
        self.folder.cleanup()


def labels(thing):
    yield thing.get_name()
    for relation in thing.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            yield from (relation.get_target(i).get_name() for i in range(relation.get_n_targets()))


def has(thing, state):
    return thing.get_state_set().contains(state)


def children(thing):
    return filter(None, (thing.get_child_at_index(i) for i in range(thing.get_child_count())))


def all_shown(thing):
    """The thing and what is seen inside it, from the top."""
    yield thing
    if thing.get_role() in CLOSED:
        return
    for child in children(thing):
        if has(child, Atspi.StateType.SHOWING):
            yield from all_shown(child)


class Person:
    def windows(self):
        desktop = Atspi.get_desktop(0)
        desktop.set_cache_mask(Atspi.Cache.NONE)
        for program in children(desktop):
            program.set_cache_mask(Atspi.Cache.NONE)
            yield from (window for window in children(program) if has(window, Atspi.StateType.SHOWING))

    def see(self, label, *roles):
        """What has this label (None: any) now, of one of the roles if any are given; else None."""
        for window in self.windows():
            for thing in all_shown(window):
                if (not roles or thing.get_role() in roles) and (label is None or label in labels(thing)):
                    return thing
        return None

    def find(self, label, *roles):
        return wait_for(lambda: self.see(label, *roles), f"“{label}” to be seen")

    def words(self):
        """All that can be read on the screen."""
        return [thing.get_name() for window in self.windows() for thing in all_shown(window) if thing.get_name()]

    def press(self, caption):
        button = self.find(caption, Atspi.Role.PUSH_BUTTON)
        wait_for(lambda: has(button, Atspi.StateType.ENABLED), f"“{caption}” to answer")
        names = [button.get_action_name(i) for i in range(button.get_n_actions())]
        button.do_action(names.index("Press"))

    def type(self, label, text):
        self.type_into(self.find(label, *FIELDS), text)

    def focus(self, thing):
        thing.grab_focus()
        wait_for(lambda: has(thing, Atspi.StateType.FOCUSED), f"the keys to go to “{thing.get_name()}”")

    def choose(self, label, item):
        """Types the item's name into a list, which goes to it."""
        listed = self.find(label, Atspi.Role.LIST)
        wanted = wait_for(lambda: next((i for i in children(listed) if i.get_name() == item), None), item)
        self.type_into(listed, item)
        wait_for(lambda: has(wanted, Atspi.StateType.SELECTED), f"“{item}” to be chosen")

    def type_into(self, thing, text):
        self.focus(thing)
        for character in text:
            Atspi.generate_keyboard_event(ord(character), None, Atspi.KeySynthType.SYM)

    def cells(self):
        """The texts of the cells of the page that is seen, from the top."""
        def inside(thing):
            if thing.get_role() == Atspi.Role.TABLE_CELL:
                yield thing.get_name()
            for child in children(thing):
                yield from inside(child)

        def page():
            document = self.see(None, Atspi.Role.DOCUMENT_WEB)
            return document and list(inside(document))

        return wait_for(page, "the cells of a page")

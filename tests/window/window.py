"""Uses the program's window through the accessibility bus, as a person with a screen reader does."""

import sys
import time
from collections import namedtuple

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 20  # seconds; nothing here takes a fifth of them
POLL = 0.005  # seconds

# Roles by number: their names differ between versions of the bus.
BUTTON = Atspi.Role.PUSH_BUTTON
HEADING = Atspi.Role.HEADING
ALERT = Atspi.Role.ALERT
HOLDERS = Atspi.Role.PANEL, Atspi.Role.FILLER, Atspi.Role.LIST  # need no name

Alert = namedtuple("Alert", "title message buttons")  # the cancel button is the first


def fail(fact, details=""):
    print(f"not ok: {fact}\n{details}", flush=True)
    sys.exit(1)


def ok(fact):
    print(f"ok: {fact}", flush=True)


def same(fact, expected, actual):
    if expected != actual:
        fail(fact, f"expected {expected}\nactual   {actual}")
    ok(fact)


def came_true(condition):
    """The first true answer, or the last one. An object that vanishes meanwhile counts as no answer."""
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            answer = condition()
        except GLib.Error:
            answer = None
        if answer or time.monotonic() > deadline:
            return answer
        time.sleep(POLL)


def children(accessible):
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child is not None:
            yield child


class Window:
    def __init__(self, screen="Backup"):
        Atspi.init()
        # While a command runs on the program's main thread, the bus waits for it.
        Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)
        self._application = came_true(self._find) or fail("the window is on the bus")
        self._application.set_cache_mask(Atspi.Cache.NONE)
        self.wait_for_screen(screen)

    @staticmethod
    def _find():
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        return next((each for each in children(desktop) if each.get_name() == "Tarnwick"), None)

    def objects(self, below=None):
        """Everything that is offered, in the order of the tree."""
        for child in children(below or self._application):
            yield child
            yield from self.objects(child)

    def names(self, *roles, below=None):
        return [each.get_name() for each in self.objects(below) if each.get_role() in roles]

    def nameless(self):
        return [each.get_role_name() for each in self.objects()
                if each.get_role() not in HOLDERS and not each.get_name()]

    def wait_for(self, what, condition):
        return came_true(condition) or fail(f"never came true: {what}", "\n".join(
            f"{each.get_role_name()} {each.get_name()}: {each.get_description()}" for each in self.objects()))

    def press(self, name, below=None):
        button = self.wait_for(f'one button "{name}" is offered', lambda: self._only(name, below))
        actions = [button.get_action_name(index) for index in range(button.get_n_actions())]
        if not button.do_action(actions.index("Press")):
            fail(f'the button "{name}" can be pressed')

    def _only(self, name, below=None):
        found = [each for each in self.objects(below) if each.get_role() == BUTTON and each.get_name() == name]
        return found[0] if len(found) == 1 else None

    def _boxes(self):
        """Alerts and HUDs, with their buttons: HUDs have none."""
        for each in self.objects():
            if each.get_role() == ALERT:
                yield each, self.names(BUTTON, below=each)

    def alert(self, expected):
        """Waits for the alert."""
        return self.wait_for(f"the alert {expected}", lambda: self._find_alert(expected))

    def _find_alert(self, expected):
        for box, buttons in self._boxes():
            # The cancel button stands last.
            if Alert(box.get_name(), box.get_description(), buttons[-1:] + buttons[:-1]) == expected:
                return box
        return None

    def answer(self, expected, choice=None):
        """Waits for the alert and presses a button of it, the cancel button by default."""
        self.press(choice or expected.buttons[0], self.alert(expected))

    def hud(self, label):
        self.wait_for(f'the HUD "{label}"', lambda: any(
            box.get_name() == label and not buttons for box, buttons in self._boxes()))

    def wait_until_free(self):
        """No alert and no HUD is up any more."""
        self.wait_for("the screen is free", lambda: self._only("Menu") and not list(self._boxes()))

    def wait_for_screen(self, title):
        """It is in front, with the menu closed."""
        self.wait_for(f'the screen "{title}"', lambda: self._only("Menu") and title in self.names(HEADING)
                      and "Cloud" not in self.names(BUTTON))

    def open_menu(self):
        self.press("Menu")
        self.wait_for("the menu", lambda: "Cloud" in self.names(BUTTON))

    def go_to(self, title):
        self.open_menu()
        self.press(title)
        self.wait_for_screen(title)

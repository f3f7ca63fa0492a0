"""Drives the window of a device through the accessibility bus, as a person with a screen reader would, and reads from a
trace of its system calls what it did."""

import difflib
import pathlib
import re
import sys
import time
from collections import namedtuple

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 20  # seconds; nothing here takes a fifth of them
POLL = 0.005  # seconds
SAFEGUARD = "/var/mobile/Library/Preferences/Tarnwick"
LIBRARY = SAFEGUARD + "/TarnwickLibrary"

HOLDERS = "panel", "list"  # without a name, which these do not need
Alert = namedtuple("Alert", "title message buttons")  # the cancel button is the first


def fail(fact, details=""):
    print(f"not ok: {fact}\n{details}", flush=True)
    sys.exit(1)


def ok(fact):
    print(f"ok: {fact}", flush=True)


def same(fact, expected, actual):
    """Both are lists of lines."""
    if expected != actual:
        fail(fact, "\n".join(difflib.unified_diff(expected, actual, "expected", "actual", lineterm="")))
    ok(fact)


def came_true(condition):
    """The first true answer, or the last one. An object that goes while it is asked gives none."""
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            answer = condition()
        except GLib.Error:
            answer = None
        if answer or time.monotonic() > deadline:
            return answer
        time.sleep(POLL)


def wait_for(what, condition, actual):
    return came_true(condition) or fail(f"never came true: {what}", actual())


def without_figures(text):
    """Sizes differ from device to device."""
    return re.sub(r"\b\d+\.\d\d (bytes|B|KB|MB|GB)", "SIZE", text)


def words_of(accessible):
    """Role, name and description on one line."""
    words = accessible.get_role_name(), accessible.get_name(), accessible.get_description()
    return without_figures(" ".join(filter(None, words)).replace("\n", " "))


def shortened(line):
    return line if len(line) <= 75 else line[:75] + "..."


class Window:
    def __init__(self, screen="Backup"):
        Atspi.init()
        # Where a command runs on the program's main thread, the bus waits for it.
        Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)
        self._application = wait_for("the window is on the bus", self._find, str)
        # What the bus said before is of no use here.
        self._application.set_cache_mask(Atspi.Cache.NONE)
        self.wait_for_screen(screen)

    @staticmethod
    def _find():
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        return next((each for each in children(desktop) if each.get_name() == "Tarnwick"), None)

    def objects(self, below=None):
        """All that is offered, in the order of the tree."""
        for child in children(below or self._application):
            yield child
            yield from self.objects(child)

    def described(self):
        """Everything but what only holds others, the beginnings of long texts."""
        return [shortened(words) for words in map(words_of, self.objects()) if words not in HOLDERS]

    def expect_description(self, fact, expected):
        """Some of it may come later than the screen."""
        came_true(lambda: self.described() == expected)
        same(fact, expected, self.described())

    def _named(self, role, name, below=None):
        return [each for each in self.objects(below) if each.get_role_name() == role and each.get_name() == name]

    def press(self, name, below=None):
        button = wait_for(f'one button "{name}" is offered', lambda: self._only(name, below), self._all)
        actions = [button.get_action_name(index) for index in range(button.get_n_actions())]
        if not button.do_action(actions.index("Press")):
            fail(f'the button "{name}" can be pressed')

    def _only(self, name, below):
        found = self._named("push button", name, below)
        return found[0] if len(found) == 1 else None

    def _all(self):
        return "\n".join(map(words_of, self.objects()))

    def _boxes(self):
        """Alerts and HUDs: only alerts have buttons."""
        for each in self.objects():
            if each.get_role_name() == "alert":
                yield each, [part.get_name() for part in self.objects(each) if part.get_role_name() == "push button"]

    def alert(self, expected):
        """The alert when it is up, as an object of the bus."""
        return wait_for(f"the alert {expected}", lambda: self._find_alert(expected), self._all)

    def _find_alert(self, expected):
        for box, buttons in self._boxes():
            message = without_figures(box.get_description())
            # The cancel button stands last.
            if Alert(box.get_name(), message, buttons[-1:] + buttons[:-1]) == expected:
                return box
        return None

    def answer(self, expected, choice=None):
        """Waits for the alert and presses a button of it, the cancel button unless told."""
        self.press(choice or expected.buttons[0], self.alert(expected))

    def answer_for_the_last_time(self, expected, choice):
        """The choice ends the program within the call."""
        try:
            self.answer(expected, choice)
        except GLib.Error:
            pass

    def hud(self, label):
        """It is up, and has no buttons."""
        wait_for(f'the HUD "{label}"', lambda: self._has_hud(label), self._all)

    def _has_hud(self, label):
        return any(box.get_name() == label and not buttons for box, buttons in self._boxes())

    def wait_until_alerts_are_gone(self):
        wait_for("no alert is up", lambda: self._named("push button", "Menu") and
                 not any(buttons for _, buttons in self._boxes()), self._all)

    def wait_until_free(self):
        """No alert is up and no HUD, both faded out."""
        wait_for("the screen is free", lambda: self._named("push button", "Menu") and not list(self._boxes()),
                 self._all)

    def wait_for_screen(self, title):
        """It stands alone, with the menu closed."""
        wait_for(f'the screen "{title}"', lambda: self._stands_alone(title), self._all)

    def _stands_alone(self, title):
        return self._only("Menu", None) and self._named("heading", title) and not self._named("push button", "Cloud")

    def is_offered(self, name):
        return self._only(name, None) is not None

    def open_menu(self):
        self.press("Menu")
        wait_for("the menu", lambda: self._named("push button", "Cloud"), self._all)

    def go_to(self, title):
        self.open_menu()
        self.press(title)
        self.wait_for_screen(title)


def children(accessible):
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child is not None:
            yield child


class Table:
    """The table of what each verb does."""

    def __init__(self):
        file = pathlib.Path(__file__).parent.parent / "events" / "events.txt"
        parts = re.findall(r"^\[(.*)\]\n((?:.+\n)*)", file.read_text(), re.MULTILINE)
        self._scenes = {name: text.splitlines() for name, text in parts}

    def changes(self, scene):
        return [line for line in self._scenes[scene] if re.match("(run|remove|create folder): ", line)]

    def alerts(self, scene):
        return [alert_in(line) for line in self._scenes[scene] if line.startswith("alert: ")]

    def question(self, title, number=0):
        """One of those with that title."""
        return [each for each in self.alerts("questions") if each.title == title][number]


def alert_in(line):
    title, message, buttons = re.fullmatch(r"alert: (.*?): (.*) \[(.*)\] #\d+", line).groups()
    return Alert(title, without_figures(message.replace("\\n", "\n")), buttons.split(", "))


class Trace:
    """What the program did since it was asked last: each shell that is started with a line, and each change that one
    of its own threads makes. Removing tries the path as a file first and then as a folder."""

    def __init__(self, phone):
        self._file = open(phone / "var/root/trace", encoding="utf-8")
        self._rest = ""
        self._seen = []
        self._commands = set()  # processes that are another program by now
        self._unfinished = {}

    def expect(self, fact, changes):
        same(fact, changes, self._take_seen(len(changes)))

    def expect_in_any_order(self, fact, changes):
        """For changes that two threads make at once: only the command lines have an order."""
        def lines_first(line):
            return "" if line.startswith("run: ") else line

        seen = self._take_seen(len(changes))
        same(fact, sorted(changes, key=lines_first), sorted(seen, key=lines_first))

    def _take_seen(self, count):
        came_true(lambda: len(self._read()) >= count)
        seen, self._seen = self._seen, []
        return seen

    def _read(self):
        *lines, self._rest = (self._rest + self._file.read()).split("\n")
        for line in lines:
            self._take(*line.split(maxsplit=1))
        return self._seen

    def _take(self, process, call):
        if call.endswith("<unfinished ...>"):
            self._unfinished[process] = call.removesuffix("<unfinished ...>")
            return
        if call.startswith("<... "):
            call = self._unfinished.pop(process, "") + call.partition(" resumed>")[2]
        if not re.search(r"\) += 0$", call):
            return
        if call.startswith("execve("):
            self._take_start(process, call)
        elif process not in self._commands:
            self._take_change(call)

    def _take_start(self, process, call):
        if "RootTarnwick2" not in call.split(",")[0]:
            self._commands.add(process)
        if line := re.match(r'execve\("/bin/sh", \["sh", "-c", "(.*)"\]', call):
            self._seen.append("run: " + line[1])

    def _take_change(self, call):
        if change := re.match(r'(rmdir|unlink|mkdir)\("(/.*?)"', call):
            self._seen.append(("create folder: " if change[1] == "mkdir" else "remove: ") + change[2])


class StandIns:
    """Stand before tools of the device: they wait for as long as they are told and may do nothing."""

    def __init__(self, phone, **tools):
        self._folder = phone / "var/root"
        for name, path in tools.items():
            file = phone / "sbin" / name
            file.write_text("#!/bin/bash\nwhile test -e /var/root/hold; do sleep 0.02; done\n"
                            f'test -e /var/root/refuse || exec {path} "$@"\n')
            file.chmod(0o755)

    def tell(self, word):
        (self._folder / word).touch()

    def untell(self, word):
        (self._folder / word).unlink()


# One row for each data set: its verb, and its names on the screens Backup, Restore and in the choice of Backup Size.
ITEMS = [
    ("tweaks-prefs", "Tweaks' Preferences", "Tweaks' Preferences", "Tweaks' Preferences"),
    ("accounts", "Accounts", "Accounts", "Accounts"),
    ("calendar", "Calendar", "Calendar", "Calendar Events"),
    ("call-history", "Call History", "Call History", "Call History"),
    ("contacts", "Contacts", "Contacts", "Contacts"),
    ("messages", "Messages/iMessages", "Messages/iMessages", "Messages / iMessages"),
    ("notes", "Notes", "Notes", "Notes"),
    ("photos", "Photos and Videos", "Photos", "Photos / Videos"),
    ("safari", "Safari Bookmarks", "Safari Bookmarks", "Safari Bookmarks"),
    ("springboard", "SpringBoard", "SpringBoard", "SpringBoard"),
    ("voicemails", "Voicemails", "Voicemails", "Voicemails"),
]


class Session:
    """A run of the program on the device whose folder is given, which has just been started."""

    def __init__(self, phone):
        self.phone = pathlib.Path(phone)
        self.table = Table()
        self.window = Window()
        self.trace = Trace(self.phone)

    def file(self, path):
        return self.phone / path.lstrip("/")

    def ask(self, button, *questions):
        """Presses the button and answers (question, choice) after (question, choice)."""
        self.window.press(button)
        for question, choice in questions:
            self.window.answer(question, choice)

    def task(self, scene, button, *questions, choice=None, then=()):
        """Presses the button, answers the questions that lead to the task, and compares all that follows with the
        scene and with what the choice in its alert leads to."""
        self.ask(button, *questions)
        self.finish(scene, choice, then)

    def finish(self, scene, choice=None, then=()):
        """The last alert is the first to be answered."""
        for alert in reversed(self.table.alerts(scene)):
            self.window.answer(alert, choice)
        self.window.wait_until_free()
        expect = self.trace.expect_in_any_order if scene.startswith("size ") else self.trace.expect
        expect(f"{scene}: the alerts, the command lines and the changes are the table's",
               self.table.changes(scene) + list(then))

    def nothing_follows(self, fact, button, *questions):
        """Each question is answered, and then nothing happens."""
        self.ask(button, *questions)
        self.window.wait_until_free()
        self.trace.expect(fact, [])


def session():
    return Session(sys.argv[1])

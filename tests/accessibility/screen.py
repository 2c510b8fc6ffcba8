"""The program as a screen reader meets it: by roles and names, actions and texts, the keyboard, and what it tells of itself."""
import collections
import contextlib
import os
import re
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree as ElementTree

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

Role, State = Atspi.Role, Atspi.StateType
PATIENCE = 60

# What a person presses, fills in or chooses from: each has a name, and each that is focusable is reached by Tab.
CONTROLS = {Role.PUSH_BUTTON, Role.TOGGLE_BUTTON, Role.CHECK_BOX, Role.RADIO_BUTTON, Role.COMBO_BOX, Role.ENTRY, Role.TEXT,
            Role.PASSWORD_TEXT, Role.SPIN_BUTTON, Role.SLIDER, Role.LIST, Role.LIST_BOX, Role.TABLE, Role.TREE, Role.TREE_TABLE,
            Role.PAGE_TAB_LIST}
NAMED = CONTROLS - {Role.PAGE_TAB_LIST} | {Role.PAGE_TAB, Role.MENU, Role.MENU_ITEM, Role.CHECK_MENU_ITEM, Role.PROGRESS_BAR,
                                           Role.DIALOG}

Heard = collections.namedtuple("Heard", "event role name description text")


class Words:
    """What the program says, from the file of its translation; in English where there is none."""

    def __init__(self, path=None):
        self.texts = {}
        for context in ElementTree.parse(path).iter("context") if path else ():
            for message in context.iter("message"):
                self.texts[context.findtext("name"), message.findtext("source")] = message.findtext("translation")

    def __call__(self, context, source):
        text = self.texts[context, source] if self.texts else source
        return re.sub("&(.)", r"\1", text)  # the letter to press

    def pattern(self, context, source):
        return re.compile(re.sub("%.", ".*", re.escape(self(context, source))), re.DOTALL)


class Screen:
    """The program, running, and what is shown of it. Ends it at the end."""

    def __init__(self, program, language=None, translations=None):
        Atspi.init()
        self.say = Words(os.path.join(translations, f"quillorent_{language}.ts") if language else None)
        self.heard, self.focused, self.application = [], None, Atspi.get_desktop(0)
        Atspi.set_timeout(PATIENCE * 1000, 0)
        # What was true a moment ago is of no use here.
        Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in ("object", "window", "focus"):
            self.listener.register(kind)
        environment = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        if language:
            # The texts of a locale that the machine may not have.
            environment.update(LC_ALL=f"{language}_{language.upper()}.UTF-8", LANGUAGE=language)
        self.program = subprocess.Popen([program], env=environment)
        self.application = self.wait_for(self.find_application, "the program on the accessibility bus")

    def find_application(self):
        desktop = Atspi.get_desktop(0)
        all_of_them = (desktop.get_child_at_index(number) for number in range(desktop.get_child_count()))
        return next((each for each in all_of_them if each and each.get_process_id() == self.program.pid), None)

    def end(self):
        if self.program.poll() is None:
            self.program.kill()
        self.program.wait()

    def quit(self):
        self.choose_in_menu(self.say("MainWindow", "&Quit"))
        status = self.program.wait(PATIENCE)
        assert status == 0, f"the program ended with {status}"

    # Waiting, and what is heard meanwhile.

    def hear(self, event):
        with contextlib.suppress(GLib.Error):  # who has told something may be gone
            source = event.source
            text = event.any_data if isinstance(event.any_data, str) else ""
            self.heard.append(Heard(event.type, source.get_role(), source.get_name(), source.get_description(), text))
            if event.type.startswith("object:state-changed:focused") and event.detail1:
                self.focused = source

    def listen(self, milliseconds=20):
        GLib.timeout_add(milliseconds, lambda: False)  # wakes up the next line
        context = GLib.MainContext.default()
        context.iteration(True)
        while context.pending():
            context.iteration(False)

    def wait_for(self, look, what):
        end = time.monotonic() + PATIENCE
        while True:
            self.listen()
            with contextlib.suppress(GLib.Error):  # what was looked at is gone: look again
                if found := look():
                    return found
            assert self.program.poll() is None, f"the program has ended ({self.program.poll()}); waited for {what}"
            assert time.monotonic() < end, f"waited in vain for {what}; there is\n{self.outline()}"

    # Finding.

    def walk(self, root, hidden=False):
        for number in range(root.get_child_count()):
            child = root.get_child_at_index(number)
            if child and (hidden or has(child, State.SHOWING)):
                yield child
                yield from self.walk(child, hidden)

    def all(self, role, name=None, within=None):
        """What is shown of that role and name, which is a text or a pattern."""
        pattern = re.compile(re.escape(name)) if isinstance(name, str) else name
        for each in self.walk(within or self.application):
            if each.get_role() == role and (not pattern or pattern.fullmatch(each.get_name())):
                yield each

    def find(self, role, name=None, within=None, state=State.SHOWING):
        """The first that is shown, once it is and has the state."""
        return self.wait_for(lambda: next((each for each in self.all(role, name, within) if has(each, state)), None),
                             f"{Atspi.role_get_name(role)} “{name}”")

    def sheets(self):
        return (each for each in self.walk(self.application)
                if each.get_role() in (Role.DIALOG, Role.FILE_CHOOSER, Role.ALERT))

    def outline(self):
        lines = []
        with contextlib.suppress(GLib.Error):
            lines = [f"  {each.get_role_name()} “{each.get_name()}”" for each in self.walk(self.application)]
        return "\n".join(lines)

    # Doing.

    def press(self, role, name, within=None):
        press(self.find(role, name, within, State.SENSITIVE))

    def choose_in_menu(self, name):
        entries = [each for each in self.walk(self.find(Role.MENU_BAR), hidden=True) if each.get_name() == name]
        assert entries, f"no menu has “{name}”"
        press(entries[0])

    def focus(self, control):
        """By Tab: the toolkit's lists and combo boxes do nothing when a screen reader gives them the focus."""
        for _ in range(100):
            if control.path in with_parents(self.tab()):
                return
        raise AssertionError(f"Tab doesn't lead to “{control.get_name()}”")

    def tab(self):
        """What gets the focus; none where it stays."""
        self.focused = None
        self.key(0xFF09)
        end = time.monotonic() + 1
        while not self.focused and time.monotonic() < end:
            self.listen()
        return self.focused

    def key(self, keysym):
        Atspi.generate_keyboard_event(keysym, None, Atspi.KeySynthType.SYM)

    def type(self, text):
        for character in text:
            self.key(ord(character))

    def choose(self, path):
        """Answers the chooser that is about to open."""
        chooser = self.wait_for(lambda: next(self.sheets(), None), "the chooser")
        next(each for each in self.all(Role.TEXT, within=chooser) if has(each, State.EDITABLE)).set_text_contents(path)
        press(self.wait_for(lambda: next((each for each in self.all(Role.PUSH_BUTTON, within=chooser)
                                          if has(each, State.IS_DEFAULT) and has(each, State.SENSITIVE)), None),
                            "the chooser to take what was typed"))
        self.wait_for(lambda: not any(self.sheets()), "the chooser to close")

    # What must hold of each view.

    def complaints(self, view):
        """What somebody who doesn't see the screen, or has no mouse, can't use of the view."""
        found = [f"a {each.get_role_name()} without a name, of “{parent_names(each)}”"
                 for each in [view, *self.walk(view)] if each.get_role() in NAMED and not name_of(each)]
        found += [f"markup is told of “{each.get_name()}”" for each in self.walk(view) if "</" in each.get_description()]
        reached = self.reached_by_tab(view)
        for each in self.walk(view):
            isOfKeyboard = each.get_role() in CONTROLS and has(each, State.FOCUSABLE) and has(each, State.SENSITIVE)
            # A text for reading is a stop only where it scrolls; who can't see it reads it without the keyboard's focus.
            isForReading = each.get_role() == Role.TEXT and not has(each, State.EDITABLE)
            if isOfKeyboard and not isForReading and each.path not in reached:
                found.append(f"Tab never reaches the {each.get_role_name()} “{each.get_name()}”")
        return found

    def reached_by_tab(self, view):
        """The paths of what gets the focus by Tab, once round, and of all that it lies in."""
        start = next((each for each in self.walk(view) if each.get_role() in CONTROLS and has(each, State.FOCUSED)), None)
        rounds, reached = [start.path] if start else [], set(with_parents(start))
        silent = 0
        while len(rounds) < 200 and silent < 8:
            now = self.tab()
            if not now:  # it went to another link of a text, or there is but one stop
                silent += 1
                continue
            if now.path in rounds[:1]:
                break
            silent = 0
            rounds.append(now.path)
            reached.update(with_parents(now))
        return reached


def has(accessible, state):
    return accessible.get_state_set().contains(state)


def name_of(accessible):
    """A combo box is called what is chosen in it, and named by its label."""
    if accessible.get_role() != Role.COMBO_BOX:
        return accessible.get_name().strip()
    labels = [each.get_target(0) for each in accessible.get_relation_set()
              if each.get_relation_type() == Atspi.RelationType.LABELLED_BY]
    return labels[0].get_name() if labels else ""


def press(accessible):
    names = [accessible.get_action_name(number).lower() for number in range(accessible.get_n_actions())]
    wanted = next((name for name in ("press", "toggle") if name in names), None)
    assert wanted, f"“{accessible.get_name()}” can't be pressed; it offers {names}"
    Atspi.set_timeout(1000, 0)
    with contextlib.suppress(GLib.Error):  # some answer only when the sheet that they open is closed
        accessible.do_action(names.index(wanted))
    Atspi.set_timeout(PATIENCE * 1000, 0)


def contents(accessible):
    """All that it says: name, description and text."""
    text = accessible.get_text_iface()
    said = Atspi.Text.get_text(text, 0, Atspi.Text.get_character_count(text)) if text else ""
    return "\n".join((accessible.get_name(), accessible.get_description(), said))


def with_parents(accessible):
    while accessible:
        yield accessible.path
        accessible = accessible.get_parent()


def parent_names(accessible):
    names = []
    while accessible := accessible.get_parent():
        names.append(accessible.get_name() or accessible.get_role_name())
    return " < ".join(names)


def run(story):
    """Runs story(screen, home, …) in a session and a home of its own, on the display that is there: BUILD [LANGUAGE]."""
    build, *language = sys.argv[1:]
    if "QUILLORENT_SESSION" not in os.environ:
        with tempfile.TemporaryDirectory(prefix="quillorent-a11y-", ignore_cleanup_errors=True) as home:
            runtime = os.path.join(home, "run")
            os.mkdir(runtime, 0o700)
            environment = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "DBUS_", "LANG"))}
            environment.update(QUILLORENT_SESSION=home, HOME=home, XDG_RUNTIME_DIR=runtime, GSETTINGS_BACKEND="memory",
                               LC_ALL="C.UTF-8")
            sys.exit(subprocess.run(["dbus-run-session", "--", sys.executable, "-B", *sys.argv], env=environment).returncode)
    home = os.environ["QUILLORENT_SESSION"]
    ready = os.path.join(home, "run/ready")
    # Somebody has to give windows the keyboard.
    manager = subprocess.Popen(["openbox", "--startup", f"touch {ready}"], stderr=subprocess.DEVNULL)
    screen = None
    try:
        while not os.path.exists(ready):
            assert manager.poll() is None, "there is no window manager"
            time.sleep(0.02)
        screen = Screen(os.path.join(build, "bin/quillorent"), *language,
                        translations=os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../translations"))
        story(screen, home)
        screen.quit()
    except AssertionError as failure:
        sys.exit(f"{os.path.basename(sys.argv[0])}: {failure}")
    finally:
        if screen:
            screen.end()
        manager.kill()
        manager.wait()

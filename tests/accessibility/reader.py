"""What a screen reader knows of the program: things with names and states, and what it is told of their changes."""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

State = Atspi.StateType
Role = Atspi.Role
# Seconds for what must come, and for what is to be told of it.
PATIENCE = 20
HEARING = 5

KEYS = {"Down": 0xFF54, "Up": 0xFF52, "Return": 0xFF0D, "Escape": 0xFF1B, "Home": 0xFF50, "F6": 0xFFC3,
        "Right": 0xFF53}


class Lost(Exception):
    """What was waited for has not come."""


def settle(seconds=0.0):
    """Takes in what the program tells, for so long at least."""
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while True:
        while context.iteration(False):
            pass
        if time.monotonic() >= end:
            return
        time.sleep(0.005)


def wait_for(condition, what, patience=PATIENCE):
    """What the condition gives, as soon as it is more than nothing."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        settle()
        try:
            found = condition()
        except GLib.Error:  # It went while it was asked.
            found = None
        if found:
            return found
        time.sleep(0.01)
    raise Lost(what)


def application():
    desktop = Atspi.get_desktop(0)

    def kinbook():
        apps = (desktop.get_child_at_index(i) for i in range(desktop.get_child_count()))
        return next((app for app in apps if app and app.get_name() == "kinbook"), None)

    found = wait_for(kinbook, "the program")
    # Every question goes to the program itself, and none is answered from memory.
    found.set_cache_mask(Atspi.Cache.NONE)
    return found


def children(thing):
    return [child for i in range(thing.get_child_count()) if (child := thing.get_child_at_index(i))]


def within(thing):
    """All that stands in the thing, from the top down, each asked for once; of a combo's list not the entries."""
    for child in children(thing):
        seen = Seen(child)
        yield seen
        if seen.get_role() != Role.LIST:
            yield from within(child)


class Seen:
    """A thing with what it said of itself when it was come upon."""

    def __init__(self, thing):
        self.thing = thing
        self._role = thing.get_role()
        self._name = thing.get_name()
        self._states = thing.get_state_set()

    def get_role(self):
        return self._role

    def get_name(self):
        return self._name

    def get_state_set(self):
        return self._states

    def __getattr__(self, other):
        return getattr(self.thing, other)


def has(thing, *states):
    known = thing.get_state_set()
    return all(known.contains(state) for state in states)


def name(thing):
    return (thing.get_name() or "").strip() if thing else ""


def told(thing):
    return f"{thing.get_role_name()} '{name(thing)}'"


def find(thing, role, wanted=None):
    """The first that shows within the thing, of that role and name; None if there is none."""
    return next((each.thing for each in within(thing)
                 if each.get_role() == role and wanted in (None, name(each)) and has(each, State.SHOWING)), None)


def press(key):
    """Presses and releases a key of the keyboard."""
    Atspi.generate_keyboard_event(KEYS.get(key) or ord(key), None, Atspi.KeySynthType.SYM)


def click(thing):
    """Clicks the middle of a thing."""
    place = thing.get_extents(Atspi.CoordType.SCREEN)
    Atspi.generate_mouse_event(place.x + place.width // 2, place.y + place.height // 2, "b1c")


class Ear:
    """Hears what the program tells; each event with what its source said of itself just then.

    It must be there before the program starts: in the moment between the toolkit's question who listens and its wish
    to be told of later listeners, one who comes is overlooked until the next does.
    """

    def __init__(self, *kinds):
        self.heard = []
        self._listener = Atspi.EventListener.new(self._hear)
        for kind in kinds:
            self._listener.register(kind)

    def _hear(self, event):
        # That a state ends says nothing that is asked here.
        if ":state-changed:" in event.type and not event.detail1:
            return
        try:
            self.heard.append((event.type, Seen(event.source)))
        except GLib.Error:
            pass  # Its source has gone since.

    def take(self, complete=None):
        """What was heard since it was last taken, as soon as it is complete; what came if that doesn't come."""
        if complete:
            try:
                wait_for(lambda: complete(self.heard), "what completes it", HEARING)
            except Lost:
                pass  # Then what was heard shows what is missing.
        settle()
        heard, self.heard = self.heard, []
        return heard

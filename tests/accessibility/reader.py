"""What a screen reader knows of the program: things with names and states, and what it is told of their changes.

Speaks with the program over the bus of the screen readers itself. Questions that don't hang on each other's answers are
sent off together: most of the time goes by between a question and its answer.
"""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

State = Atspi.StateType
Role = Atspi.Role

# Seconds for what must come, and for what is to be told of it; between two looks.
PATIENCE = 20
HEARING = 5
PAUSE = 0.01

KEYS = {"Down": 0xFF54, "Up": 0xFF52, "Return": 0xFF0D, "Escape": 0xFF1B, "Home": 0xFF50, "F6": 0xFFC3,
        "Right": 0xFF53}

ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
TABLE = "org.a11y.atspi.Table"
PROPERTIES = "org.freedesktop.DBus.Properties"
ROOT = "/org/a11y/atspi/accessible/root"
REGISTRY = "org.a11y.atspi.Registry"
ON_SCREEN = 0  # How the bus counts places.


class Lost(Exception):
    """What was waited for has not come."""


class Gone(Exception):
    """What was asked is no more."""


# Questions ------------------------------------------------------------------------------------------------------------


def connect():
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    address, = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                 Gio.DBusCallFlags.NONE, -1).unpack()
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)


BUS = connect()


def send(place, interface, method, arguments, on_answer):
    """Sends a question off to a place, a name on the bus with a path; its answer comes in its time, None if it is gone."""
    def came(bus, result):
        try:
            on_answer(bus.call_finish(result).unpack())
        except GLib.Error:
            on_answer(None)

    BUS.call(*place, interface, method, arguments, None, Gio.DBusCallFlags.NONE, PATIENCE * 1000, None, came)


def ask(questions):
    """The answers to questions of place, interface, method and arguments, sent off together."""
    answers = {}
    for number, question in enumerate(questions):
        send(*question, lambda answer, number=number: answers.setdefault(number, answer))
    while len(answers) < len(questions):
        GLib.MainContext.default().iteration(True)
    if None in answers.values():
        raise Gone("a thing that was asked")
    return [answers[number] for number in range(len(questions))]


def get_property(things, interface, key):
    """What each of the things answers for a property."""
    return [answer for answer, in ask([(thing.place, PROPERTIES, "Get", GLib.Variant("(ss)", (interface, key)))
                                       for thing in things])]


class Thing:
    """What stood at a place of the program, with what it said of itself when it was looked at; `below` if it was asked."""

    QUESTIONS = (("GetRole", ACCESSIBLE, None), ("GetState", ACCESSIBLE, None), ("GetChildren", ACCESSIBLE, None),
                 ("Get", PROPERTIES, GLib.Variant("(ss)", (ACCESSIBLE, "Name"))))

    def __init__(self, place, answers, parent=None):
        (self.role,), (states,), (below,), (self.name,) = answers
        self.place = place
        self.parent = parent
        self.name = self.name.strip()
        self._states = states[0] | states[1] << 32
        self.places_below = [each for each in below if not each[1].endswith("/null")]
        self.below = []

    def has(self, *states):
        return all(self._states >> state & 1 for state in states)

    def __str__(self):
        return f"{Role(self.role).value_nick.replace('-', ' ')} '{self.name}'"

    @classmethod
    def questions(cls, place):
        return [(place, interface, method, arguments) for method, interface, arguments in cls.QUESTIONS]


def look(places, parents=None):
    """What stands at the places now."""
    answers = ask([question for place in places for question in Thing.questions(place)])
    size = len(Thing.QUESTIONS)
    return [Thing(place, answers[number * size:(number + 1) * size], parents[number] if parents else None)
            for number, place in enumerate(places)]


def now(thing):
    return look([thing.place])[0]


def children(thing):
    return look(thing.places_below, [thing] * len(thing.places_below))


def within(thing, through=lambda each: each.role != Role.LIST):
    """All that stands in the thing, from the top down; of what is not gone through, a combo's list, only itself."""
    thing.below = []
    level = [thing]
    while level:
        pairs = [(place, each) for each in level for place in each.places_below]
        level = look([place for place, _ in pairs], [parent for _, parent in pairs])
        for each in level:
            each.parent.below.append(each)
        level = [each for each in level if through(each)]
    return list(flat(thing))


def flat(thing):
    for each in thing.below:
        yield each
        yield from flat(each)


def find(thing, role, wanted=None):
    """The first that shows within the thing, of that role and name; None if there is none."""
    shown = within(now(thing), lambda each: each.role != Role.LIST and each.has(State.SHOWING))
    return next((each for each in shown if each.role == role and wanted in (None, each.name) and each.has(State.SHOWING)),
                None)


def application():
    """The running program."""
    def kinbook():
        return next((app for app in children(look([(REGISTRY, ROOT)])[0]) if app.name == "kinbook"), None)

    return wait_for(kinbook, "the program")


# Waiting --------------------------------------------------------------------------------------------------------------


def take_in():
    """Takes in what the program has told."""
    while GLib.MainContext.default().iteration(False):
        pass


def wait_for(condition, what, patience=PATIENCE):
    """What the condition gives, as soon as it is more than nothing."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        take_in()
        try:
            found = condition()
        except Gone:
            found = None
        if found:
            return found
        time.sleep(PAUSE)
    raise Lost(what)


def steady(state, what):
    """What the function gives, as soon as it gives the same at three looks one after the other.

    A program that is slow is slow to answer: between two answers it has done what it had to do before the second.
    """
    seen = []

    def same():
        seen.append(state())
        return len(seen) > 2 and seen[-1] == seen[-2] == seen[-3]

    wait_for(same, f"an end of the changes of {what}")
    return seen[-1]


# Hands ----------------------------------------------------------------------------------------------------------------


def press(key):
    """Presses and releases a key of the keyboard."""
    _play("GenerateKeyboardEvent", GLib.Variant("(isu)", (KEYS[key], "", int(Atspi.KeySynthType.SYM))))


def click(thing):
    """Clicks the middle of a thing."""
    ((x, y, width, height),), = ask([(thing.place, COMPONENT, "GetExtents", GLib.Variant("(u)", (ON_SCREEN,)))])
    _play("GenerateMouseEvent", GLib.Variant("(iis)", (x + width // 2, y + height // 2, "b1c")))


def _play(method, arguments):
    ask([((REGISTRY, "/org/a11y/atspi/registry/deviceeventcontroller"), "org.a11y.atspi.DeviceEventController", method,
          arguments)])


# Ears -----------------------------------------------------------------------------------------------------------------


class Ear:
    """Hears what the program tells; each event with what its source said of itself just then.

    `kinds`: of events, as the bus calls them: class, event and detail.

    It must be there before the program starts: in the moment between the toolkit's question who listens and its wish
    to be told of later listeners, one who comes is overlooked until the next does.
    """

    def __init__(self, *kinds):
        self._kinds = kinds
        self._heard = []
        self._asked = 0
        BUS.signal_subscribe(None, "org.a11y.atspi.Event.Object", None, None, None, Gio.DBusSignalFlags.NONE, self._hear)
        ask([((REGISTRY, "/org/a11y/atspi/registry"), REGISTRY, "RegisterEvent", GLib.Variant("(sass)", (kind, [], "")))
             for kind in kinds])

    def _hear(self, _bus, sender, path, _interface, event, arguments):
        detail, begins, *_ = arguments.unpack()
        kind = f"Object:{event}:{detail.title().replace('-', '')}"
        # That a state ends says nothing that is asked here.
        if kind not in self._kinds or (event == "StateChanged" and not begins):
            return
        answers = []

        def answered(answer):
            answers.append(answer)
            if len(answers) == len(Thing.QUESTIONS):
                self._asked -= 1
                if None not in answers:  # Else its source has gone since.
                    self._heard.append((kind, Thing((sender, path), answers)))

        self._asked += 1
        for question in Thing.questions((sender, path)):
            send(*question, answered)

    def heard(self):
        """What was heard since it was last taken."""
        take_in()
        while self._asked:
            GLib.MainContext.default().iteration(True)
        return self._heard

    def take(self, complete=None):
        """What was heard since it was last taken, as soon as it is complete; what came if that doesn't come."""
        if complete:
            try:
                wait_for(lambda: complete(self.heard()), "what completes it", HEARING)
            except Lost:
                pass  # Then what was heard shows what is missing.
        heard, self._heard = self.heard(), []
        return heard

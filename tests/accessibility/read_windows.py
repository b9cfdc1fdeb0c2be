#!/usr/bin/python3
"""Starts a Kinbook, walks through its windows with the keyboard and the mouse, and asks each what a screen reader asks.

read_windows.py PROGRAM prints a line for each window. Its exit status is 1 if one of them breaks a rule.
"""

import subprocess
import sys
import time

import rules
from reader import (COMPONENT, Ear, Gone, Lost, Role, State, application, ask, children, click, find, now, press, steady,
                    wait_for, within)

# The host takes eleven windows; the member's own stays open throughout.
MOST_OPEN = 7
FOCUS = "Object:StateChanged:Focused"
# What tells that a status line changed: its own name, and the note in it that comes up.
OF_STATUS = ("Object:PropertyChange:AccessibleName", "Object:StateChanged:Showing")
PASSWORDS = "PINs And Passwords"
# What belongs to a property has windows of its own, which keys of the toolbar open.
CHILDREN = ("Inventory", "Improvements", "Outbuildings")


class Walk:
    def __init__(self, ear, expected):
        self.expected = expected
        self.rows = []
        self.broken = []
        self.opened = []
        self.ear = ear
        self.app = application()
        self.host = wait_for(self.main_window, "the host window")
        self.pane = wait_for(lambda: find(self.host, Role.LAYERED_PANE), "the room of the windows")
        self.nodes = []

    # What there is ---------------------------------------------------------------------------------------------------

    def main_window(self):
        return next((each for each in children(now(self.app)) if each.role == Role.FRAME and each.has(State.SHOWING)), None)

    def boxes(self):
        """Dialogs and boxes, and the pages of the help, in the order in which they came up."""
        return [each for each in children(now(self.app)) if each.place != self.host.place and each.has(State.SHOWING)
                and not each.has(State.ICONIFIED) and each.name != self.host.name]

    def front(self):
        """The title of the child window in front, as the host's own title has it."""
        title = now(self.host).name
        return title.split(" - [", 1)[1][:-1] if " - [" in title else ""

    def state(self):
        """What a step changes."""
        return self.front(), [each.place for each in self.boxes()]

    def child(self, title):
        return next((each for each in children(now(self.pane)) if each.name == title and each.has(State.SHOWING)), None)

    def look_at_tree(self):
        """Takes in the nodes that are not within a closed one."""
        self.tree = find(self.host, Role.TREE)
        self.nodes = [node for node in children(self.tree) if node.role == Role.TABLE_CELL]

    # Steps -----------------------------------------------------------------------------------------------------------

    def changed(self, step, what):
        """Takes a step; what stands there before it and as soon as all is changed that it changes."""
        before = self.state()
        self.ear.take()
        step()
        wait_for(lambda: self.state() != before, what)
        return before, steady(self.state, what)

    def do(self, step, what):
        """Takes a step and gives the window, dialog or box that it opens."""
        (_, before), (front, after) = self.changed(step, f"a window after {what}")
        if len(after) > len(before):
            return self.boxes()[-1]
        return wait_for(lambda: self.child(front), f"the window '{front}'")

    def press_in(self, thing, key):
        """Presses a key once the keyboard is the thing's window's, which the window manager gives it in its own time."""
        wait_for(lambda: now(thing).has(State.ACTIVE), f"the keyboard in {thing}")
        press(key)

    def choose_member(self, keys):
        combo = find(self.host, Role.COMBO_BOX)
        for _ in range(keys):
            ask([(combo.place, COMPONENT, "GrabFocus", None)])
            wait_for(lambda: now(combo).has(State.FOCUSED), "the focus in the selector")
            window = self.do(lambda: press("Down"), "choosing from the selector")
        return window

    def selected(self):
        """The place of the node that is chosen, among those that show."""
        return next(place for place, node in enumerate(map(now, self.nodes)) if node.has(State.SELECTED))

    def go_to(self, place):
        """To a node by its place among those that show."""
        away = place - self.selected()
        for _ in range(abs(away)):
            press("Down" if away > 0 else "Up")
        wait_for(lambda: now(self.nodes[place]).has(State.SELECTED), f"the node {self.nodes[place]}")

    def enter_tree(self):
        for _ in range(4):
            if now(self.tree).has(State.FOCUSED):
                return
            self.ear.take()
            press("F6")
            self.ear.take(focused)
        raise Lost("the focus in the tree")

    def close(self, box, key="Escape"):
        self.changed(lambda: self.press_in(box, key), f"the end of {box}")

    def close_window(self):
        """Closes the child window in front, by Cancel if it is being filled in, then by Close."""
        title = self.front()
        for button in ("Cancel", "Close"):
            shown = find(wait_for(lambda: self.child(title), f"the window '{title}'"), Role.PUSH_BUTTON, button)
            if shown and shown.has(State.ENABLED):
                self.changed(lambda: click(shown), f"the end of '{title}'")
                return

    def menu(self, *entries):
        for entry in entries:
            click(wait_for(lambda: find(self.app, Role.MENU_ITEM, entry), f"the menu entry {entry}"))

    # Checks ----------------------------------------------------------------------------------------------------------

    def check(self, title, window, own=(), further=()):
        """Prints a line of the table, with what every window must hold, the lines of its own and further rules for it.

        Gives what stands in the window.
        """
        things = within(now(window))
        shown = rules.controls(things)
        general = (rules.names, rules.combos, rules.tables)
        broken = [line for rule in (*general, *further) for line in rule(things)] + list(own)
        broken.extend(rules.focus(focused(self.ear.take())))
        self.broken.extend(f"{title}: {line}" for line in broken)
        row = (title, len(shown), sum(each.has(State.FOCUSABLE) for each in shown), len(rules.nameless(things)),
               len(broken))
        self.rows.append(row)
        print(f"{row[0][:66]:66} {row[1]:8} {row[2]:9} {row[3]:7} {row[4]:6}", flush=True)
        return things

    def check_child(self, window):
        if window.name in (row[0] for row in self.rows):
            self.ear.take()
            return within(window)
        return self.check(window.name, window, rules.front(window, self.pane), (rules.status,))

    def check_box(self, box):
        front = self.front()
        self.check(f"{front}: {box.name}" if front else box.name, box, rules.dialog(box))

    def say(self, line):
        self.broken.append(line)

    def say_missing(self, window, line, heard):
        """Of a window that moved to another record: what was heard must tell the last text of its status line."""
        text = now(line).name
        for kind, _ in missing(heard, text):
            self.say(f"{window.name}: no {kind} tells that the status line says '{text}'")


# What was heard -------------------------------------------------------------------------------------------------------


def focused(heard):
    return [source for kind, source in heard if kind == FOCUS]


def only(things, role, wanted=None):
    """The first of the things that shows, of that role and name; None if there is none."""
    return next((each for each in things if each.role == role and wanted in (None, each.name) and each.has(State.SHOWING)),
                None)


def rows_read(heard):
    return [source.name for source in focused(heard) if source.role == Role.TABLE_ROW]


def missing(heard, text):
    """The ways to tell of a status line's text in which it was not told."""
    told_so = [(kind, source.role) for kind, source in heard if source.name == text]
    return [way for way in zip(OF_STATUS, (Role.STATUS_BAR, Role.NOTIFICATION)) if way not in told_so]


# The walk ------------------------------------------------------------------------------------------------------------


def walk_host(walk):
    """Before anybody is chosen: the host itself, its own menus, and the windows that they lead to."""
    walk.check(walk.host.name, walk.host)
    for entries in (("File", "New"), ("File", "Restore"), ("File", "Backup"), ("File", "Find..."),
                    ("File", "Family Book..."), ("Help", "About")):
        walk_boxes(walk, lambda: walk.menu(*entries), " > ".join(entries))
    pages = walk.do(lambda: walk.menu("Help", "Kinbook Help"), "Help > Kinbook Help")
    walk.check(pages.name, pages)
    walk.close(pages)
    for entries in (("File", "Family Sequence..."), ("File", "Coming Dates..."), ("File", "Cover Page")):
        window = walk.do(lambda: walk.menu(*entries), " > ".join(entries))
        walk_list(walk, window, walk.check_child(window))
        walk.close_window()


def walk_boxes(walk, step, what):
    """The box or dialog after a step, and those that come up when it is agreed to, as far as nothing is changed."""
    below = len(walk.boxes())
    box = walk.do(step, what)
    while box:
        walk.check_box(box)
        walk.close(box)
        box = next(iter(walk.boxes()[below:]), None)


def walk_list(walk, window, things):
    """The rows of a list are read one after the other, and its dialog can be."""
    table = only(things, Role.TABLE)
    if not table:
        return
    line = only(things, Role.STATUS_BAR)
    rows = table.below
    click(rows[0])
    wait_for(lambda: now(rows[0]).has(State.SELECTED, State.FOCUSED), f"the row {rows[0]}")
    now(rows[0])  # This answer comes behind what there still was to tell of the click.
    walk.ear.take()
    for row in rows[1:]:
        press("Down")
        wait_for(lambda: now(row).has(State.SELECTED), f"the row {row}")
    names = [row.name for row in rows[1:]]
    heard = walk.ear.take(lambda heard: rows_read(heard) == names and not missing(heard, now(line).name))
    if rows_read(heard) != names:
        walk.say(f"{window.name}: going down reads {rows_read(heard)}")
    walk.say_missing(window, line, heard)
    button = only(things, Role.PUSH_BUTTON, "Add") or only(things, Role.PUSH_BUTTON, "Edit")
    if button:
        walk_boxes(walk, lambda: click(button), str(button))


def walk_moves(walk, window, things):
    """A move is told by the status line, also one that ends where it began, at the last record."""
    line = only(things, Role.STATUS_BAR)
    walk.ear.take()
    click(only(things, Role.PUSH_BUTTON, "Next Record"))
    walk.say_missing(window, line, walk.ear.take(lambda heard: not missing(heard, now(line).name)))


def walk_tools(walk, window):
    """What a record offers besides its boxes: attachments, a text file, the question before a deletion, and others' records."""
    def button(name, place=window):
        return wait_for(lambda: find(place, Role.PUSH_BUTTON, name), f"the button {name}")

    walk_boxes(walk, lambda: click(button("SaveToFile")), "SaveToFile")
    walk_boxes(walk, lambda: click(button("Delete")), "Delete")
    attachments = walk.do(lambda: click(button("View/save attachments")), "attachments")
    walk.check_box(attachments)
    for name in ("Add...", "Edit Desc...", "Delete..."):
        walk_boxes(walk, lambda: click(button(name, attachments)), name)
    walk.close(attachments)


def walk_nodes(walk):
    walk.look_at_tree()
    walk.enter_tree()
    front = walk.nodes[walk.selected()].name
    place = 0
    while place < len(walk.nodes):
        node = now(walk.nodes[place])
        if node.has(State.EXPANDABLE) and not node.has(State.EXPANDED):
            walk.go_to(place)
            press("Right")
            wait_for(lambda: now(node).has(State.EXPANDED), f"the nodes in {node}")
            walk.look_at_tree()
        place += 1
    walk.broken.extend(rules.tree(walk.nodes, walk.expected))
    for place, node in enumerate(walk.nodes):
        if not node.has(State.EXPANDABLE) and node.name != front:
            walk_node(walk, place)


def walk_node(walk, place):
    while len(children(now(walk.pane))) > MOST_OPEN:
        walk.close_window()
    node = walk.nodes[place]
    walk.enter_tree()

    def enter():
        walk.go_to(place)
        walk.ear.take()  # On the way the tree may scroll from under what it told of.
        press("Return")

    opened = walk.do(enter, str(node))
    if opened.role in (Role.DIALOG, Role.ALERT):
        walk.check_box(opened)
        if node.name != PASSWORDS:
            walk.close(opened)
            return
        # Without a password it lets one in.
        opened = walk.do(lambda: walk.press_in(opened, "Return"), "the login to the list of passwords")
    things = walk.check_child(opened)
    walk_list(walk, opened, things)
    walk_children(walk, things)


def walk_children(walk, things):
    """Of each kind one: they look alike whatever property they belong to."""
    for key in things:
        kind = key.name.split(" ")[-1]
        shown = key.role == Role.PUSH_BUTTON and key.has(State.SHOWING)
        if shown and key.name.startswith("Show ") and kind in CHILDREN and kind not in walk.opened:
            walk.opened.append(kind)
            walk.check_child(walk.do(lambda: click(key), key.name))
            walk.close_window()


def report(walk, seconds):
    totals = [sum(row[column] for row in walk.rows) for column in range(1, 5)]
    print(f"{len(walk.rows):3} windows, dialogs and boxes, {seconds:.0f} s".ljust(66),
          f"{totals[0]:8} {totals[1]:9} {totals[2]:7} {totals[3]:6}")
    for line in walk.broken:
        print(line)


def take(ear):
    """The whole walk; 1 if a rule was broken."""
    began = time.monotonic()
    print(f"{'window':66} {'controls':>8} {'focusable':>9} {'no name':>7} {'broken':>6}", flush=True)
    walk = Walk(ear, {"Treasury Notes": False, "Education": True, "Banking": True, "Security": False, "Kinbook": True})
    try:
        walk_host(walk)
        member = walk.choose_member(2)
        walk_moves(walk, member, walk.check_child(member))
        walk_tools(walk, member)
        walk_nodes(walk)
    except (Lost, Gone) as lost:
        walk.say(f"after '{walk.rows[-1][0]}' the walk ends: {lost}")
    report(walk, time.monotonic() - began)
    return 1 if walk.broken else 0


def main():
    ear = Ear(FOCUS, *OF_STATUS)
    program = subprocess.Popen(sys.argv[1])
    try:
        return take(ear)
    finally:
        program.terminate()


if __name__ == "__main__":
    sys.exit(main())

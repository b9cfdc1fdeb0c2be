#!/usr/bin/python3
"""Starts a Kinbook, walks through its windows with the keyboard and the mouse, and asks each what a screen reader asks.

read_windows.py PROGRAM prints a line for each window. Its exit status is 1 if one of them breaks a rule.
"""

import subprocess
import sys
import time

import rules
from reader import (Ear, GLib, Lost, Role, State, application, children, click, find, has, name, press, settle, told,
                    wait_for, within)

# The host takes eleven windows; the member's own stays open throughout.
MOST_OPEN = 7
FOCUS = "object:state-changed:focused"
# What tells that a status line changed: its own name, and the note in it that comes up.
OF_STATUS = ("object:property-change:accessible-name", "object:state-changed:showing")
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
        self.host = wait_for(lambda: self.top(Role.FRAME), "the host window")
        self.pane = wait_for(lambda: find(self.host, Role.LAYERED_PANE), "the room of the windows")
        self.nodes = []

    # What there is ---------------------------------------------------------------------------------------------------

    def top(self, *roles):
        return next((each for each in children(self.app)
                     if each.get_role() in roles and has(each, State.SHOWING)), None)

    def dialogs(self):
        return [each for each in children(self.app)
                if name(each) != name(self.host) and has(each, State.SHOWING) and not has(each, State.ICONIFIED)]

    def front(self):
        """The title of the child window in front, as the host's own title has it."""
        title = name(self.host)
        return title.split(" - [", 1)[1][:-1] if " - [" in title else ""

    def child(self, title):
        return next((each for each in children(self.pane) if name(each) == title and has(each, State.SHOWING)), None)

    def look_at_tree(self):
        """Takes in the nodes that are not within a closed one."""
        self.tree = find(self.host, Role.TREE)
        self.nodes = [node for node in children(self.tree) if node.get_role() == Role.TABLE_CELL]

    # Steps -----------------------------------------------------------------------------------------------------------

    def do(self, step, what):
        """Takes a step and waits for the window, dialog or box that it opens."""
        before = (self.front(), len(self.dialogs()))
        self.ear.take()
        step()
        wait_for(lambda: (self.front(), len(self.dialogs())) != before, f"a window after {what}")
        settle(0.05)
        boxes = self.dialogs()
        if len(boxes) > before[1]:
            return boxes[-1]
        return wait_for(lambda: self.child(self.front()), f"the window '{self.front()}'")

    def choose_member(self, keys):
        combo = find(self.host, Role.COMBO_BOX)
        for _ in range(keys):
            combo.get_component_iface().grab_focus()
            wait_for(lambda: has(combo, State.FOCUSED), "the focus in the selector")
            window = self.do(lambda: press("Down"), "choosing from the selector")
        return window

    def go_to(self, place):
        """To a node by its place among those that show."""
        nodes = self.nodes
        now = next(i for i, node in enumerate(nodes) if has(node, State.SELECTED))
        for _ in range(abs(place - now)):
            press("Down" if place > now else "Up")
        wait_for(lambda: has(nodes[place], State.SELECTED), f"the node {told(nodes[place])}")

    def enter_tree(self):
        for _ in range(4):
            if has(self.tree, State.FOCUSED):
                return
            press("F6")
            settle(0.05)
        raise Lost("the focus in the tree")

    def close(self, box, key="Escape"):
        before, title = [told(each) for each in self.dialogs()], told(box)
        press(key)
        wait_for(lambda: [told(each) for each in self.dialogs()] != before, f"the end of {title}")

    def close_window(self):
        title = self.front()
        for button in ("Cancel", "Close"):
            window = self.child(title)
            shown = window and find(window, Role.PUSH_BUTTON, button)
            if shown:
                click(shown)
                settle(0.1)
            if self.front() != title:
                return
        wait_for(lambda: self.front() != title, f"the end of '{title}'")

    def menu(self, *entries):
        for entry in entries:
            click(wait_for(lambda: find(self.app, Role.MENU_ITEM, entry), f"the menu entry {entry}"))

    # Checks ----------------------------------------------------------------------------------------------------------

    def check(self, title, window, own=(), further=()):
        """Prints a line of the table, with what every window must hold, the lines of its own and further rules for it."""
        things = list(within(window))
        shown = rules.controls(things)
        general = (rules.names, rules.combos, rules.tables)
        broken = [line for rule in (*general, *further) for line in rule(things)] + list(own)
        broken.extend(rules.focus(focused(self.ear.take())))
        self.broken.extend(f"{title}: {line}" for line in broken)
        row = (title, len(shown), sum(has(each, State.FOCUSABLE) for each in shown), len(rules.nameless(things)),
               len(broken))
        self.rows.append(row)
        print(f"{row[0][:66]:66} {row[1]:8} {row[2]:9} {row[3]:7} {row[4]:6}", flush=True)

    def check_child(self, window):
        if name(window) in (row[0] for row in self.rows):
            self.ear.take()
            return
        self.check(name(window), window, rules.front(window, self.pane), (rules.status,))

    def check_box(self, box):
        self.check(f"{self.front()}: {name(box)}" if self.front() else name(box), box, rules.dialog(box))

    def say(self, line):
        self.broken.append(line)

    def say_missing(self, window, heard):
        """Of a window that moved to another record: what was heard must tell the last text of its status line."""
        line = line_of(window)
        for _ in missing(heard, line):
            self.say(f"{name(window)}: nothing tells that the status line says '{line}'")


# What was heard -------------------------------------------------------------------------------------------------------


def focused(heard):
    return [source for kind, source in heard if kind.startswith(FOCUS)]


def rows_read(heard):
    return [name(source) for source in focused(heard) if source.get_role() == Role.TABLE_ROW]


def line_of(window):
    return name(find(window, Role.STATUS_BAR))


def missing(heard, line):
    """The ways to tell of a status line's text in which it was not told."""
    told_so = {(kind, source.get_role()) for kind, source in heard if name(source) == line}
    return [kind for kind, role in zip(OF_STATUS, (Role.STATUS_BAR, Role.NOTIFICATION))
            if not any(each.startswith(kind) and its == role for each, its in told_so)]


# The walk ------------------------------------------------------------------------------------------------------------


def walk_host(walk):
    """Before anybody is chosen: the host itself, its own menus, and the windows that they lead to."""
    walk.check(name(walk.host), walk.host)
    for entries in (("File", "New"), ("File", "Restore"), ("File", "Backup"), ("File", "Find..."),
                    ("File", "Family Book..."), ("Help", "About")):
        walk_boxes(walk, lambda: walk.menu(*entries), " > ".join(entries))
    pages = walk.do(lambda: walk.menu("Help", "Kinbook Help"), "Help > Kinbook Help")
    walk.check(name(pages), pages)
    walk.close(pages)
    for entries in (("File", "Family Sequence..."), ("File", "Coming Dates..."), ("File", "Cover Page")):
        window = walk.do(lambda: walk.menu(*entries), " > ".join(entries))
        walk.check_child(window)
        walk_list(walk, window)
        walk.close_window()


def walk_boxes(walk, step, what):
    """The box or dialog after a step, and those that come up when it is agreed to, as far as nothing is changed."""
    below = len(walk.dialogs())
    box = walk.do(step, what)
    while len(walk.dialogs()) > below:
        walk.check_box(box)
        walk.close(box)
        settle(0.1)
        box = next(iter(walk.dialogs()[below:]), None)


def walk_list(walk, window):
    """The rows of a list are read one after the other, and its dialog can be."""
    table = find(window, Role.TABLE)
    if not table:
        return
    rows = children(table)
    click(rows[0])
    wait_for(lambda: has(rows[0], State.SELECTED, State.FOCUSED), f"the row {told(rows[0])}")
    has(table, State.FOCUSED)  # Its answer comes behind what it still had to tell of the click.
    walk.ear.take()
    for place in range(1, len(rows)):
        press("Down")
        wait_for(lambda: has(rows[place], State.SELECTED), f"the row {told(rows[place])}")
    names = [name(row) for row in rows[1:]]
    heard = walk.ear.take(lambda heard: rows_read(heard) == names and not missing(heard, line_of(window)))
    if rows_read(heard) != names:
        walk.say(f"{name(window)}: going down reads {rows_read(heard)}")
    walk.say_missing(window, heard)
    button = find(window, Role.PUSH_BUTTON, "Add") or find(window, Role.PUSH_BUTTON, "Edit")
    if button:
        walk_boxes(walk, lambda: click(button), told(button))


def walk_moves(walk, window):
    """A move is told by the status line, also one that ends where it began, at the last record."""
    walk.ear.take()
    click(find(window, Role.PUSH_BUTTON, "Next Record"))
    walk.say_missing(window, walk.ear.take(lambda heard: not missing(heard, line_of(window))))


def walk_tools(walk, window):
    """What a record offers besides its boxes: attachments, a text file, the question before a deletion, and others' records."""
    walk_boxes(walk, lambda: click(find(window, Role.PUSH_BUTTON, "SaveToFile")), "SaveToFile")
    walk_boxes(walk, lambda: click(find(window, Role.PUSH_BUTTON, "Delete")), "Delete")
    attachments = walk.do(lambda: click(find(window, Role.PUSH_BUTTON, "View/save attachments")), "attachments")
    walk.check_box(attachments)
    for button in ("Add...", "Edit Desc...", "Delete..."):
        walk_boxes(walk, lambda: click(find(attachments, Role.PUSH_BUTTON, button)), button)
    walk.close(attachments)


def walk_nodes(walk):
    walk.look_at_tree()
    walk.enter_tree()
    front = next(name(node) for node in walk.nodes if has(node, State.SELECTED))
    place = 0
    while place < len(walk.nodes):
        node = walk.nodes[place]
        if has(node, State.EXPANDABLE) and not has(node, State.EXPANDED):
            walk.go_to(place)
            press("Right")
            wait_for(lambda: has(node, State.EXPANDED), f"the nodes in {told(node)}")
            walk.look_at_tree()
        place += 1
    walk.broken.extend(rules.tree(walk.nodes, walk.expected))
    names = [name(node) for node in walk.nodes]
    for place, node in enumerate(walk.nodes):
        if not has(node, State.EXPANDABLE) and names[place] != front:
            walk_node(walk, place, names)


def walk_node(walk, place, names):
    while len([each for each in children(walk.pane)]) > MOST_OPEN:
        walk.close_window()
    walk.enter_tree()
    walk.go_to(place)
    opened = walk.do(lambda: press("Return"), f"the node '{names[place]}'")
    if opened.get_role() == Role.DIALOG or opened.get_role() == Role.ALERT:
        walk.check_box(opened)
        if names[place] != PASSWORDS:
            walk.close(opened)
            return
        # Without a password it lets one in.
        opened = walk.do(lambda: press("Return"), "the login to the list of passwords")
    walk.check_child(opened)
    walk_list(walk, opened)
    walk_children(walk, opened)


def walk_children(walk, window):
    """Of each kind one: they look alike whatever property they belong to."""
    keys = [each for each in within(window) if each.get_role() == Role.PUSH_BUTTON and has(each, State.SHOWING)]
    for key in keys:
        kind = name(key).split(" ")[-1]
        if name(key).startswith("Show ") and kind in CHILDREN and kind not in walk.opened:
            walk.opened.append(kind)
            walk.check_child(walk.do(lambda: click(key), name(key)))
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
        walk.check_child(member)
        walk_moves(walk, member)
        walk_tools(walk, member)
        walk_nodes(walk)
    except (Lost, GLib.Error, IndexError) as lost:
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

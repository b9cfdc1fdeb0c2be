"""What must hold of everything that the program shows. Each rule gives a line for each thing that breaks it.

`things`: all that stands in a window, looked at together.
"""

import re

from reader import ACCESSIBLE, TABLE, GLib, Role, State, ask, children, get_property, look, within

# What only arranges others, or is a part of one.
ARRANGING = {Role.FILLER, Role.PANEL, Role.SCROLL_BAR, Role.SEPARATOR, Role.SPLIT_PANE, Role.LAYERED_PANE, Role.LIST,
             Role.LIST_ITEM, Role.UNKNOWN, Role.NOTIFICATION, Role.SCROLL_PANE, Role.VIEWPORT}
BOXES = (Role.TEXT, Role.PASSWORD_TEXT, Role.COMBO_BOX, Role.TABLE_CELL, Role.TABLE_ROW)
# Columns by which rows are known to the program.
KEYS = {"ID", "PersonID", "Encrypted"}


def controls(things):
    return [each for each in things if each.role not in ARRANGING and each.has(State.SHOWING)]


def nameless(things):
    """Also what is hidden just now must have its name when it comes up; an empty entry or cell is no control."""
    return [each for each in things if each.has(State.FOCUSABLE) and not each.name
            and each.role not in (Role.LIST_ITEM, Role.TABLE_CELL)]


def names(things):
    for each in nameless(things):
        yield f"{each} in '{each.parent.name}' has no name"


def combos(things):
    for combo in things:
        if combo.role != Role.COMBO_BOX:
            continue
        if not any(part.role == Role.TEXT for part in combo.below):
            continue  # Called by what is chosen in it, as the toolkit's own are; its label is a thing beside it.
        yield from (f"{part} of {combo} is called so" for part in combo.below if part.name != combo.name)


def tables(things):
    for table in things:
        if table.role != Role.TABLE:
            continue
        if not table.name:
            yield "a table has no name"
        captions = [caption for caption, in ask([(table.place, TABLE, "GetColumnDescription", GLib.Variant("(i)", (column,)))
                                                 for column in range(*get_property([table], TABLE, "NColumns"))])]
        yield from (f"{table} shows the column {caption}" for caption in captions if caption in KEYS or not caption)
        for place, row in enumerate(table.below):
            cells = look([cell for cell, in ask([(table.place, TABLE, "GetAccessibleAt", GLib.Variant("(ii)", (place, column)))
                                                 for column in range(len(captions))])])
            texts = [cell.name for cell in cells]
            if row.name != ", ".join(text for text in texts if text) or not re.search("[A-Za-z]", row.name):
                yield f"row {place} of {table} is read as '{row.name}', its cells as {texts}"
            if [cell.name for cell in row.below] != texts:
                yield f"row {place} of {table} holds other cells than the table"


def status(things):
    bars = [each for each in things if each.role == Role.STATUS_BAR]
    if len(bars) != 1 or not bars[0].name:
        yield f"it has {len(bars)} status lines: {[bar.name for bar in bars]}"


def dialog(window):
    if window.role not in (Role.DIALOG, Role.ALERT, Role.FILE_CHOOSER):
        yield f"it is told as {window}"
    if not window.name:
        yield "it has no title"


def front(window, pane):
    """Of the host's child windows that one alone shows, and nothing in the others can be come upon."""
    if not window.has(State.SHOWING):
        yield "it is in front and doesn't show"
    for other in children(pane):
        if other.name != window.name:
            yield from (f"behind it {each} shows" for each in [other, *within(other)] if each.has(State.SHOWING))


def focus(heard):
    """Of where the focus was heard to be."""
    for source in heard:
        if source.role in BOXES and not source.has(State.SHOWING):
            yield f"the focus is said to be in {source}, which is hidden"
        if not source.name:
            yield f"the focus is said to be in {source}"


def tree(nodes, expected):
    """`expected`: for some of the nodes, by name, if they have records."""
    level = 0
    for node, description in zip(nodes, get_property(nodes, ACCESSIBLE, "Description")):
        said = re.fullmatch(r"(has records, )?level (\d+)", description)
        if not said:
            yield f"node {node} is described as '{description}'"
            continue
        deeper = int(said[2]) - level
        if deeper > 1 or (level == 0 and deeper != 1):
            yield f"node {node} is said to be on level {said[2]}, below level {level}"
        level = int(said[2])
        if bool(said[1]) != expected.get(node.name, bool(said[1])):
            yield f"node {node} is described as '{description}'"

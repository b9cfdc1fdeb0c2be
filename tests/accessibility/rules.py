"""What must hold of everything that the program shows. Each rule gives a line for each thing that breaks it.

`things`: all that stands in a window.
"""

import re

from reader import Role, State, children, has, name, told, within

# What only arranges others, or is a part of one.
ARRANGING = {Role.FILLER, Role.PANEL, Role.SCROLL_BAR, Role.SEPARATOR, Role.SPLIT_PANE, Role.LAYERED_PANE, Role.LIST,
             Role.LIST_ITEM, Role.UNKNOWN, Role.NOTIFICATION, Role.SCROLL_PANE, Role.VIEWPORT}
BOXES = (Role.TEXT, Role.PASSWORD_TEXT, Role.COMBO_BOX, Role.TABLE_CELL, Role.TABLE_ROW)
# Columns by which rows are known to the program.
KEYS = {"ID", "PersonID", "Encrypted"}


def controls(things):
    return [each for each in things if each.get_role() not in ARRANGING and has(each, State.SHOWING)]


def nameless(things):
    """Also what is hidden just now must have its name when it comes up; an empty entry or cell is no control."""
    return [each for each in things if has(each, State.FOCUSABLE) and not name(each)
            and each.get_role() not in (Role.LIST_ITEM, Role.TABLE_CELL)]


def names(things):
    for each in nameless(things):
        yield f"a {each.get_role_name()} in '{name(each.get_parent())}' has no name"


def combos(things):
    for combo in things:
        if combo.get_role() != Role.COMBO_BOX:
            continue
        lines = [part for part in children(combo) if part.get_role() == Role.TEXT]
        if not lines:
            continue  # Called by what is chosen in it, as the toolkit's own are; its label is a thing beside it.
        yield from (f"the {part.get_role_name()} of {told(combo)} is called '{name(part)}'"
                    for part in children(combo) if name(part) != name(combo))


def tables(things):
    for table in things:
        if table.get_role() != Role.TABLE:
            continue
        if not name(table):
            yield "a table has no name"
        grid = table.get_table_iface()
        columns = range(grid.get_n_columns())
        captions = [grid.get_column_description(column) for column in columns]
        yield from (f"{told(table)} shows the column {caption}" for caption in captions if caption in KEYS or not caption)
        for place, row in enumerate(children(table)):
            texts = [name(grid.get_accessible_at(place, column)) for column in columns]
            if name(row) != ", ".join(text for text in texts if text) or not re.search("[A-Za-z]", name(row)):
                yield f"row {place} of {told(table)} is read as '{name(row)}', its cells as {texts}"
            if [name(cell) for cell in children(row)] != texts:
                yield f"row {place} of {told(table)} holds other cells than the table"


def status(things):
    bars = [each for each in things if each.get_role() == Role.STATUS_BAR]
    if len(bars) != 1 or not name(bars[0]):
        yield f"it has {len(bars)} status lines: {[name(bar) for bar in bars]}"


def dialog(window):
    if window.get_role() not in (Role.DIALOG, Role.ALERT, Role.FILE_CHOOSER):
        yield f"its role is {window.get_role_name()}"
    if not name(window):
        yield "it has no title"


def front(window, pane):
    """Of the host's child windows that one alone shows, and nothing in the others can be come upon."""
    if not has(window, State.SHOWING):
        yield "it is in front and doesn't show"
    for other in children(pane):
        if name(other) != name(window):
            yield from (f"behind it {told(each)} shows" for each in [other, *within(other)] if has(each, State.SHOWING))


def focus(heard):
    """Of where the focus was heard to be."""
    for source in heard:
        if source.get_role() in BOXES and not has(source, State.SHOWING):
            yield f"the focus is said to be in {told(source)}, which is hidden"
        if not name(source):
            yield f"the focus is said to be in {told(source)}"


def tree(nodes, expected):
    """`expected`: for some of the nodes, by name, if they have records."""
    level = 0
    for node in nodes:
        said = re.fullmatch(r"(has records, )?level (\d+)", node.get_description())
        if not said:
            yield f"node {told(node)} is described as '{node.get_description()}'"
            continue
        deeper = int(said[2]) - level
        if deeper > 1 or (level == 0 and deeper != 1):
            yield f"node {told(node)} is said to be on level {said[2]}, below level {level}"
        level = int(said[2])
        if bool(said[1]) != expected.get(name(node), bool(said[1])):
            yield f"node {told(node)} is described as '{node.get_description()}'"

#!/usr/bin/python3
"""Gives an application folder a family with records in nearly every category: family.py FOLDER."""

import datetime
import pathlib
import re
import sqlite3
import sys

MEMBERS = ("Ann Larkin", "Ben Larkin")

SOON = (datetime.date.today() + datetime.timedelta(days=10)).isoformat()
# What a table asks beyond a value of the column's kind: one row for each of the values.
VARIANTS = {
    "Passports": [{"DateExpired": SOON}],
    "AutoInsurance": [{"ExpirationDate": SOON}],
    "Obligations": [{"Type": kind} for kind in (2, 3, 4)],
    "AlimonyChildSupport": [{"Type": kind} for kind in (1, 2)],
    "AssetLiquidation": [{"Seq": place, "Asset": f"Asset {place}"} for place in (1, 2, 3)],
    # What is enciphered stands as an empty text.
    "PIN_Password": [{"Seq": place, "Account": f"Account {place}", "PIN_Password": "", "Encrypted": "0"}
                     for place in (1, 2, 3)],
    "MedicalLog": [{"MedicalID": 1, "Description": f"Treatment {place}"} for place in (1, 2, 3)],
    "WhoGetsWhat": [{"Item": f"Item {place}"} for place in (1, 2, 3)],
}
# The category of the table has no records.
WITHOUT_RECORDS = "TreasuryNotes"
# Rows of them belong to rows of others, or to the program.
LEFT_ALONE = {"Person", WITHOUT_RECORDS, "Inventory", "Improvements", "Outbuildings", "Attachments", "LUStates", "sqlite_sequence"}


def value(name, declared):
    """A value that a column of this kind may hold, of which one can tell where it came from."""
    if declared == "DATE":
        return "2001-02-03"
    if declared == "BOOLEAN":
        return -1
    if declared in ("DOUBLE", "INTEGER"):
        return 12
    length = re.search(r"\d+", declared)
    return f"{name} text"[:int(length.group())] if length else f"{name} text"


def insert(book, table, given):
    row = {name: value(name, declared)
           for _, name, declared, *_ in book.execute(f"PRAGMA table_info([{table}])") if name != "ID"}
    row.update(given)
    names = ", ".join(f"[{name}]" for name in row)
    book.execute(f"INSERT INTO [{table}] ({names}) VALUES ({', '.join('?' * len(row))})", list(row.values()))


def fill(path):
    """Gives the members to the book, and to each of them a row of every table."""
    book = sqlite3.connect(path)
    for place, name in enumerate(MEMBERS, 1):
        insert(book, "Person", {"ID": place, "Seq": place, "LegalName": name})
    tables = {name for (name,) in book.execute("SELECT name FROM sqlite_master WHERE type = 'table'")}
    for table in sorted(tables - LEFT_ALONE):
        columns = {row[1] for row in book.execute(f"PRAGMA table_info([{table}])")}
        for member in range(1, len(MEMBERS) + 1) if "PersonID" in columns else (None,):
            for variant in VARIANTS.get(table, [{}]):
                insert(book, table, ({"PersonID": member} if member else {}) | variant)
    for member in range(1, len(MEMBERS) + 1):
        insert(book, "Attachments", {"BugNum": f"Kbk_{member}_0", "SeqNum": 1, "FileName": f"FI_1_Kbk_{member}_0.txt",
                                     "FileType": "txt", "fileDesc": "Birth certificate", "OldFileName": "birth.txt"})
    book.commit()
    book.close()


if __name__ == "__main__":
    folder = pathlib.Path(sys.argv[1])
    fill(folder / "FamilyInfo.mdb")
    definition = folder / "SplashDef.txt"
    definition.write_text(re.sub(r"^Splash=\d+", "Splash=1", definition.read_text(), flags=re.M))

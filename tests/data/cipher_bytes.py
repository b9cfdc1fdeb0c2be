#!/usr/bin/env python3
"""Works out cipher texts for the tests by hand, byte by byte, without the program.

Prints, for each text given: its bytes in the definition file (as C escapes) and the same text as the database keeps
it (UTF-8, as hex digits).   cipher_bytes.py 'PT' 'secret'
"""
import sys

KEY = b"Quillstone"
# Windows-1252 leaves five codes without a character; they stand for the controls of the same numbers.
HOLES = {0x81, 0x8D, 0x8F, 0x90, 0x9D}


def code(character):
    return ord(character) if ord(character) in HOLES else character.encode("cp1252")[0]


def character(number):
    return chr(number) if number in HOLES else bytes([number]).decode("cp1252")


def cipher(text):
    result = []
    j = 0
    for c in text:
        complement = 255 - KEY[j]
        result.append(code(c) ^ complement)
        j = j + 1 if j + 1 < len(KEY) else 0
    return result


for text in sys.argv[1:]:
    numbers = cipher(text)
    escapes = "".join(f"\\x{n:02x}" for n in numbers)
    stored = "".join(character(n) for n in numbers).encode("utf-8").hex().upper()
    print(f'{text!r}: "{escapes}"  {stored}')

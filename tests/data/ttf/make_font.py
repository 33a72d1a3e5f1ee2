#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes TesseraTest.ttf beside this file: a font of the family "Tessera Test" whose letters A to Z are one square."""
import struct
from pathlib import Path

FAMILY, STYLE = "Tessera Test", "Regular"
EM, FIRST, LAST = 1000, 0x41, 0x5A

SQUARE = struct.pack(">hhhhh", 1, 100, 0, 700, 600)  # one contour and its bounds
SQUARE += struct.pack(">HH", 3, 0)  # the last point; no instructions
SQUARE += bytes([1] * 4)  # four points on the curve
SQUARE += struct.pack(">4h", 100, 0, 600, 0) + struct.pack(">4h", 0, 600, 0, -600)
SQUARE += bytes(-len(SQUARE) % 4)

NAMES = [(1, FAMILY), (2, STYLE), (3, FAMILY + " 1"), (4, FAMILY), (5, "Version 1.0"), (6, FAMILY.replace(" ", ""))]


def name_table():
    records, texts = b"", b""
    for name, text in NAMES:
        data = text.encode("utf-16-be")
        records += struct.pack(">6H", 3, 1, 0x409, name, len(data), len(texts))
        texts += data
    return struct.pack(">3H", 0, len(NAMES), 6 + len(records)) + records + texts


def cmap_table():
    ends, starts = [LAST, 0xFFFF], [FIRST, 0xFFFF]
    deltas, offsets = [(1 - FIRST) & 0xFFFF, 1], [0, 0]
    # Every letter shows the same square, so the glyph numbers run from 1 to 26.
    body = struct.pack(">4H", 4, 4, 1, 0) + struct.pack(">2H", *ends) + struct.pack(">H", 0)
    body += struct.pack(">2H", *starts) + struct.pack(">2H", *deltas) + struct.pack(">2H", *offsets)
    subtable = struct.pack(">3H", 4, 6 + len(body), 0) + body
    return struct.pack(">2H", 0, 1) + struct.pack(">2HI", 3, 1, 12) + subtable


def tables():
    glyphs = LAST - FIRST + 2
    outlines = SQUARE * glyphs
    return {
        b"OS/2": struct.pack(">HhHHHhhhhhhhhhhh10sIIII4sHHHhhhHHIIhhHHH", 4, 800, 400, 5, 0, 650, 600, 0, 75, 650, 600,
                             0, 350, 50, 300, 0, bytes(10), 1, 0, 0, 0, b"TEST", 0x40, FIRST, LAST, 800, -200, 0, 800,
                             200, 1, 0, 600, 600, 0, 32, 0),
        b"cmap": cmap_table(),
        b"glyf": outlines,
        b"head": struct.pack(">IIIIHHqqhhhhHHhhh", 0x10000, 0x10000, 0, 0x5F0F3CF5, 3, EM, 0, 0, 100, 0, 700, 600, 0,
                             8, 2, 1, 0),
        b"hhea": struct.pack(">Ihhh Hhhh hhh 8x hH", 0x10000, 800, -200, 0, 800, 100, 100, 700, 1, 0, 0, 0, glyphs),
        b"hmtx": struct.pack(">Hh", 800, 100) * glyphs,
        b"loca": struct.pack(">%dI" % (glyphs + 1), *[len(SQUARE) * n for n in range(glyphs + 1)]),
        b"maxp": struct.pack(">IH13H", 0x10000, glyphs, 4, 1, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0),
        b"name": name_table(),
        b"post": struct.pack(">IIhhIIIII", 0x30000, 0, -100, 50, 0, 0, 0, 0, 0),
    }


def checksum(data):
    data += bytes(-len(data) % 4)
    return sum(struct.unpack(">%dI" % (len(data) // 4), data)) & 0xFFFFFFFF


def font(parts):
    count = len(parts)
    power = 1 << (count.bit_length() - 1)
    header = struct.pack(">IHHHH", 0x10000, count, power * 16, power.bit_length() - 1, (count - power) * 16)
    directory, body = b"", b""
    start = len(header) + 16 * count
    for tag, data in sorted(parts.items()):
        directory += tag + struct.pack(">III", checksum(data), start + len(body), len(data))
        body += data + bytes(-len(data) % 4)
    return header + directory + body


parts = tables()
adjustment = (0xB1B0AFBA - checksum(font(parts))) & 0xFFFFFFFF
parts[b"head"] = parts[b"head"][:8] + struct.pack(">I", adjustment) + parts[b"head"][12:]
Path(__file__).with_name("TesseraTest.ttf").write_bytes(font(parts))

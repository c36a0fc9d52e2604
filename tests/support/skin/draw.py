#!/usr/bin/env python3
"""Draws the pictures of the tests' skin: plain ones, in the colours that test_skin.h names."""

import struct
import zlib
from pathlib import Path

OUT = Path(__file__).resolve().parent / "image"

PICTURES = {  # size and colour
    "clear": (1, (0, 0, 0, 0)),
    "folder_normal": (30, (200, 180, 0)),
    "folder_selected": (30, (200, 0, 200)),
    "glyph_normal": (30, (200, 0, 0)),
    "glyph_selected": (30, (0, 160, 0)),
}


def chunk(kind, data):
    checksum = zlib.crc32(kind + data)
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", checksum)


def png(size, color):
    kind = 6 if len(color) == 4 else 2  # with and without opacity
    rows = (b"\0" + bytes(color) * size) * size
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, kind, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


for name, picture in PICTURES.items():
    (OUT / f"{name}.png").write_bytes(png(*picture))

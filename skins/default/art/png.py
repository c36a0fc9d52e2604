"""Writes a cairo surface as an RGBA PNG.

cairo's own writer drops the alpha channel of pictures that happen to be
opaque; every picture of the skin is to have the same pixel format.
"""

import struct
import zlib


def straight_rgba(surface):
    """Rows of straight (not premultiplied) RGBA bytes."""
    surface.flush()
    data, stride = surface.get_data(), surface.get_stride()
    for y in range(surface.get_height()):
        row = bytearray()
        pixels = struct.unpack_from(f"={surface.get_width()}I", data, y * stride)
        for v in pixels:
            a = v >> 24
            for shift in (16, 8, 0):
                x = v >> shift & 255
                row.append(min(255, (x * 255 + a // 2) // a) if a else 0)
            row.append(a)
        yield row


def chunk(kind, body):
    return (struct.pack(">I", len(body)) + kind + body
            + struct.pack(">I", zlib.crc32(kind + body)))


def write(surface, path):
    size = surface.get_width(), surface.get_height()
    rows = b"".join(b"\0" + bytes(r) for r in straight_rgba(surface))
    path.write_bytes(b"\x89PNG\r\n\x1a\n"
                     + chunk(b"IHDR", struct.pack(">IIBBBBB", *size, 8, 6, 0, 0, 0))
                     + chunk(b"IDAT", zlib.compress(rows, 9))
                     + chunk(b"IEND", b""))

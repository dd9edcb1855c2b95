"""Rewrites a rendered picture as small as a plain PNG gets: 8 bits, no comments, no alpha channel if all is opaque."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"


def read(data):
    """Width, height, bytes per pixel and the rows of a non-interlaced 8-bit RGB or RGBA file."""
    at, packed, header = 8, b"", None
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", data[at + 8:at + 8 + length])
        elif kind == b"IDAT":
            packed += data[at + 8:at + 8 + length]
        at += length + 12
    width, height, depth, kind, _, _, interlaced = header
    if depth != 8 or kind not in (2, 6) or interlaced:
        raise ValueError("not a plain 8-bit picture")
    size = 4 if kind == 6 else 3
    return width, height, size, unfiltered(zlib.decompress(packed), width * size, height, size)


def unfiltered(raw, stride, height, size):
    rows, above = [], bytes(stride)
    for y in range(height):
        start = y * (stride + 1)
        row = bytearray(raw[start + 1:start + 1 + stride])
        undo(raw[start], row, above, size)
        above = bytes(row)
        rows.append(above)
    return rows


def undo(kind, row, above, size):
    if kind == 0:
        return
    for i in range(len(row)):
        left = row[i - size] if i >= size else 0
        corner = above[i - size] if i >= size else 0
        row[i] = (row[i] + guess(kind, left, above[i], corner)) & 255


def guess(kind, left, up, corner):
    if kind == 1:
        return left
    if kind == 2:
        return up
    if kind == 3:
        return (left + up) >> 1
    slope = left + up - corner
    return min((abs(slope - left), 0, left), (abs(slope - up), 1, up), (abs(slope - corner), 2, corner))[2]


def without_opacity(rows):
    """The rows without the alpha channel, or nothing if some pixel is not opaque."""
    if any(row[3::4] != b"\xff" * (len(row) // 4) for row in rows):
        return None
    result = []
    for row in rows:
        plain = bytearray(len(row) // 4 * 3)
        plain[0::3], plain[1::3], plain[2::3] = row[0::4], row[1::4], row[2::4]
        result.append(bytes(plain))
    return result


def filtered(rows, kind, size):
    """All rows with one filter, as a stream for the compressor."""
    out, above = bytearray(), bytes(len(rows[0]))
    for row in rows:
        out.append(kind)
        left = bytes(size) + row[:-size]
        if kind == 0:
            out += row
        elif kind == 1:
            out += bytes((value - before) & 255 for value, before in zip(row, left))
        elif kind == 2:
            out += bytes((value - before) & 255 for value, before in zip(row, above))
        above = row
    return bytes(out)


def chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))


def write(width, height, size, rows):
    """The smallest result of three filters; which is best differs from picture to picture."""
    packed = min((zlib.compress(filtered(rows, kind, size), 9) for kind in (0, 1, 2)), key=len)
    header = struct.pack(">IIBBBBB", width, height, 8, 6 if size == 4 else 2, 0, 0, 0)
    return SIGNATURE + chunk(b"IHDR", header) + chunk(b"IDAT", packed) + chunk(b"IEND", b"")


def shrunk(data):
    width, height, size, rows = read(data)
    plain = without_opacity(rows) if size == 4 else None
    small = write(width, height, 3, plain) if plain else write(width, height, size, rows)
    return small if len(small) < len(data) else data

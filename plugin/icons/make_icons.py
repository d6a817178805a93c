#!/usr/bin/env python3
# SPDX-License-Identifier: BSD-3-Clause
"""Draws the plug-in's icons: the XPM texts of the field widgets' buttons, the console's PNG files.

Usage: make_icons.py            writes ButtonIcons.inc and Console/Icons/*.png
       make_icons.py SHEET.png  draws all of them on light and dark grounds, to look at

A shape is a function of a point that gives a grey level or None; a pixel's coverage is counted on a
grid of points inside it.
"""

import math
import pathlib
import struct
import sys
import zlib

ROOT = pathlib.Path(__file__).resolve().parent.parent
GRID = 8  # sample points along each side of a pixel


# Shapes: signed distance in pixels, negative inside.

def segment(x, y, x0, y0, x1, y1, radius):
    dx, dy = x1 - x0, y1 - y0
    t = max(0.0, min(1.0, ((x - x0) * dx + (y - y0) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - x0 - t * dx, y - y0 - t * dy) - radius


def box(x, y, left, top, right, bottom, radius=0.0):
    qx = abs(x - (left + right) / 2) - (right - left) / 2 + radius
    qy = abs(y - (top + bottom) / 2) - (bottom - top) / 2 + radius
    return math.hypot(max(qx, 0), max(qy, 0)) + min(max(qx, qy), 0) - radius


def polygon(x, y, *points):
    """Convex; the corners run clockwise on the screen."""
    distance = -1e9
    for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]):
        distance = max(distance, ((x - x0) * (y1 - y0) - (y - y0) * (x1 - x0))
                       / math.hypot(x1 - x0, y1 - y0))
    return distance


def lens(x, y, half_width, half_height):
    radius = (half_width ** 2 + half_height ** 2) / (2 * half_height)
    offset = radius - half_height
    return max(math.hypot(x - 8, y - 8 - offset), math.hypot(x - 8, y - 8 + offset)) - radius


# The seven motifs: grey level at a point, or None outside.

BODY = 0x84


def default_arrow(x, y):
    cx, cy, r, width = 7.5, 9.5, 5.0, 1.0
    angle = math.degrees(math.atan2(y - cy, x - cx)) % 360
    end = math.radians(12)
    arc = abs(math.hypot(x - cx, y - cy) - r) - width if 12 <= angle <= 275 else 9
    arc = min(arc, math.hypot(x - cx - r * math.cos(end), y - cy - r * math.sin(end)) - width)
    return BODY if min(arc, polygon(x, y, (8, 0.5), (13.6, 4.5), (8, 8.5))) < 0 else None


def closed_eye(x, y):
    if lens(x, y, 7.8, 4.0) >= 0:
        return None
    return 0xa4 if lens(x, y, 5.4, 1.9) < 0 else BODY


def pencil(x, y):
    # Along the pencil from its point, and across it.
    along = ((x - 1.6) - (y - 14.4)) / math.sqrt(2)
    across = abs((x - 1.6) + (y - 14.4)) / math.sqrt(2)
    if along < 0 or along > 17.4 or across > 2.3:
        return None
    if along < 4.4:  # the point
        return (0x58 if along < 2.2 else 0x96) if across < along * 2.3 / 4.4 else None
    if 13.4 < along < 14.2:
        return None
    return 0x90 if along < 13.4 and across < 0.75 else BODY


def plus(x, y):
    return BODY if min(box(x, y, 2, 6.5, 14, 9.5, 0.6),
                       box(x, y, 6.5, 2, 9.5, 14, 0.6)) < 0 else None


def minus(x, y):
    return BODY if box(x, y, 2, 6.5, 14, 9.5, 0.6) < 0 else None


def up(x, y):
    return BODY if polygon(x, y, (8, 3.2), (15, 12.6), (1, 12.6)) < 0 else None


def down(x, y):
    return up(x, 16 - y)


XPM = [("default", default_arrow), ("ignore", closed_eye), ("edit", pencil), ("add", plus),
       ("delete", minus), ("up", up), ("down", down)]


def sample(shape, px, py):
    """Coverage, mean value of what is covered, and the direction in which the shape lies."""
    hits, total, dx, dy = 0, None, 0.0, 0.0
    for j in range(GRID):
        for i in range(GRID):
            ux, uy = (i + 0.5) / GRID, (j + 0.5) / GRID
            value = shape(px + ux, py + uy)
            if value is None:
                continue
            value = value if isinstance(value, tuple) else (value,)
            total = value if total is None else tuple(a + b for a, b in zip(total, value))
            hits, dx, dy = hits + 1, dx + ux - 0.5, dy + uy - 0.5
    if not hits:
        return 0.0, None, (0, 0)
    return hits / GRID ** 2, tuple(v / hits for v in total), (dx, dy)


def xpm_pixels(shape):
    """Grey levels, None where transparent. XPM knows no partial transparency: an edge that faces
    up or left is softened towards light, the others towards dark, so that on any ground half of
    the outline melts into it and the other half stands as a rim."""
    rows = []
    for y in range(16):
        row = []
        for x in range(16):
            coverage, value, (dx, dy) = sample(shape, x, y)
            if coverage < 0.35:
                row.append(None)
                continue
            grey = value[0]
            if coverage < 0.999:
                lit = 1 if dx + dy > 0 else -1
                grey += lit * (1 - coverage) * 0x30
            row.append(min(255, int(grey / 8 + 0.5) * 8))
        rows.append(row)
    return rows


def write_xpm(path):
    letters = ".abcdefghijklmnopqrstuvwxyz"
    out = ["// SPDX-License-Identifier: BSD-3-Clause",
           "// Written by plugin/icons/make_icons.py: change the shapes there.",
           "// clang-format off"]
    for name, shape in XPM:
        rows = xpm_pixels(shape)
        greys = sorted({g for row in rows for g in row if g is not None})
        key = {g: letters[n] for n, g in enumerate(greys)}
        key[None] = " "
        out += [f"const char* const {name}Text[] = {{", f'    "16 16 {len(greys) + 1} 1",',
                '    "  c None",']
        out += [f'    "{key[g]} c #{g:02x}{g:02x}{g:02x}",' for g in greys]
        out += ['    "' + "".join(key[g] for g in row) + '",' for row in rows]
        out[-1] = out[-1][:-1]
        out.append("};")
    out.append("// clang-format on")
    path.write_text("\n".join(out) + "\n", encoding="ascii")


# The console's icons: colour with soft transparency.

def disc(light, base, rim):
    def shape(x, y):
        d = math.hypot(x - 7, y - 7)
        if d > 7:
            return None
        if d > 6:
            return rim
        t = max(0.0, min(1.0, (y - 1.5) / 11))
        return tuple(a + (b - a) * t for a, b in zip(light, base))
    return shape


def grey(level):
    return (level, level, level)


def dustbin(x, y):
    if box(x, y, 6, 1, 10, 2.9, 0.9) < 0:  # handle
        return grey(0x7c) if box(x, y, 7, 2, 9, 4) >= 0 else None
    if box(x, y, 2, 3, 14, 5, 0.7) < 0:
        return grey(0x7c)
    if polygon(x, y, (3, 6), (13, 6), (12.2, 15), (3.8, 15)) >= 0:
        return None
    if 7 < y < 14 and (5 <= x < 6 or 7.5 <= x < 8.5 or 10 <= x < 11):
        return grey(0xb4)
    return grey(0x8a)


def floppy(x, y):
    if box(x, y, 1, 1, 15, 15, 1.2) >= 0 or polygon(x, y, (12.2, 1), (15, 1), (15, 3.8)) < 0:
        return None
    if box(x, y, 4, 1, 12, 6) < 0:  # shutter
        return grey(0x62) if box(x, y, 8, 2, 10, 5) < 0 else grey(0xc0)
    if box(x, y, 3, 8, 13, 14) < 0:  # label
        return grey(0xa8) if y >= 9 and int(y) % 2 == 1 and 4 < x < 12 else grey(0xdc)
    return grey(0x7c)


PNG = [("errors", 14, disc((0xee, 0x5a, 0x50), (0xcc, 0x22, 0x22), (0xa8, 0x1a, 0x1a))),
       ("warnings", 14, disc((0xfc, 0xc4, 0x40), (0xf0, 0xa0, 0x10), (0xc4, 0x80, 0x08))),
       ("infos", 14, disc((0x62, 0xc4, 0x5c), (0x2e, 0x9c, 0x34), (0x20, 0x7c, 0x28))),
       ("clear", 16, dustbin), ("save", 16, floppy)]


def png_pixels(size, shape):
    rows = []
    for y in range(size):
        row = []
        for x in range(size):
            coverage, value, _ = sample(shape, x, y)
            row.append((0, 0, 0, 0) if value is None
                       else tuple(int(v + 0.5) for v in value) + (int(coverage * 255 + 0.5),))
        rows.append(row)
    return rows


def write_png(path, rows):
    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data
                + struct.pack(">I", zlib.crc32(kind + data)))
    raw = b"".join(b"\0" + bytes(v for pixel in row for v in pixel) for row in rows)
    header = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 6, 0, 0, 0)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
                     + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def write_sheet(path):
    images = [[[(0, 0, 0, 0) if g is None else (g, g, g, 255) for g in row]
               for row in xpm_pixels(shape)] for _, shape in XPM]
    images += [png_pixels(size, shape) for _, size, shape in PNG]
    sheet = []
    for ground in (0xff, 0xef, 0x35, 0x1e):
        for zoom in (1, 6):
            cell = 16 * 6 + 8
            for y in range(16 * zoom + 8):
                row = []
                for image in images:
                    for x in range(cell):
                        px, py = (x - 4) // zoom, (y - 4) // zoom
                        inside = 0 <= py < len(image) and 0 <= px < len(image)
                        r, g, b, a = image[py][px] if inside else (0, 0, 0, 0)
                        row.append(tuple((v * a + ground * (255 - a)) // 255 for v in (r, g, b))
                                   + (255,))
                sheet.append(row)
    write_png(path, sheet)


if __name__ == "__main__":
    if len(sys.argv) > 1:
        write_sheet(pathlib.Path(sys.argv[1]))
    else:
        write_xpm(ROOT / "src/FieldEditors/Parts/ButtonIcons.inc")
        for icon, side, drawing in PNG:
            write_png(ROOT / "Console/Icons" / f"{icon}.png", png_pixels(side, drawing))

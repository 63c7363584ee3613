#!/usr/bin/env python3
"""Prints the advance widths of a TrueType font, as src/xlsx/drawing/TextMetrics.cpp contains them.

Usage: font-widths.py FONT.ttf

Prints the widths of the characters U+0020 to U+007E and U+00A0 to U+00FF in thousandths of an em, then the heights of
a line.
"""
import struct
import sys


def main(path):
    data = open(path, "rb").read()
    tables = {}
    for i in range(struct.unpack_from(">H", data, 4)[0]):
        tag, _, offset, _ = struct.unpack_from(">4sIII", data, 12 + 16 * i)
        tables[tag.decode()] = offset
    em = struct.unpack_from(">H", data, tables["head"] + 18)[0]
    ascent, descent, gap = struct.unpack_from(">hhh", data, tables["hhea"] + 4)
    long_metrics = struct.unpack_from(">H", data, tables["hhea"] + 34)[0]

    glyphs = {}
    cmap = tables["cmap"]
    for i in range(struct.unpack_from(">H", data, cmap + 2)[0]):
        platform, encoding, offset = struct.unpack_from(">HHI", data, cmap + 4 + 8 * i)
        at = cmap + offset
        if (platform, encoding) != (3, 1) or struct.unpack_from(">H", data, at)[0] != 4:
            continue
        count = struct.unpack_from(">H", data, at + 6)[0] // 2
        ends = at + 14
        starts, deltas, ranges = ends + 2 * count + 2, ends + 4 * count + 2, ends + 6 * count + 2
        for s in range(count):
            end = struct.unpack_from(">H", data, ends + 2 * s)[0]
            start = struct.unpack_from(">H", data, starts + 2 * s)[0]
            delta = struct.unpack_from(">H", data, deltas + 2 * s)[0]
            offset = struct.unpack_from(">H", data, ranges + 2 * s)[0]
            for c in range(start, min(end, 255) + 1):
                if offset == 0:
                    glyphs[c] = (c + delta) & 0xFFFF
                else:
                    glyph = struct.unpack_from(">H", data, ranges + 2 * s + offset + 2 * (c - start))[0]
                    glyphs[c] = (glyph + delta) & 0xFFFF if glyph else 0

    def width(c):
        glyph = min(glyphs.get(c, 0), long_metrics - 1)
        return round(struct.unpack_from(">H", data, tables["hmtx"] + 4 * glyph)[0] * 1000 / em)

    widths = [width(c) for c in [*range(0x20, 0x7F), *range(0xA0, 0x100)]]
    for i in range(0, len(widths), 20):
        print(", ".join(str(w) for w in widths[i : i + 20]) + ",")
    print("ascent %.4f descent %.4f gap %.4f" % (ascent / em, -descent / em, gap / em))


if __name__ == "__main__":
    main(sys.argv[1])

#!/usr/bin/env python3
"""Compares drawings with LibreOffice's pictures of the same charts, and makes the page that shows them.

Usage: compare-drawings.py FOLDER [BOOK...]

FOLDER is made by scripts/render-pairs.sh. It contains a folder for each workbook, with the lists of bench/draw_charts
and a PDF whose first pages are LibreOffice's. If BOOKs are given, only those are compared; each is the name of such a
folder. For each kind of item, the script prints how many items were found in both pictures, and the median and the
largest distance in points. The distance of two texts is the distance of their centres. The distance of other items is
the largest distance between corresponding edges. FOLDER/worst.tsv lists the largest distances.
"""

import html
import math
import re
import statistics
import subprocess
import sys
from pathlib import Path

TEXTS = {"Title", "AxisTitle", "TickLabel", "LegendEntry", "DataLabel", "ShapeText"}
FILLED = {"Bar", "Slice", "Bubble", "Area", "LegendKey", "Shape"}
SIGNS = {"LegendKey", "Shape"}
LINES = {"Gridline", "AxisLine"}
SOLID = {"Wall", "Floor", "Side"}
COLOR_SLACK = 3   # of 255; LibreOffice rounds colours
FARTHEST = 60     # points; an item that is farther away counts as not found


def read_items(path):
    items = []
    for line in path.read_text(encoding="utf-8").splitlines():
        role, series, point, left, top, width, height, color, text = line.split("\t")
        left, top = float(left), float(top)
        items.append({"role": role, "series": series, "point": point, "color": color, "text": text,
                      "box": (left, top, left + float(width), top + float(height))})
    return items


def union(boxes):
    return (min(b[0] for b in boxes), min(b[1] for b in boxes), max(b[2] for b in boxes), max(b[3] for b in boxes))


def between_middles(a, b):
    return math.hypot((a[0] + a[2] - b[0] - b[2]) / 2, (a[1] + a[3] - b[1] - b[3]) / 2)


def between_edges(a, b):
    return max(abs(x - y) for x, y in zip(a, b))


def words_of(pdf, page):
    text = subprocess.run(["pdftotext", "-bbox", "-f", str(page), "-l", str(page), pdf, "-"], check=True,
                          capture_output=True, text=True).stdout
    found = re.findall(r'<word xMin="([-.\d]+)" yMin="([-.\d]+)" xMax="([-.\d]+)" yMax="([-.\d]+)">(.*?)</word>', text)
    return [(html.unescape(word), tuple(map(float, box))) for *box, word in found]


def bounds_of_path(data, matrix):
    numbers = list(map(float, re.findall(r"-?\d+\.?\d*(?:e-?\d+)?", data)))
    points = list(zip(numbers[::2], numbers[1::2]))
    a, b, c, d, e, f = matrix
    points = [(a * x + c * y + e, b * x + d * y + f) for x, y in points]
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    return (min(xs), min(ys), max(xs), max(ys)) if points else None


def paths_of(pdf, page):
    """Returns the filled and the stroked paths, each with colour and bounds."""
    svg = subprocess.run(["pdftocairo", "-svg", "-f", str(page), "-l", str(page), pdf, "-"], check=True,
                         capture_output=True, text=True).stdout
    svg = re.sub(r"<defs>.*?</defs>", "", svg, flags=re.S)
    filled, stroked = [], []
    for tag in re.findall(r"<path [^>]*>", svg):
        data = re.search(r' d="([^"]*)"', tag).group(1)
        matrix = re.search(r'transform="matrix\(([^)]*)\)"', tag)
        matrix = tuple(map(float, matrix.group(1).split(","))) if matrix else (1, 0, 0, 1, 0, 0)
        fill = re.search(r"fill:rgb\(([^)]*)\)", tag)
        if fill:
            bounds = bounds_of_path(data, matrix)
            color = tuple(float(part.strip("% ")) * 2.55 for part in fill.group(1).split(","))
            if bounds:
                filled.append((color, bounds))
        elif "stroke:rgb" in tag:
            # one path may contain several lines
            stroked += [bounds for piece in data.split("M ")[1:] if (bounds := bounds_of_path(piece, matrix))]
    return filled, stroked


def rgb(color):
    return tuple(int(color[i:i + 2], 16) for i in (1, 3, 5)) if re.fullmatch("#[0-9A-F]{6}", color) else None


def candidates_for_text(text, words):
    wanted = text.split()
    for start in range(len(words) - len(wanted) + 1):
        if [word for word, _ in words[start:start + len(wanted)]] == wanted:
            yield start, union([box for _, box in words[start:start + len(wanted)]])


def nearest(box, candidates, distance, used):
    best = None
    for key, other in candidates:
        if key in used:
            continue
        far = distance(box, other)
        if best is None or far < best[0]:
            best = (far, key, other)
    if best is None or best[0] > FARTHEST:
        return None
    used.add(best[1])
    return best


def same_color(a, b):
    return a is not None and all(abs(x - y) <= COLOR_SLACK for x, y in zip(a, b))


def is_thin(box):
    return min(box[2] - box[0], box[3] - box[1]) < 1


def compare(items, words, filled, stroked):
    """Returns pairs of an item and its distance, which is None if the item wasn't found."""
    used_words, used_fills, used_lines = set(), set(), set()
    lines = [box for box in stroked if is_thin(box)]
    # LibreOffice draws bodies in 3-D as pixels
    flat = not any(item["role"] in SOLID for item in items)
    matched_lines = []
    for item in items:
        role, box = item["role"], item["box"]
        found = None
        if role in TEXTS and item["text"].strip():
            found = nearest(box, candidates_for_text(item["text"], words), between_middles, used_words)
        elif role in FILLED and item["color"] and not item["text"] and (flat or role in SIGNS):
            wanted = rgb(item["color"])
            same = ((i, other) for i, (color, other) in enumerate(filled) if same_color(wanted, color))
            found = nearest(box, same, between_edges, used_fills)
        elif role in LINES and is_thin(box):
            upright = box[3] - box[1] > box[2] - box[0]
            alike = ((i, other) for i, other in enumerate(lines)
                     if (other[3] - other[1] > other[2] - other[0]) == upright)
            found = nearest(box, alike, between_edges, used_lines)
            if found:
                matched_lines.append((box, found[2]))
        else:
            continue
        yield item, found[0] if found else None
    if len(matched_lines) > 1:
        ours, theirs = union([pair[0] for pair in matched_lines]), union([pair[1] for pair in matched_lines])
        yield {"role": "PlotArea", "series": "0", "point": "0", "text": "", "box": ours}, between_edges(ours, theirs)


PAGE = """<!DOCTYPE html>
<html lang="en"><meta charset="utf-8"><title>Charts side by side</title>
<style>body {{ font: 13px sans-serif }} img {{ border: 1px dotted #ccc }} td {{ vertical-align: top; padding: 4px }}
</style><p>Left: Plotsmith. Right: LibreOffice. The figure is the median distance of items found in both, in points.
<table>{rows}</table></html>
"""


def row_of(book, number, width, height, sheet, notes, distances):
    median = f"{statistics.median(distances):.1f}" if distances else "-"
    size = f'width="{float(width) * 4 / 3:.0f}" height="{float(height) * 4 / 3:.0f}"'
    about = html.escape(f"{book.name}, {sheet}, chart {number}: {median}. {notes}")
    return (f'<tr><td colspan="2"><b>{about}</b></td></tr><tr><td><img {size} src="{book.name}/{number}.svg"></td>'
            f'<td><img {size} src="{book.name}/{number}-libreoffice.png"></td></tr>')


def compare_book(book, distances, missing, worst):
    for line in (book / "charts.tsv").read_text(encoding="utf-8").splitlines():
        number, _, width, height, sheet, notes = line.split("\t")
        own = []
        pdf, table = book / "pairs.pdf", book / f"{number}.tsv"
        if pdf.exists() and table.exists():
            words = words_of(pdf, number)
            for item, distance in compare(read_items(table), words, *paths_of(pdf, number)):
                if distance is None:
                    missing[item["role"]] = missing.get(item["role"], 0) + 1
                    continue
                own.append(distance)
                distances.setdefault(item["role"], []).append(distance)
                worst.append((distance, book.name, sheet, number, item["role"], item["series"], item["point"],
                              item["text"]))
        yield row_of(book, number, width, height, sheet, notes, own)


def main(folder, *names):
    folder = Path(folder)
    distances, missing, worst, rows = {}, {}, [], []
    for book in sorted(path.parent for path in folder.glob("*/charts.tsv")):
        if names and book.name not in names:
            continue
        rows += compare_book(book, distances, missing, worst)
    (folder / "index.html").write_text(PAGE.format(rows="\n".join(rows)), encoding="utf-8")
    worst.sort(reverse=True)
    lines = ("\t".join(map(str, (round(row[0], 2), *row[1:]))) for row in worst)
    (folder / "worst.tsv").write_text("\n".join(lines) + "\n", encoding="utf-8")
    print(f"{'kind':<14}{'found':>8}{'missing':>9}{'median':>8}{'90 %':>8}{'worst':>8}")
    for role in sorted(distances):
        values = sorted(distances[role])
        print(f"{role:<14}{len(values):>8}{missing.get(role, 0):>9}{statistics.median(values):>8.2f}"
              f"{values[int(len(values) * 0.9)]:>8.2f}{values[-1]:>8.2f}")


if len(sys.argv) < 2:
    sys.exit("usage: compare-drawings.py FOLDER [BOOK...]")
main(*sys.argv[1:])

#!/usr/bin/env python3
"""Makes a copy of a workbook with each chart alone on a page at the front, for scripts/render-pairs.sh.

Usage: chart-pages.py BOOK CHARTS OUT

CHARTS is the charts.tsv of bench/draw_charts. A page is a sheet with one drawing, which has the chart in its original
size in the upper left corner.
"""

import re
import sys
import zipfile

POINT = 12700  # in EMU
RELATIONSHIPS = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
PACKAGE_RELATIONSHIPS = "http://schemas.openxmlformats.org/package/2006/relationships"
MAIN = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
DRAWING = "http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing"
DRAWINGML = "http://schemas.openxmlformats.org/drawingml/2006/main"
CHART = "http://schemas.openxmlformats.org/drawingml/2006/chart"
SHEET_TYPE = "application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"
DRAWING_TYPE = "application/vnd.openxmlformats-officedocument.drawing+xml"


def relationships(kind, target):
    return (f'<Relationships xmlns="{PACKAGE_RELATIONSHIPS}"><Relationship Id="rId1" Type="{RELATIONSHIPS}/{kind}" '
            f'Target="{target}"/></Relationships>')


def sheet():
    return (f'<worksheet xmlns="{MAIN}" xmlns:r="{RELATIONSHIPS}"><sheetFormatPr defaultRowHeight="15"/><sheetData/>'
            '<drawing r:id="rId1"/></worksheet>')


def drawing(width, height):
    extent = f'cx="{round(width * POINT)}" cy="{round(height * POINT)}"'
    return (f'<xdr:wsDr xmlns:xdr="{DRAWING}" xmlns:a="{DRAWINGML}"><xdr:absoluteAnchor><xdr:pos x="0" y="0"/>'
            f'<xdr:ext {extent}/><xdr:graphicFrame macro=""><xdr:nvGraphicFramePr><xdr:cNvPr id="2" name="Chart 1"/>'
            '<xdr:cNvGraphicFramePr/></xdr:nvGraphicFramePr><xdr:xfrm><a:off x="0" y="0"/><a:ext cx="0" cy="0"/>'
            f'</xdr:xfrm><a:graphic><a:graphicData uri="{CHART}"><c:chart xmlns:c="{CHART}" '
            f'xmlns:r="{RELATIONSHIPS}" r:id="rId1"/></a:graphicData></a:graphic></xdr:graphicFrame><xdr:clientData/>'
            '</xdr:absoluteAnchor></xdr:wsDr>')


def read_charts(path):
    with open(path, encoding="utf-8") as lines:
        rows = [line.rstrip("\n").split("\t") for line in lines]
    return [(part, float(width), float(height)) for _, part, width, height, *_ in rows]


def find_workbook(archive):
    links = archive.read("_rels/.rels").decode("utf-8", "replace")
    target = re.search(r'<Relationship\b[^>]*/officeDocument"[^>]*>', links).group(0)
    return re.search(r'Target="/?([^"]+)"', target).group(1)


def add_pages(text, links, count):
    """Returns the workbook part with the new sheets in front, and its relationships with those of the sheets."""
    prefix = re.search(r"<(\w+:)?sheets\b", text).group(1) or ""
    bound = re.search(r'xmlns:(\w+)="[^"]*/relationships"', text)
    pages = "".join(f'<{prefix}sheet name="PairPage{i}" sheetId="{60000 + i}" {bound.group(1)}:id="rPair{i}"/>'
                    for i in range(1, count + 1))
    text = re.sub(r"(<(?:\w+:)?sheets\b[^>]*>)", lambda match: match.group(1) + pages, text, count=1)
    # names that belong to one sheet refer to it by its index
    text = re.sub(r'localSheetId="(\d+)"', lambda match: f'localSheetId="{int(match.group(1)) + count}"', text)
    text = re.sub(r'(activeTab|firstSheet)="\d+"', "", text)
    own = "".join(f'<Relationship Id="rPair{i}" Type="{RELATIONSHIPS}/worksheet" Target="/xl/pairs/sheet{i}.xml"/>'
                  for i in range(1, count + 1))
    return text, links.replace("</Relationships>", own + "</Relationships>")


def main(book, charts, out):
    pages = read_charts(charts)
    with zipfile.ZipFile(book) as source, zipfile.ZipFile(out, "w", zipfile.ZIP_DEFLATED) as target:
        workbook = find_workbook(source)
        folder, name = workbook.rsplit("/", 1) if "/" in workbook else ("", workbook)
        links = f"{folder}/_rels/{name}.rels".lstrip("/")
        text, own_links = add_pages(source.read(workbook).decode("utf-8"), source.read(links).decode("utf-8"),
                                    len(pages))
        types = source.read("[Content_Types].xml").decode("utf-8")
        overrides = "".join(f'<Override PartName="/xl/pairs/sheet{i}.xml" ContentType="{SHEET_TYPE}"/>'
                            f'<Override PartName="/xl/pairs/drawing{i}.xml" ContentType="{DRAWING_TYPE}"/>'
                            for i in range(1, len(pages) + 1))
        changed = {workbook: text, links: own_links,
                   "[Content_Types].xml": types.replace("</Types>", overrides + "</Types>")}
        for item in source.infolist():
            content = changed.get(item.filename) or source.read(item)
            if item.filename.startswith("xl/worksheets/sheet"):
                # charts show the values stored in the workbook; a recalculation would change random numbers
                content = re.sub(rb"<f\b[^>]*/>|<f\b.*?</f>", b"", content, flags=re.S)
            target.writestr(item.filename, content)
        for i, (part, width, height) in enumerate(pages, 1):
            target.writestr(f"xl/pairs/sheet{i}.xml", sheet())
            target.writestr(f"xl/pairs/_rels/sheet{i}.xml.rels", relationships("drawing", f"/xl/pairs/drawing{i}.xml"))
            target.writestr(f"xl/pairs/drawing{i}.xml", drawing(width, height))
            target.writestr(f"xl/pairs/_rels/drawing{i}.xml.rels", relationships("chart", part))


if len(sys.argv) != 4:
    sys.exit("usage: chart-pages.py BOOK CHARTS OUT")
main(*sys.argv[1:])

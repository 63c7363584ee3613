#!/usr/bin/env python3
"""Writes a workbook that Plotsmith can refresh, using only a zip library: write_book.py BOOK.xlsx"""
import sys, zipfile
from xml.sax.saxutils import escape

MAIN = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
REL = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
DRAW = "http://schemas.openxmlformats.org/drawingml/2006/"
TYPE = "application/vnd.openxmlformats-officedocument."

def sheet(rows, tail=""):
    def cell(value):
        if isinstance(value, str):
            return f'<c t="inlineStr"><is><t>{escape(value)}</t></is></c>'
        return f"<c><v>{value}</v></c>"
    data = "".join("<row>" + "".join(map(cell, row)) + "</row>" for row in rows)
    return f'<worksheet xmlns="{MAIN}" xmlns:r="{REL}"><sheetData>{data}</sheetData>{tail}</worksheet>'

def links(*targets):
    each = "".join(f'<Relationship Id="rId{i}" Type="{REL}/{kind}" Target="{target}"/>'
                   for i, (kind, target) in enumerate(targets, 1))
    return f'<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">{each}</Relationships>'

TABLE = [["Region", "Product", "Amount"], ["East", "Nut", 5], ["East", "Bolt", 7], ["West", "Nut", 3]]
DEFINITION = ('<chart id="VEX_Chart1" name="Sales" title="Sales by region" type="column" table-id="Data1">'
              '<categories headings-in="rows"><column name="Region"/></categories>'
              '<series headings-in="rows"><column name="Product"/></series>'
              '<values><column name="Amount"/></values></chart>')
FRAME = (f'<xdr:wsDr xmlns:xdr="{DRAW}spreadsheetDrawing" xmlns:a="{DRAW}main"><xdr:twoCellAnchor>'
         '<xdr:from><xdr:col>0</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>5</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:from>'
         '<xdr:to><xdr:col>7</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>21</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:to>'
         '<xdr:graphicFrame macro=""><xdr:nvGraphicFramePr><xdr:cNvPr id="2" name="Chart 1" descr="VEX_Chart1"/>'
         '<xdr:cNvGraphicFramePr/></xdr:nvGraphicFramePr><xdr:xfrm><a:off x="0" y="0"/><a:ext cx="0" cy="0"/></xdr:xfrm>'
         f'<a:graphic><a:graphicData uri="{DRAW}chart"><c:chart xmlns:c="{DRAW}chart" xmlns:r="{REL}" r:id="rId1"/>'
         '</a:graphicData></a:graphic></xdr:graphicFrame><xdr:clientData/></xdr:twoCellAnchor></xdr:wsDr>')
PARTS = {
    "[Content_Types].xml": '<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">'
        '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>' + "".join(
            f'<Override PartName="/xl/{part}.xml" ContentType="{TYPE}{kind}+xml"/>' for part, kind in [
                ("workbook", "spreadsheetml.sheet.main"), ("worksheets/sheet1", "spreadsheetml.worksheet"),
                ("worksheets/sheet2", "spreadsheetml.worksheet"), ("drawings/drawing1", "drawing"),
                ("charts/chart1", "drawingml.chart")]) + "</Types>",
    "_rels/.rels": links(("officeDocument", "xl/workbook.xml")),
    "xl/workbook.xml": f'<workbook xmlns="{MAIN}" xmlns:r="{REL}"><sheets><sheet name="Data1" sheetId="1" r:id="rId1"/>'
        '<sheet name="VEX_ChartDefinitions" sheetId="2" state="veryHidden" r:id="rId2"/></sheets></workbook>',
    "xl/_rels/workbook.xml.rels": links(("worksheet", "worksheets/sheet1.xml"), ("worksheet", "worksheets/sheet2.xml")),
    "xl/worksheets/sheet1.xml": sheet(TABLE, '<drawing r:id="rId1"/>'),
    "xl/worksheets/_rels/sheet1.xml.rels": links(("drawing", "../drawings/drawing1.xml")),
    "xl/worksheets/sheet2.xml": sheet([["Plotsmith Version 2.0"], [DEFINITION]]),
    "xl/drawings/drawing1.xml": FRAME,
    "xl/drawings/_rels/drawing1.xml.rels": links(("chart", "../charts/chart1.xml")),
    "xl/charts/chart1.xml": f'<c:chartSpace xmlns:c="{DRAW}chart" xmlns:a="{DRAW}main">'
        '<c:chart><c:plotArea><c:layout/></c:plotArea></c:chart></c:chartSpace>',
}
with zipfile.ZipFile(sys.argv[1], "w", zipfile.ZIP_DEFLATED) as book:
    for name, xml in PARTS.items():
        book.writestr(name, '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>' + xml)

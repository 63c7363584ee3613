#!/usr/bin/env python3
"""Writes the tables of docs/architecture.md again from docs/rooms.tsv."""

import argparse
import pathlib
import re

argparse.ArgumentParser(description=__doc__).parse_args()

DOCS = pathlib.Path(__file__).resolve().parent.parent / "docs"
HEAD = "| in `src/` | what is in it | may include |\n|---|---|---|\n"

tables = {}
for line in (DOCS / "rooms.tsv").read_text(encoding="utf-8").splitlines():
    if not line or line.startswith("#"):
        continue
    name, may_include, content = line.split("\t")
    entries = ", ".join(f"`{entry}`" for entry in may_include.split(", ") if entry) or "nothing"
    room = name.split("/")[0] if "/" in name else ""
    tables[room] = tables.get(room, "") + f"| `{name}` | {content} | {entries} |\n"

page = DOCS / "architecture.md"
text = page.read_text(encoding="utf-8")
for room, rows in tables.items():
    mark = f"<!-- rooms {room}".rstrip() + " -->\n"
    if mark not in text:
        raise SystemExit(f"docs/architecture.md has no line {mark.strip()}")
    text = re.sub(re.escape(mark) + r"(\|.*\n)*", lambda _: mark + HEAD + rows, text)
page.write_text(text, encoding="utf-8")

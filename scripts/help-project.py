#!/usr/bin/env python3
"""Writes the help into a folder as a project of HTML Help, from which chmcmd makes a CHM file.

Usage: scripts/help-project.py FOLDER
scripts/help-chm.sh runs chmcmd as well.

The folder gets the pages and pictures of docs/, the project, its table of contents, and the numbers by which HtmlHelp
opens the topics. All of these come from docs/help/topics.tsv.
"""

import html
import pathlib
import re
import shutil
import sys

DOCS = pathlib.Path(__file__).resolve().parent.parent / "docs"
NAME = "Plotsmith"

PROJECT = """[OPTIONS]
Compatibility=1.1 or later
Compiled file={name}.chm
Contents file={name}.hhc
Default topic={first}
Full-text search=Yes
Language=0x409 English (United States)
Title={title}

[FILES]
{files}

[ALIAS]
{aliases}

[MAP]
{numbers}
"""

CONTENTS = """<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">
<html>
<body>
<ul>
{entries}
</ul>
</body>
</html>
"""

ENTRY = """<li><object type="text/sitemap">
<param name="Name" value="{title}">
<param name="Local" value="{file}">
</object></li>"""


def read_topics():
    """Returns the rows of topics.tsv: number or an empty text, path below docs, title."""
    rows = [line.split("\t") for line in (DOCS / "help/topics.tsv").read_text().splitlines()]
    if rows[:1] != [["number", "file", "title"]] or any(len(row) != 3 for row in rows):
        sys.exit("help-project.py: docs/help/topics.tsv must have the columns number, file and title.")
    return [(number, "help/" + file, title) for number, file, title in rows[1:]]


def copy_files(topics, folder):
    """Copies the pages and their pictures. Returns their paths below the folder."""
    files = ["help/help.css"] + [file for _, file, _ in topics]
    pictures = set()
    for _, file, _ in topics:
        pictures.update(re.findall(r'src="\.\./([^"]+)"', (DOCS / file).read_text()))
    for picture in sorted(pictures):
        if (DOCS / picture).exists():
            files.append(picture)
        else:
            print(f"help-project.py: docs/{picture} is missing; the help is made without it.", file=sys.stderr)
    for file in files:
        (folder / file).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(DOCS / file, folder / file)
    return files


def main():
    if len(sys.argv) != 2:
        sys.exit("Usage: scripts/help-project.py FOLDER")
    folder = pathlib.Path(sys.argv[1])
    topics = read_topics()
    numbered = [(number, file) for number, file, _ in topics if number]
    try:
        files = copy_files(topics, folder)
        (folder / f"{NAME}.hhp").write_text(PROJECT.format(
            name=NAME, first=topics[0][1], title=topics[0][2], files="\n".join(files),
            aliases="\n".join(f"TOPIC_{number}={file}" for number, file in numbered),
            numbers="\n".join(f"#define TOPIC_{number} {number}" for number, _ in numbered)))
        (folder / f"{NAME}.hhc").write_text(CONTENTS.format(
            entries="\n".join(ENTRY.format(title=html.escape(title), file=file) for _, file, title in topics)))
    except OSError as error:
        sys.exit(f"help-project.py: {error.filename} can't be written: {error.strerror}.")


main()

#!/usr/bin/env python3
"""Converts Markdown pages of docs/ to HTML, with cmark-gfm.

Usage: scripts/html-pages.py FOLDER PAGE...
scripts/installer.sh converts the page that is installed on Windows: scripts/html-pages.py FOLDER excel.md.

The folder gets the pages and their pictures. A link to a page or file that isn't in the folder becomes plain text.
"""

import html
import pathlib
import re
import shutil
import subprocess
import sys

DOCS = pathlib.Path(__file__).resolve().parent.parent / "docs"

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ max-width: 52em; margin: 2em auto; padding: 0 1em; font-family: "Segoe UI", sans-serif; line-height: 1.45; }}
code, pre {{ font-family: Consolas, monospace; }}
pre {{ overflow: auto; padding: 0.6em; border: 1px solid; }}
table {{ border-collapse: collapse; }}
td, th {{ padding: 0.25em 0.6em; border: 1px solid; text-align: left; vertical-align: top; }}
img {{ max-width: 100%; }}
</style>
</head>
<body>
{body}</body>
</html>
"""


def text_of(markup):
    """Returns the text of a piece of HTML, without its tags."""
    return html.unescape(re.sub(r"<[^>]+>", "", markup))


def anchor_of(heading):
    """Returns the name by which Markdown links refer to a heading."""
    return re.sub(r"[^\w\- ]", "", text_of(heading).lower()).replace(" ", "-")


def convert(page, pages):
    """Returns the page as HTML. `pages` are the names of all pages without their extensions."""
    body = subprocess.run(["cmark-gfm", "--extension", "table", str(DOCS / page)], check=True, capture_output=True,
                          text=True).stdout
    body = re.sub(r"<(h[1-6])>(.*?)</\1>", lambda found: '<{0} id="{1}">{2}</{0}>'.format(
        found[1], anchor_of(found[2]), found[2]), body)

    def link(found):
        target, text = found[1], found[2]
        if target.startswith("#"):
            return found[0]
        name, _, fragment = target.partition("#")
        if not name.endswith(".md") or name[:-3] not in pages:
            return text
        if text == name:
            text = name[:-3] + ".html"
        return f'<a href="{name[:-3]}.html{"#" + fragment if fragment else ""}">{text}</a>'

    body = re.sub(r'<a href="([^"]*)">(.*?)</a>', link, body, flags=re.DOTALL)
    title = text_of(re.search(r"<h1[^>]*>(.*?)</h1>", body)[1])
    return PAGE.format(title=html.escape(title), body=body)


def main():
    if len(sys.argv) < 3:
        sys.exit("Usage: scripts/html-pages.py FOLDER PAGE...")
    folder = pathlib.Path(sys.argv[1])
    pages = [pathlib.Path(page).stem for page in sys.argv[2:]]
    try:
        folder.mkdir(parents=True, exist_ok=True)
        for page in pages:
            text = convert(page + ".md", pages)
            (folder / f"{page}.html").write_text(text, newline="\r\n")
            for picture in re.findall(r'<img src="([^":]+)"', text):
                (folder / picture).parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(DOCS / picture, folder / picture)
    except FileNotFoundError as error:
        sys.exit(f"html-pages.py: {error.filename} isn't there.")
    except subprocess.CalledProcessError as error:
        sys.exit(f"html-pages.py: cmark-gfm says: {error.stderr.strip()}")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Plays the scripts of docs/wizard.md one after the other, and writes their output into the blocks after them.

Usage: scripts/wizard-page.py PLOTSMITH"""
import re, shutil, subprocess, sys, tempfile
from pathlib import Path

root = Path(__file__).resolve().parent.parent
page = root / "docs/wizard.md"
with tempfile.TemporaryDirectory() as folder:
    book = Path(folder) / "orders.xlsx"
    shutil.copy(root / "examples/data/orders.xlsx", book)

    def play(match):
        run = subprocess.run([sys.argv[1], "wizard", book, "--script", "-"], input=match[1], text=True, capture_output=True)
        if run.returncode:
            sys.exit(f"{run.stderr}\nin the script\n{match[1]}")
        if bool(run.stdout) != bool(match[2]):
            sys.exit(f"a block of text must follow the scripts that show a page, and no others:\n{match[1]}")
        printed = f"\n```text\n{run.stdout}```\n" if match[2] else ""
        return f"```script\n{match[1]}```\n{printed}"

    text = page.read_text()
    page.write_text(re.sub(r"```script\n(.*?)```\n(\n```text\n.*?```\n)?", play, text, flags=re.S))

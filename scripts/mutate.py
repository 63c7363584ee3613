#!/usr/bin/env python3
"""Breaks the code in one place at a time and checks whether a test notices.

    scripts/mutate.py src/readback src/builder --count 40 --seed 1

The seed determines the faults of a room. All of them are written into copies of the sources, each behind a switch
(scripts/faults/Fault.h), and linked with the tests of an ordinary build into one program. A first run of that program
records which tests reach which fault. Then the program runs once for each fault, with the tests that reach it, the
quick ones first. A fault that no test notices survives, and is printed with its place. The sources themselves aren't
changed.
"""

import argparse
import collections
import json
import os
import pathlib
import random
import re
import resource
import shlex
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FAULTS = ROOT / "scripts" / "faults"
OUT = ROOT / "build-mutants"  # with a folder for each room, so that several runs can go on at once
MEMORY = 8 << 30  # bytes that a run may use

INFIX = [  # the operator in the code, and its replacement by the fault
    (r"(?<=\s)==(?=\s)", "!="),
    (r"(?<=\s)!=(?=\s)", "=="),
    (r"(?<=\s)<(?=\s)", "<="),
    (r"(?<=\s)<=(?=\s)", "<"),
    (r"(?<=\s)>(?=\s)", ">="),
    (r"(?<=\s)>=(?=\s)", ">"),
    (r"(?<=\s)\+(?=\s)", "-"),
    (r"(?<=\s)-(?=\s)", "+"),
]
LOGIC = {"&&": ("And", "||"), "||": ("Or", "&&")}
SKIPPED_LINE = re.compile(r"^\s*(//|#|using |namespace |[{}]+[;,)]*$|\}  // namespace|case .*:$|template|static_assert|assert\(|$)")
WITHOUT_EFFECT = re.compile(r"\.(reserve|shrink_to_fit)\(|\bYieldToHost\(")
STATEMENT = re.compile(r"^(\s+)((?!return\b|throw\b|delete\b|else\b|if\b|for\b|while\b)[\w.>\-:\[\]*]+"
                       r"(?:\(.*\)(?:->\w+\(.*\)|\.\w+\(.*\))*| \+?= [^;]*|\+\+|--));$")

Edit = collections.namedtuple("Edit", "position rank removed text")
RANK_CLOSE, RANK_OPEN, RANK_TOKEN = 0, 1, 2


class Fault:
    def __init__(self, path, line, before, after, edits, is_static):
        self.path, self.line, self.before, self.after = path, line, before, after
        self.edits, self.is_static = edits, is_static  # edits: functions of the fault's number
        self.number = 0

    def place(self):
        return f"{self.path.relative_to(ROOT)}:{self.line}"


def masked(text):
    """Returns the text with blanks for comments, and underscores for string and character literals."""
    pattern = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?:.*?)\)"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'', re.S)
    return pattern.sub(lambda m: re.sub(r"[^\n]", " " if m.group(0)[0] == "/" else "_", m.group(0)), text)


def operand_end(code, position, stops):
    """Returns the end of the operand that begins at the position."""
    depth = 0
    while position < len(code):
        c = code[position]
        if c in "([{":
            depth += 1
        elif c in ")]}":
            if depth == 0:
                break
            depth -= 1
        elif depth == 0 and (c in ",;?" or code.startswith(stops, position) or is_lonely_colon(code, position)):
            break
        position += 1
    while code[position - 1].isspace():
        position -= 1
    return position


def is_lonely_colon(code, position):
    return code[position] == ":" and code[position - 1] != ":" and code[position + 1] != ":"


def operand_begin(code, position, stops):
    """Returns the beginning of the operand that ends before the position."""
    depth = 0
    while position > 0:
        c = code[position - 1]
        if c in ")]}":
            depth += 1
        elif c in "([{":
            if depth == 0:
                break
            depth -= 1
        elif depth == 0:
            if c in ",;?" or code[position - 2:position] in stops or is_lonely_colon(code, position - 1):
                break
            if c == "=" and code[position - 2] in "=!<>":
                position -= 1
            elif c == "=":
                break
            if re.search(r"\breturn$", code[max(0, position - 7):position]):
                break
        position -= 1
    while code[position].isspace():
        position += 1
    return position


def faults_of(path):
    """Returns all faults of a file in the order of their positions."""
    text = path.read_text()
    code = masked(text)
    starts = [0] + [m.end() for m in re.finditer("\n", text)]
    faults = []

    def add(begin, end, replacement, edits):
        line = text.count("\n", 0, begin)
        begin_of_line, end_of_line = starts[line], text.index("\n", starts[line])
        whole = text[begin_of_line:end_of_line]
        if SKIPPED_LINE.match(whole) or WITHOUT_EFFECT.search(whole):
            return
        after = whole[:begin - begin_of_line] + replacement + text[end:end_of_line]
        statement = code[max(code.rfind(";", 0, begin), code.rfind("\n\n", 0, begin), 0):begin]
        constant = list(re.finditer(r"\bconstexpr\b", statement))
        edits = list(edits)
        if constant:  # a value known at compile time can't have a switch
            at = begin - len(statement) + constant[-1].start()
            edits.append(lambda n: Edit(at, RANK_TOKEN, 9, "const"))
        is_static = bool(constant) or "static" in statement or begin_of_line == begin
        faults.append(Fault(path, line + 1, whole.strip(), after.strip(), edits, is_static))

    def token(begin, end, replacement, make):
        add(begin, end, replacement, [lambda n: Edit(begin, RANK_TOKEN, end - begin, make(n))])

    for pattern, wrong in INFIX:
        for m in re.finditer(pattern, code):
            right = m.group(0)
            token(m.start(), m.end(), wrong, lambda n, o=right: f"{o} plotsmith_fault::At<{n}>() {o}")
    for m in re.finditer(r"(?<=\s)(&&|\|\|)(?=\s)", code):
        name, wrong = LOGIC[m.group(1)]
        begin = operand_begin(code, m.start(), ("||",) if m.group(1) == "&&" else ())
        end = operand_end(code, m.end(), ("||", "&&") if m.group(1) == "&&" else ("||",))
        add(m.start(), m.end(), wrong, [
            lambda n, b=begin, k=name: Edit(b, RANK_OPEN, 0, f"plotsmith_fault::{k}({n}, static_cast<bool>("),
            lambda n, b=m.start(), e=m.end(): Edit(b, RANK_TOKEN, e - b, "), [&]() -> bool { return static_cast<bool>("),
            lambda n, e=end: Edit(e, RANK_CLOSE, 0, "); })")])
    for m in re.finditer(r"\b(true|false)\b", code):
        other = "false" if m.group(1) == "true" else "true"
        token(m.start(), m.end(), other, lambda n, a=m.group(1), b=other: f"plotsmith_fault::Pick({n}, {a}, {b})")
    for m in re.finditer(r"(?<![\w.])\d+(?![\w.'])", code):
        other = str(int(m.group(0)) + 1)
        token(m.start(), m.end(), other, lambda n, a=m.group(0), b=other: f"plotsmith_fault::Pick({n}, {a}, {b})")
    for m in re.finditer(r'"([A-Za-z][^"\\%\n]*)"', text):
        if code[m.start()] != "_" or code[m.start() - 1] == "_" or text[m.start() - 1] in "Ru8" or text[m.end()].isalpha():
            continue
        other = f'"{m.group(1)}_"'
        token(m.start(), m.end(), other, lambda n, a=m.group(0), b=other: f"plotsmith_fault::Pick({n}, {a}, {b})")
    for m in re.finditer(r"(?<=[(\s])!(?=\w)", code):
        token(m.start(), m.end(), "", lambda n: f"plotsmith_fault::On({n}) != !")
    for m in re.finditer(r"\+\+([\w\->.]+)(?=[;)\],])", code):
        v = m.group(1)
        token(m.start(), m.end(), "--" + v, lambda n, v=v: f"(plotsmith_fault::On({n}) ? --{v} : ++{v})")
    for m in re.finditer(r"\b(break|continue);", code):
        token(m.start(), m.end(), ";", lambda n, w=m.group(1): f"if (!plotsmith_fault::On({n})) {w};")
    for begin in starts:  # a statement on its own line can be left out
        end = text.find("\n", begin)
        m = STATEMENT.match(code[begin:end]) if end > 0 else None
        if m and not re.search(r"[,(?:&|+=]$|^\s*[:?]", code[:begin].rstrip()[-1:] or ";"):
            first = begin + len(m.group(1))
            add(first, end, ";", [
                lambda n, b=first: Edit(b, RANK_OPEN, 0, f"{{ if (!plotsmith_fault::On({n})) {{ "),
                lambda n, e=end: Edit(e, RANK_CLOSE, 0, " } }")])
    return sorted(faults, key=lambda f: (f.line, f.after))


def written(path, faults):
    """Returns the text of the file with the faults, each behind its switch. Line numbers don't change."""
    edits = []
    for fault in faults:
        made = [edit(fault.number) for edit in fault.edits]
        span = max(e.position for e in made) - min(e.position for e in made)
        edits += [(e.position, e.rank, -span if e.rank == RANK_OPEN else span, e) for e in made]
    edits.sort(key=lambda e: e[:3])
    text, parts, at = path.read_text(), [], 0
    done = set()
    for position, rank, _, edit in edits:
        if rank == RANK_TOKEN:
            if position in done:
                continue
            if position < at:
                continue
            done.add(position)
        parts += [text[at:position], edit.text]
        at = max(at, position + edit.removed)
    return "".join(parts) + text[at:]


def overlaps(fault, others):
    """Returns true if another fault of the file already changes a token of this fault."""
    def tokens(f):
        return {e.position for e in (edit(1) for edit in f.edits) if e.rank == RANK_TOKEN and e.text != "const"}
    return any(tokens(fault) & tokens(other) for other in others)


class Build:
    """The ordinary build, which provides all other objects and the command lines."""

    def __init__(self, folder):
        self.folder = folder
        entries = json.loads((folder / "compile_commands.json").read_text())
        self.commands = {pathlib.Path(e["file"]): e["command"] for e in entries if "/qt/" not in e["command"]}
        # a source that is compiled together with others belongs to the unit that includes it
        self.units = {file: file for file in self.commands}
        for unit in list(self.commands):
            if unit.match("Unity/unity_*"):
                for included in re.findall(r'#include "(.*)"', unit.read_text()):
                    self.units[pathlib.Path(included)] = unit
        lines = subprocess.run(["ninja", "-C", str(folder), "-t", "commands", "plotsmith_tests"],
                               capture_output=True, text=True, check=True).stdout.splitlines()
        link = next(part for part in lines[-1].split(" && ") if " -o tests/plotsmith_tests " in part)
        # the tests as they are now, because another build may replace them
        self.tests = OUT / "tests.o"
        self.link = [word for word in shlex.split(link) if not word.endswith(".o") and word not in (":", "true")]
        objects = [word for word in shlex.split(link) if word.endswith(".o")]
        subprocess.run(["ld", "-r", "-o", str(self.tests), *objects], cwd=folder, check=True)

    def compile(self, unit, copies, target):
        """Compiles the unit with the copies in the place of their sources. Returns the places of the errors."""
        source = copies.get(unit)
        if source is None:
            source = target.with_suffix(".cxx")
            included = re.findall(r'#include "(.*)"', unit.read_text())
            files = [copies.get(pathlib.Path(file), file) for file in included]
            source.write_text("".join(f'#include "{file}"\n' for file in files))
        words = [w for w in shlex.split(self.commands[unit]) if not re.match(r"-O\d$|-W", w)]
        words[words.index("-o") + 1] = str(target)
        words[words.index(str(unit))] = str(source)
        extra = ["-O1", "-w", "-Wno-narrowing", "-fno-diagnostics-show-caret", "-include", str(FAULTS / "Fault.h")]
        for folder in sorted({original.parent for original in copies}):
            extra += ["-iquote", str(folder)]
        ccache = [shutil.which("ccache")] if shutil.which("ccache") and "ccache" not in words[0] else []
        # the check alone takes less time than the code, and some faults don't compile
        for part in (["-fsyntax-only"], []):
            command = ["nice", *([] if part else ccache), *words, *extra, *part]
            done = subprocess.run(command, cwd=self.folder, capture_output=True, text=True)
            if done.returncode != 0:
                places = [(original, int(line)) for original, copy in copies.items() for line in re.findall(
                    rf"^{re.escape(str(copy))}:(\d+):.*(?:error|required from here)", done.stderr, re.M)]
                return sorted(set(places)) or [(next(iter(copies)), 0)]
        return []

    def link_tests(self, objects, target):
        words = list(self.link)
        at = words.index("-o")
        words[at + 1:at + 2] = [str(target), str(self.tests), *map(str, objects)]
        linker = ["-fuse-ld=lld"] if shutil.which("ld.lld") else []
        subprocess.run(["nice", *words, *linker], cwd=self.folder, check=True)


def choose(room, count, seed):
    """Returns twice as many faults as wanted, in the order in which they are used, because some don't compile."""
    path = ROOT / room
    files = sorted(path.rglob("*.cpp")) if path.is_dir() else [path]
    faults = [fault for file in files if not file.stem.endswith("Windows") for fault in faults_of(file)]
    random.Random(seed).shuffle(faults)
    chosen = []
    for fault in faults:
        if len(chosen) < 2 * count and not overlaps(fault, [f for f in chosen if f.path == fault.path]):
            chosen.append(fault)
    return chosen


def compiled(build, unit, faults):
    """Returns the object of the unit and the faults that compile in it."""
    target = OUT / (str(unit.relative_to(ROOT)).replace("/", "-") + ".o")
    while faults:
        copies = {}
        for path in sorted({fault.path for fault in faults}):
            copies[path] = OUT / path.relative_to(ROOT)
            copies[path].parent.mkdir(parents=True, exist_ok=True)
            copies[path].write_text(written(path, [fault for fault in faults if fault.path == path]))
        places = build.compile(unit, copies, target)
        if not places:
            return target, faults
        bad = [f for f in faults if (f.path, f.line) in places]
        # no fault's line has the error, for example if the size of a table must be known: leave out one by one
        path, line = places[0]
        bad = bad or [f for f in faults if f.path == path and f.line < line][-1:] or faults[-1:]
        faults = [f for f in faults if f not in bad]
    return None, []


def run(program, tests, fault, record=None, seconds=3600):
    """Returns the exit code and the output. The limit is one of processor time, because the machine may be busy."""
    def limit():
        resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 5))
        resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    environment = dict(os.environ, PLOTSMITH_FAULT=str(fault))
    if record:
        environment["PLOTSMITH_FAULTS_RECORD"] = str(record)
    flags = OUT / "flags"
    flags.write_text("--gtest_filter=" + tests + "\n")
    command = ["nice", str(program), "--gtest_flagfile=" + str(flags), *([] if record else ["--gtest_fail_fast"])]
    try:
        done = subprocess.run(command, cwd=OUT, env=environment, preexec_fn=limit, capture_output=True, text=True,
                              errors="replace", timeout=20 * seconds + 60)
    except subprocess.TimeoutExpired:
        return 1, ""
    return done.returncode, done.stdout


def tests_by_fault(program, filter_):
    """Returns the tests that reach each fault, and the time of each test in milliseconds."""
    record = OUT / "record"
    record.unlink(missing_ok=True)
    record.touch()
    code, output = run(program, filter_, 0, record)
    (OUT / "log").write_text(output)
    failing = set(re.findall(r"^\[  FAILED  \] ([^\s,]+)(?:, .*)? \(\d+ ms\)$", output, re.M))
    if code != 0 and not failing:
        sys.exit("mutate: the tests crash without a fault.")
    if failing:
        print("left out, because they fail without a fault:", *sorted(failing))
    times = {m.group(1): int(m.group(2)) for m in re.finditer(r"^\[       OK \] (\S+?)(?:, .*)? \((\d+) ms\)", output, re.M)}
    past = collections.defaultdict(set)
    for line in record.read_text().splitlines():
        fault, test = line.split("\t")
        if test in times or test == "*":
            past[int(fault)].add(test)
    return past, times


def is_noticed(program, fault, tests, times):
    """Returns true if one of the tests fails while the fault is active."""
    tests = sorted(tests, key=lambda test: times.get(test, 0))
    for part in (tests[:20], tests[20:80], tests[80:]):
        if part:
            spent = sum(times.get(test, 0) for test in part) / 1000
            if run(program, ":".join(part), fault.number, seconds=int(5 + 5 * spent))[0] != 0:
                return True
    return False


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("room", nargs="+", help="folders or files of the sources")
    parser.add_argument("--count", type=int, default=40, help="how many faults in each room (40)")
    parser.add_argument("--seed", type=int, default=1, help="which faults (1)")
    parser.add_argument("--filter", default="-*LibreOffice*",
                        help="the tests to run, in the syntax of --gtest_filter (all but those that start LibreOffice)")
    parser.add_argument("--build", default="build", help="the folder of an ordinary build (build)")
    options = parser.parse_args()

    global OUT
    OUT /= options.room[0].replace("/", "-")
    OUT.mkdir(parents=True, exist_ok=True)
    folder = ROOT / options.build
    if subprocess.run(["nice", "ninja", "-C", str(folder), "plotsmith_tests"], stdout=subprocess.DEVNULL).returncode != 0:
        sys.exit("mutate: the tests don't build.")
    build = Build(folder)
    rooms, objects, everything, usable, number = {}, [], [], [], 0
    for room in options.room:
        chosen = rooms[room] = choose(room, options.count, options.seed)
        for number, fault in enumerate(sorted(chosen, key=lambda f: f.path), start=number + 1):
            fault.number = number
        everything += chosen
    for unit in sorted({build.units[fault.path] for fault in everything}):
        target, own = compiled(build, unit, [f for f in everything if build.units[f.path] == unit])
        objects += [target] if target else []
        usable += own
    for room, chosen in rooms.items():
        rooms[room] = [fault for fault in chosen if fault in usable][:options.count]
    runtime = OUT / "Fault.o"
    subprocess.run(["c++", "-std=c++20", "-O1", "-c", str(FAULTS / "Fault.cpp"), "-o", str(runtime)], check=True)
    program = OUT / "tests" / "plotsmith_tests"
    program.parent.mkdir(exist_ok=True)
    if not (OUT / "lib").is_symlink():
        (OUT / "lib").symlink_to(folder / "lib")  # for the drawing module, which is loaded from the program's folder
    build.link_tests([runtime, *objects], program)
    past, times = tests_by_fault(program, options.filter)

    survived = False
    for room, faults in rooms.items():
        survivors = []
        for fault in faults:
            # a value that is computed once, or before all tests, may affect each of them
            tests = set(times) if fault.is_static or "*" in past[fault.number] else past[fault.number]
            if not is_noticed(program, fault, tests, times):
                survivors.append(fault)
                print(f"survived {fault.place()}{'' if tests else ' (no test reaches it)'}\n"
                      f"  - {fault.before}\n  + {fault.after}", flush=True)
        killed = len(faults) - len(survivors)
        print(f"{room}: {killed} of {len(faults)} faults were noticed (seed {options.seed}).", flush=True)
        survived = survived or bool(survivors)
    sys.exit(1 if survived else 0)


if __name__ == "__main__":
    main()

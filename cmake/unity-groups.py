#!/usr/bin/env python3
"""Decides which source files of a target are compiled as one, so that the compiler reads their headers only once.

Files that are compiled as one share an anonymous namespace. A name that one file declares there must therefore not be
declared by another file of its group, nor by that file's headers: it would be declared twice or be ambiguous. A
variable must not be hidden by a parameter in another file, nor a type by an alias in a function, because the compiler
warns about that. Sources that define macros are compiled alone, because a macro may change the meaning of a header.
Sources that include the headers of Windows, which are full of macros, are only grouped with each other.

Usage: unity-groups.py SOURCES INCLUDES OUTPUT. SOURCES has a line "target<tab>room<tab>file" for each source: files
that use headers of the room, which may be empty, aren't grouped with others. INCLUDES are the folders of our headers,
separated by semicolons, with the folder of the rooms first. OUTPUT becomes a file of CMake commands.
"""

import collections
import functools
import os
import re
import sys

MOST_BYTES = 150_000  # of a group, which takes up to fifteen seconds to compile
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'', re.S)
INCLUDE = re.compile(r'^#include "([^"]+)"', re.M)
ALONE = re.compile(r"^#define |^#include <initguid\.h>", re.M)
WINDOWS = re.compile(r"^#include <(?:windowsx?|commctrl|dispex|objbase|ocidl|oleacc|oleauto|shellapi)\.h>", re.M)
ANONYMOUS = re.compile(r"^namespace \{\n(.*?)^\}  // namespace$", re.M | re.S)
INNER = re.compile(r"^namespace (?!plotsmith\b)(\w+) \{\n(.*?)^\}  // namespace \1$", re.M | re.S)
TYPE = re.compile(r"(?:struct|class|union|enum class|enum struct|enum) (\w+)")
USING = re.compile(r"using (?:typename )?(?:[\w:]*::)?(\w+)(?: = .*)?;|namespace (\w+) = ")
BRINGS_IN = re.compile(r"using [\w:]+;")  # in a header, the same for all sources that include it
DECLARED = re.compile(r"(\w+)(?:\[[^\]]*\])*\s*$")

# A declaration in a file. `text` is the text of a line that may be repeated unchanged, and otherwise the name of the
# file.
Declaration = collections.namedtuple("Declaration", "text is_variable")


@functools.lru_cache(maxsize=None)
def text_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def bare(text):
    """Returns code without comments and without the content of literals."""
    return COMMENT_OR_TEXT.sub(" ", text)


@functools.lru_cache(maxsize=None)
def code_of(path):
    return bare(text_of(path))


@functools.lru_cache(maxsize=None)
def words_of(path):
    """Returns the names in a file, without those behind `::`, which have the same meaning in any group."""
    return frozenset(re.findall(r"(?<![\w:])[A-Za-z_]\w*", code_of(path)))


@functools.lru_cache(maxsize=None)
def headers_of(path, folders):
    """Returns our headers that a file includes directly."""
    found = []
    for name in INCLUDE.findall(text_of(path)):
        for folder in (os.path.dirname(path),) + folders:
            header = os.path.join(folder, name)
            if os.path.isfile(header):
                found.append(os.path.normpath(header))
                break
    return tuple(found)


def all_headers_of(path, folders):
    """Returns our headers that a file includes, directly or not."""
    seen = set()
    waiting = [path]
    while waiting:
        for header in headers_of(waiting.pop(), folders):
            if header not in seen:
                seen.add(header)
                waiting.append(header)
    return seen


def function_or_variable(text):
    """Returns the name that the text's first declaration declares, and whether it is a variable; None if it declares no
    name of the namespace."""
    depth = 0
    for place, sign in enumerate(text):
        if sign == "<":
            depth += 1
        elif sign == ">":
            depth -= 1
        elif depth <= 0 and sign in "(={;":
            before = text[:place].rstrip()
            name = DECLARED.search(before)
            if not name or before[: name.start()].endswith("::") or name.start() == 0 or name[1] == "operator":
                return None  # a member, a test macro or an operator
            return name[1], sign != "("
    return None


def declarations(text, path):
    """Returns the declarations in a text whose namespaces aren't indented, by name. The name of one in a namespace
    inside of the file's has that namespace's name before it."""
    found = {}
    for inner in INNER.finditer(text):
        inside = declarations_in(bare(inner[2]), path)
        found.update((f"{inner[1]}::{name}", declared) for name, declared in inside.items())
    found.update(declarations_in(bare(INNER.sub("", text)), path))
    return found


def declarations_in(code, path):
    found = {}
    lines = code.split("\n")
    for place, line in enumerate(lines):
        if not re.match(r"[A-Za-z_]", line) or re.match(r"template|namespace [\w:]* ?\{|using namespace", line):
            continue
        using = USING.match(line)
        kind = TYPE.match(line)
        if using:
            found[using[1] or using[2]] = Declaration(line.strip(), False)
        elif kind and "(" not in line.split("{")[0]:
            if line.rstrip().endswith(";") and "{" not in line:
                continue  # only a declaration, which may be repeated
            found[kind[1]] = Declaration(path, False)
            if re.match(r"enum (?!class|struct)", line):
                body = "\n".join(lines[place:]).split("{", 1)[-1].split("}", 1)[0]
                found.update((name, Declaration(path, True)) for name in re.findall(r"(?:^|,)\s*(\w+)", body))
        else:
            named = function_or_variable(" ".join(lines[place : place + 6]))
            if named:
                found[named[0]] = Declaration(path, named[1])
    return found


@functools.lru_cache(maxsize=None)
def declared_in_header(path):
    return declarations(text_of(path), path)


def private_declarations(path):
    """Returns the declarations in a file's anonymous namespaces."""
    blocks = ANONYMOUS.findall(text_of(path))
    return declarations("\n".join(blocks), path)


class Source:
    def __init__(self, path, room, folders):
        headers = all_headers_of(path, folders)
        self.path = path
        self.size = len(text_of(path))
        self.words = words_of(path)
        self.aliases = set(re.findall(r"^ +using (\w+) =", code_of(path), re.M))  # in functions
        self.public = {}
        for header in headers:
            self.public.update(declared_in_header(header))
        # a definition for the file's header isn't private
        defined = declarations(text_of(path), path)
        self.private = {name: declared for name, declared in defined.items() if name not in self.public}
        self.private.update(private_declarations(path))
        files = headers | {path}
        in_room = os.path.join(folders[0], room, "") if room else None
        # only sources of the same kind are combined
        self.kind = (
            in_room is not None and any(file.startswith(in_room) for file in files),
            any(WINDOWS.search(text_of(file)) for file in files),
        )


def disturbs(source, other):
    """Returns true if a name that the file or its headers declare has another meaning in the other file."""
    for name, (text, is_variable) in source.private.items():
        if name in other.private and other.private[name].text != text:
            return True
        if name in other.public and other.public[name].text != text and not BRINGS_IN.match(text):
            return True
        if name in other.aliases or (is_variable and name in other.words and name not in other.private):
            return True
    return any(
        is_variable and name in other.words and name not in other.public and name not in other.private
        for name, (_, is_variable) in source.public.items()
    )


def groups_of(paths, room, folders):
    groups = []
    for path in sorted(paths):
        if ALONE.search(text_of(path)):
            continue
        source = Source(path, room, folders)
        for group in groups:
            if (
                group[0].kind == source.kind
                and sum(member.size for member in group) + source.size <= MOST_BYTES
                and not any(disturbs(source, member) or disturbs(member, source) for member in group)
            ):
                group.append(source)
                break
        else:
            groups.append([source])
    return [[source.path for source in group] for group in groups if len(group) > 1]


def main():
    sources, folders, output = sys.argv[1:]
    folders = tuple(folders.split(";"))
    targets = collections.defaultdict(list)
    for line in open(sources, encoding="utf-8"):
        target, room, path = line.rstrip("\n").split("\t")
        targets[target, room].append(path)
    with open(output, "w", encoding="utf-8") as file:
        for (target, room), paths in targets.items():
            groups = groups_of(paths, room, folders)
            if not groups:
                continue
            file.write(f"set_target_properties({target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)\n")
            for place, files in enumerate(groups):
                listed = " ".join(f'"{path}"' for path in files)
                file.write(f"set_source_files_properties({listed} TARGET_DIRECTORY {target}\n"
                           f'                            PROPERTIES UNITY_GROUP "{place}")\n')


main()

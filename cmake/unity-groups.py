#!/usr/bin/env python3
"""Says which source files of a target the compiler may read as one, so that it reads their headers only once.

Files that are read as one share an anonymous namespace. A name that one file declares there must therefore not occur
in another file of its group, nor in that file's headers: it would be declared twice, or mean two things. The same holds
of variables of headers, which names of parameters in another file would hide. Sources that define macros are read alone,
as a macro may change what a header says; those that include headers of Windows, which are full of macros, are read with
their like.

Usage: unity-groups.py SOURCES INCLUDES OUTPUT. SOURCES has a line "target<tab>room<tab>file" for each source: files
that use headers of the room, which may be empty, aren't read with others. INCLUDES are the folders of our headers,
separated by semicolons, that of the rooms first. OUTPUT becomes a file of CMake commands.
"""

import collections
import functools
import os
import re
import sys

MOST_BYTES = 110_000  # of a group; the compiler takes some ten seconds for that
WORD = re.compile(r"(?<![\w.>:])[A-Za-z_]\w*|(?<=[^-]>)[A-Za-z_]\w*|(?<=[^:]:)[A-Za-z_]\w*")
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'', re.S)
INCLUDE = re.compile(r'^#include "([^"]+)"', re.M)
ANONYMOUS = re.compile(r"^namespace \{\n(.*?)^\}  // namespace$", re.M | re.S)
TYPE = re.compile(r"(?:struct|class|union|enum class|enum struct|enum) (\w+)")
USING = re.compile(r"using (?:typename )?(?:[\w:]*::)?(\w+)(?: = .*)?;|namespace (\w+) = ")
WINDOWS = re.compile(r"^#include <(?:windowsx?|commctrl|dispex|objbase|ocidl|oleacc|oleauto|shellapi)\.h>", re.M)
VARIABLE = re.compile(r"^extern [^(;]*?(\w+);", re.M)
BRINGS_IN = re.compile(r"using [\w:]+;")
DECLARED = re.compile(r"(\w+)(?:\[[^\]]*\])*\s*$")


@functools.lru_cache(maxsize=None)
def text_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def without_comments(text):
    return COMMENT_OR_TEXT.sub(" ", text)


@functools.lru_cache(maxsize=None)
def own_words(path):
    return frozenset(WORD.findall(without_comments(text_of(path))))


@functools.lru_cache(maxsize=None)
def headers_of(path, folders):
    """Our headers that a file includes itself."""
    found = []
    for name in INCLUDE.findall(text_of(path)):
        for folder in (os.path.dirname(path),) + folders:
            header = os.path.join(folder, name)
            if os.path.isfile(header):
                found.append(os.path.normpath(header))
                break
    return tuple(found)


def with_headers(path, folders):
    """A file and our headers that it includes, directly or not."""
    seen = {path}
    waiting = [path]
    while waiting:
        for header in headers_of(waiting.pop(), folders):
            if header not in seen:
                seen.add(header)
                waiting.append(header)
    return seen


def declared_name(declaration):
    """The name of a function or variable, up to whose parameters or value the text goes; None if it has none."""
    depth = 0
    for place, sign in enumerate(declaration):
        if sign == "<":
            depth += 1
        elif sign == ">":
            depth -= 1
        elif depth <= 0 and sign in "(={;":
            before = declaration[:place].rstrip()
            name = DECLARED.search(before)
            if not name or before[: name.start()].endswith("::") or name.start() == 0 or name[1] == "operator":
                return None  # a member, a macro of tests, an operator
            return name[1]
    return None


def private_names(path):
    """The names that a file declares in its anonymous namespaces, each with the text that declares it."""
    names = {}
    for block in ANONYMOUS.findall(text_of(path)):
        lines = without_comments(block).split("\n")
        for place, line in enumerate(lines):
            if not re.match(r"[A-Za-z_]", line) or line.startswith(("template", "namespace {")):
                continue
            kind = TYPE.match(line)
            using = USING.match(line)
            if using:
                names[using[1] or using[2]] = line
            elif kind and "(" not in line.split("{")[0]:
                names[kind[1]] = path
                if line.startswith("enum ") and not line.startswith(("enum class", "enum struct")):
                    body = "\n".join(lines[place:]).split("{", 1)[-1].split("}", 1)[0]
                    names.update((name, path) for name in re.findall(r"(?:^|,)\s*(\w+)", body))
            elif not line.startswith("using namespace"):
                name = declared_name(" ".join(lines[place : place + 6]))
                if name:
                    names[name] = path
    return names


def clash(names, others, words_of_others):
    """Whether one of the names means something else to others. What `using a::Name;` brings in does so only if others
    declare that name themselves."""
    for name, text in names.items():
        if name in others:
            if others[name] != text:
                return True
        elif name in words_of_others and not BRINGS_IN.match(text):
            return True
    return False


class Group:
    def __init__(self, is_apart):
        self.is_apart = is_apart
        self.files, self.size, self.names, self.words = [], 0, {}, set()

    def takes(self, is_apart, size, names, used):
        """Whether a file of this size may be read with those that are here."""
        if self.is_apart != is_apart or self.size + size > MOST_BYTES:
            return False
        return not clash(names, self.names, self.words) and not clash(self.names, names, used)

    def add(self, path, size, names, used):
        self.files.append(path)
        self.size += size
        self.names.update(names)
        self.words |= used


def groups_of(paths, apart, folders):
    groups = []
    for path in sorted(paths):
        text = text_of(path)
        if re.search(r"^#define |^#include <initguid\.h>", text, re.M):
            continue
        files = with_headers(path, folders)
        names = private_names(path)
        for header in files - {path}:
            names.update((name, header) for name in VARIABLE.findall(text_of(header)))
        room = os.path.join(folders[0], apart, "") if apart else None
        uses_room = room is not None and any(file.startswith(room) for file in files)
        is_apart = uses_room, any(WINDOWS.search(text_of(file)) for file in files)
        used = set().union(*(own_words(file) for file in files))
        for group in groups:
            if group.takes(is_apart, len(text), names, used):
                break
        else:
            group = Group(is_apart)
            groups.append(group)
        group.add(path, len(text), names, used)
    return [group.files for group in groups if len(group.files) > 1]


def main():
    sources, folders, output = sys.argv[1:]
    folders = tuple(folders.split(";"))
    targets = collections.defaultdict(list)
    for line in open(sources, encoding="utf-8"):
        target, apart, path = line.rstrip("\n").split("\t")
        targets[target, apart].append(path)
    with open(output, "w", encoding="utf-8") as file:
        for (target, apart), paths in targets.items():
            groups = groups_of(paths, apart, folders)
            if not groups:
                continue
            file.write(f"set_target_properties({target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)\n")
            for place, files in enumerate(groups):
                listed = " ".join(f'"{path}"' for path in files)
                file.write(f"set_source_files_properties({listed} TARGET_DIRECTORY {target}\n"
                           f'                            PROPERTIES UNITY_GROUP "{place}")\n')


main()

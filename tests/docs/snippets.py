#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Takes the code out of the documentation: fenced blocks of README.md and docs/*.md, and \\code blocks of the library's
headers.

    snippets.py write TREE OUT PACKAGE    writes the C++ and CMake blocks to OUT, ready to be compiled and configured;
                                          PACKAGE stands in for Tessera where a block finds or asks for the package
    snippets.py check TREE [NAME=PROGRAM]...
                                          fails on a command of an sh block, or in the midst of a sentence, that names a
                                          script, an option, a preset or a target that there is not; what a NAME takes is
                                          asked of PROGRAM
"""
import json
import pathlib
import re
import shlex
import subprocess
import sys

LANGUAGES = ("cpp", "cmake", "sh")
FENCE = re.compile(r"^```(\S*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
DOXYGEN = re.compile(r"^[ *]*\\code\n(.*?)^[ *]*\\endcode$", re.MULTILINE | re.DOTALL)
INLINE = re.compile(r"`(scripts/[^`]+)`")
OPTION = re.compile(r"--[a-z][a-z0-9_-]*")


class Block:
    def __init__(self, name, line, language, text):
        self.name, self.line, self.language, self.text = name, line, language, text

    def __str__(self):
        return f"{self.name}:{self.line}"


def read_blocks(tree):
    for path in [tree / "README.md", *sorted((tree / "docs").glob("*.md"))]:
        text = path.read_text(encoding="utf-8")
        for match in FENCE.finditer(text):
            line = text.count("\n", 0, match.start()) + 2
            yield Block(path.relative_to(tree).as_posix(), line, match[1], match[2])
    for path in sorted((tree / "src").rglob("*.h")):
        text = path.read_text(encoding="utf-8")
        for match in DOXYGEN.finditer(text):
            line = text.count("\n", 0, match.start()) + 2
            yield Block(path.relative_to(tree).as_posix(), line, "cpp", match[1])


def wrap_cpp(block, header=""):
    """A source of its own: what the block includes, and the rest in the constructor of a widget of the reader's. The
    example of a header has that header."""
    includes, body = [], []
    for line in block.text.splitlines():
        is_include = line.lstrip().startswith("#include")
        includes.append(line if is_include else "")
        body.append("" if is_include else line)
    name = re.sub(r"\W", "_", str(block))
    place = f'#line {block.line} "{block.name}"'
    own = f"#include <{header}>\n" if header else ""
    return "\n".join([own + place, *includes, '#include "Surroundings.h"',
                      f"struct {name} : Surroundings", "{", f"    {name}();", "};",
                      f"{name}::{name}()", "{", place, *body, "}", ""])


def write(tree, out, package):
    """Returns how many blocks of each language were written."""
    counts = dict.fromkeys(LANGUAGES, 0)
    for block in read_blocks(tree):
        name = re.sub(r"\W", "_", str(block))
        if block.language == "cpp":
            header = block.name[len("src/"):] if block.name.startswith("src/") else ""
            (out / f"{name}.cpp").write_text(wrap_cpp(block, header), encoding="utf-8")
        elif block.language == "cmake":
            text = re.sub(r"\bfind_package\(Tessera\b", f"find_package({package}", block.text)
            (out / f"{name}.cmake").write_text(text, encoding="utf-8")
        else:
            continue
        counts[block.language] += 1
    return counts


def commands_of(text):
    """The commands of an sh block, each as a list of words: a comment is none, and a line that is indented or follows a
    backslash goes on with the one before."""
    text = re.sub(r"\\\n", " ", text)
    text = re.sub(r"\n[ \t]+", " ", text)
    for line in text.splitlines():
        for part in re.sub(r"(^|\s)#.*", "", line).split("&&"):
            words = shlex.split(part.replace("[", " ").replace("]", " "))
            if words:
                yield words


class Checker:
    def __init__(self, tree, programs):
        self.tree, self.programs = tree, programs
        self.problems, self.count = [], 0
        presets = json.loads((tree / "CMakePresets.json").read_text(encoding="utf-8"))
        self.presets = {kind: {preset["name"] for preset in presets.get(kind, []) if not preset.get("hidden")}
                        for kind in ("configurePresets", "buildPresets", "testPresets")}
        self.builds = {path.parent.relative_to(tree).as_posix(): path.read_text(encoding="utf-8")
                       for path in tree.rglob("CMakeLists.txt") if "build" not in path.relative_to(tree).parts}

    def check(self, where, words):
        self.count += 1
        problem = self.problem_of(words)
        if problem:
            self.problems.append(f"{where}: {problem}: {' '.join(words)}")

    def problem_of(self, words):
        if words[0].startswith("scripts/"):
            return self.problem_of_script(words)
        if words[0] in ("cmake", "ctest"):
            return self.problem_of_cmake(words)
        if words[0].startswith("build/"):
            return self.problem_of_built(words)
        if words[0] in self.programs:
            return self.problem_of_options(words, self.programs[words[0]])
        return "a command that is not known"

    def problem_of_script(self, words):
        script = self.tree / words[0]
        if not script.is_file():
            return "there is no such script"
        return self.problem_of_options(words, script.read_text(encoding="utf-8"))

    def problem_of_cmake(self, words):
        kind = "testPresets" if words[0] == "ctest" else "buildPresets" if "--build" in words else "configurePresets"
        if "--preset" in words and words[words.index("--preset") + 1] not in self.presets[kind]:
            return "there is no such preset"
        targets = words[words.index("--target") + 1:] if "--target" in words else []
        unknown = [target for target in targets if not any(self.names(text, target) for text in self.builds.values())]
        return f"there is no target {unknown[0]}" if unknown else None

    def problem_of_built(self, words):
        _, preset, *folders, program = words[0].split("/")
        if preset not in self.presets["buildPresets"]:
            return "there is no such preset"
        if not self.names(self.builds.get("/".join(folders), ""), program):
            return "nothing of this name is built there"
        return None

    @staticmethod
    def problem_of_options(words, usage):
        unknown = [word for word in words[1:] if OPTION.fullmatch(word) and not Checker.names(usage, word)]
        return f"{unknown[0]} is not known to it" if unknown else None

    @staticmethod
    def names(text, word):
        return re.search(rf"(?<![\w-]){re.escape(word)}(?![\w-])", text) is not None


def check(tree, programs):
    """Problems, and the number of commands that were looked at."""
    checker = Checker(tree, programs)
    for block in read_blocks(tree):
        if block.language == "sh":
            for words in commands_of(block.text):
                checker.check(block, words)
        elif block.language not in LANGUAGES:
            checker.problems.append(f"{block}: code of no language that is checked: {block.language or 'none named'}")
    for path in [tree / "README.md", *sorted((tree / "docs").glob("*.md"))]:
        for command in INLINE.findall(FENCE.sub("", path.read_text(encoding="utf-8"))):
            checker.check(path.relative_to(tree).as_posix(), shlex.split(command))
    return checker.problems, checker.count


def usage_of(program):
    return subprocess.run([program, "--help"], check=True, text=True, stdout=subprocess.PIPE).stdout


def main():
    if sys.argv[1] == "write":
        out = pathlib.Path(sys.argv[3])
        out.mkdir(parents=True, exist_ok=True)
        counts = write(pathlib.Path(sys.argv[2]), out, sys.argv[4])
        if not counts["cpp"] or not counts["cmake"]:
            sys.exit(f"no code was found: {counts}")
        return
    programs = dict(argument.split("=", 1) for argument in sys.argv[3:])
    problems, count = check(pathlib.Path(sys.argv[2]), {name: usage_of(path) for name, path in programs.items()})
    if not count:
        problems.append("no command was looked at")
    sys.exit("\n".join(problems) if problems else None)


if __name__ == "__main__":
    main()

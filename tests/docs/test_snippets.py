# SPDX-License-Identifier: MIT
"""The check of the documentation's code, on a small tree of its own."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from snippets import check, write  # noqa: E402

README = """# Tool

```sh
scripts/run    # does it all
```

```cmake
find_package(Tessera REQUIRED)
```

```cpp
#include <Tessera/Box.h>

auto* box = new Box(this);
```
"""

CLEAN = {
    "README.md": README,
    "CMakePresets.json": '{"configurePresets": [{"name": "fast"}, {"name": "base", "hidden": true}], '
                         '"buildPresets": [{"name": "fast"}], "testPresets": []}',
    "scripts/run": "#   scripts/run [--all]\n",
    "bench/CMakeLists.txt": "add_executable(bench_box bench_box.cpp)\n",
    "src/Tessera/Box.h": "/*!\n    A box.\n    \\code\n    Box box;\n    \\endcode\n*/\nclass Box;\n",
}

PROGRAMS = {"tool": "Usage: tool [options]\n  --open <file>  Opens it.\n"}


class TestSnippets(unittest.TestCase):
    def in_tree(self, files, work):
        with tempfile.TemporaryDirectory() as folder:
            tree = pathlib.Path(folder)
            for name, text in {**CLEAN, "docs/more.md": "", **files}.items():
                (tree / name).parent.mkdir(parents=True, exist_ok=True)
                (tree / name).write_text(text, encoding="utf-8")
            return work(tree)

    def problems(self, text):
        return self.in_tree({"docs/more.md": text}, lambda tree: check(tree, PROGRAMS)[0])

    def sh_problems(self, line):
        return self.problems(f"```sh\n{line}\n```\n")

    def written(self, package="Tessera", **files):
        def work(tree):
            (tree / "out").mkdir()
            counts = write(tree, tree / "out", package)
            return counts, {path.name: path.read_text(encoding="utf-8") for path in (tree / "out").iterdir()}
        return self.in_tree(files, work)

    def test_what_is_there_is_fine(self):
        problems, count = self.in_tree({}, lambda tree: check(tree, PROGRAMS))
        self.assertEqual((problems, count), ([], 1))
        for line in ("scripts/run --all", "cmake --preset fast && cmake --build --preset fast --target bench_box",
                     "build/fast/bench/bench_box --any", "tool [--open FILE]...\n     [--open OTHER]"):
            self.assertEqual(self.sh_problems(line), [], line)

    def test_a_command_that_is_not_there_is_named(self):
        for line, problem in (("scripts/walk", "there is no such script"),
                              ("scripts/run --al", "--al is not known to it"),
                              ("scripts/run && scripts/run \\\n  --most", "--most is not known to it"),
                              ("cmake --preset base", "there is no such preset"),
                              ("ctest --preset fast", "there is no such preset"),
                              ("cmake --build --preset fast --target bench", "there is no target bench"),
                              ("build/slow/bench/bench_box", "there is no such preset"),
                              ("build/fast/bench_box", "nothing of this name is built there"),
                              ("tool [--open FILE]\n     [--close]", "--close is not known to it"),
                              ("make all", "a command that is not known")):
            problems = self.sh_problems(line)
            self.assertEqual(len(problems), 1, line)
            self.assertTrue(problems[0].startswith(f"docs/more.md:2: {problem}: "), problems[0])

    def test_a_command_in_a_sentence_is_looked_at(self):
        self.assertEqual(self.problems("Call `scripts/run --all`."), [])
        self.assertEqual(self.problems("Call `scripts/run --some`."),
                         ["docs/more.md: --some is not known to it: scripts/run --some"])

    def test_code_of_an_unknown_language_is_named(self):
        self.assertEqual(self.problems("```\nx = 1\n```\n"),
                         ["docs/more.md:2: code of no language that is checked: none named"])
        self.assertEqual(self.problems("```python\nx = 1\n```\n"),
                         ["docs/more.md:2: code of no language that is checked: python"])

    def test_code_is_written_as_it_stands(self):
        counts, files = self.written()
        self.assertEqual(counts, {"cpp": 2, "cmake": 1, "sh": 0})
        self.assertEqual(files["README_md_8.cmake"], "find_package(Tessera REQUIRED)\n")
        lines = files["README_md_12.cpp"].splitlines()
        self.assertEqual(lines[:2], ['#line 12 "README.md"', "#include <Tessera/Box.h>"])
        self.assertEqual(lines[lines.index("{", 8) + 1:], ['#line 12 "README.md"', "", "", "auto* box = new Box(this);", "}"])

    def test_the_example_of_a_header_has_that_header(self):
        source = self.written()[1]["src_Tessera_Box_h_4.cpp"]
        self.assertEqual(source.splitlines()[0], "#include <Tessera/Box.h>")
        self.assertIn("    Box box;\n", source)

    def test_the_package_has_the_name_that_it_is_installed_by(self):
        self.assertEqual(self.written("Tessera-other")[1]["README_md_8.cmake"], "find_package(Tessera-other REQUIRED)\n")


if __name__ == "__main__":
    unittest.main()

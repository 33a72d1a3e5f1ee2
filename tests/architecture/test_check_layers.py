# SPDX-License-Identifier: MIT
"""The check of the layers, on small trees of its own."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from check_layers import check  # noqa: E402

TABLES = """
| layer | folder | what it holds |
|---|---|---|
| top | `src/Lib/top/` | |
| bottom | `src/Lib/bottom/`, `src/Lib/Lib.h` | |

Words between.

| layer | folder | what it holds |
|---|---|---|
| window | `apps/one/window/` | |
| siblings | `apps/one/form/`, `apps/one/tree/` | |

| layer | folder | what it holds |
|---|---|---|
| all | `apps/two/` | |
"""

CLEAN = {
    "src/Lib/Lib.h": "",
    "src/Lib/bottom/Base.h": "#include <QString>\n",
    "src/Lib/bottom/Base_p.h": "#include <Lib/Lib.h>\n",
    "src/Lib/top/Top.h": "#include <Lib/bottom/Base.h>\n",
    "apps/one/window/Window.cpp": '#include "tree/Tree.h"\n#include "form/Form.h"\n',
    "apps/one/form/Form.h": "#include <Lib/top/Top.h>\n",
    "apps/one/tree/Tree.h": "",
    "apps/two/main.cpp": "",
}


class TestCheckLayers(unittest.TestCase):
    def problems(self, **changes):
        with tempfile.TemporaryDirectory() as folder:
            tree = pathlib.Path(folder)
            for name, text in {"docs/architecture.md": TABLES, **CLEAN, **changes.get("files", {})}.items():
                (tree / name).parent.mkdir(parents=True, exist_ok=True)
                (tree / name).write_text(text, encoding="utf-8")
            return check(tree)[0]

    def test_what_points_downwards_is_fine(self):
        self.assertEqual(self.problems(), [])

    def test_an_include_upwards_is_named(self):
        problems = self.problems(files={"src/Lib/bottom/Base.h": "#include <Lib/top/Top.h>\n"})
        self.assertIn("src/Lib/bottom/Base.h: Lib/top/Top.h is not below src/Lib/bottom/", problems)

    def test_an_include_upwards_in_an_application_is_named(self):
        problems = self.problems(files={"apps/one/tree/Tree.cpp": '#include "window/Window.h"\n',
                                        "apps/one/window/Window.h": ""})
        self.assertIn("apps/one/tree/Tree.cpp: window/Window.h is not below apps/one/tree/", problems)

    def test_folders_of_one_layer_do_not_see_one_another(self):
        problems = self.problems(files={"apps/one/tree/Tree.h": '#include "form/Form.h"\n'})
        self.assertEqual(problems, ["apps/one/tree/Tree.h: form/Form.h is not below apps/one/tree/"])

    def test_a_circle_of_folders_is_named(self):
        problems = self.problems(files={"src/Lib/bottom/Base.h": "#include <Lib/top/Top.h>\n"})
        self.assertTrue(any(problem.startswith("folders include one another") for problem in problems), problems)

    def test_a_circle_in_one_folder_is_named(self):
        problems = self.problems(files={"apps/one/tree/Tree.h": '#include "Node.h"\n',
                                        "apps/one/tree/Node.h": '#include "tree/Tree.h"\n'})
        self.assertEqual(problems, ["files include one another: apps/one/tree/Node.h -> apps/one/tree/Tree.h -> "
                                    "apps/one/tree/Node.h"])

    def test_a_private_header_of_the_library_is_not_the_applications(self):
        problems = self.problems(files={"apps/two/main.cpp": "#include <Lib/bottom/Base_p.h>\n"})
        self.assertEqual(problems, ["apps/two/main.cpp: Lib/bottom/Base_p.h is not below apps/two/"])

    def test_the_library_sees_no_application(self):
        problems = self.problems(files={"src/Lib/top/Top.h": '#include "one/tree/Tree.h"\n'})
        self.assertEqual(problems, ["src/Lib/top/Top.h: one/tree/Tree.h is not below src/Lib/top/"])

    def test_a_file_that_no_layer_holds_is_named(self):
        problems = self.problems(files={"apps/one/odd/Odd.h": ""})
        self.assertEqual(problems, ["apps/one/odd/Odd.h: no layer of docs/architecture.md holds it"])

    def test_a_layer_that_holds_nothing_is_named(self):
        problems = self.problems(files={"docs/architecture.md": TABLES.rstrip() + "\n| gone | `apps/gone/` | |\n"})
        self.assertEqual(problems, ["docs/architecture.md: apps/gone/ holds no source"])


if __name__ == "__main__":
    unittest.main()

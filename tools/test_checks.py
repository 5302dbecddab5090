#!/usr/bin/env python3
"""Shows that the checks can fail: each test hands a small tree with one fault to a check."""

import tempfile
import unittest
import xml.etree.ElementTree
from pathlib import Path

import check_bans
import check_format
import check_layers
import check_sizes
import check_skins

GOOD = {
    "teskara/CMakeLists.txt": "set(SOURCES core/Numbers.cpp)",
    "teskara/core/Numbers.h": "#pragma once\n#include <string>\n",
    "teskara/core/Numbers.cpp": '#include "teskara/core/Numbers.h"\n',
    "teskara/element/TeskElement.h": '#pragma once\n#include "teskara/core/Numbers.h"\n',
}


class Checks(unittest.TestCase):
    def tree(self, changes):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        root = Path(folder.name).resolve()
        for name, text in {**GOOD, **changes}.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text, encoding="utf-8")
        return root

    def finds(self, words, changes):
        found = list(check_layers.findings(self.tree(changes)))
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def test_a_good_tree_passes(self):
        self.assertEqual(list(check_layers.findings(self.tree({}))), [])

    def test_a_header_must_not_look_up(self):
        self.finds("may not see", {
            "teskara/core/Up.h": '#pragma once\n#include "teskara/element/TeskElement.h"\n'})

    def test_text_and_collections_do_not_see_each_other(self):
        self.finds("may not see", {
            "teskara/text/Entry.h": "#pragma once\n",
            "teskara/collections/List.h": '#pragma once\n#include "teskara/text/Entry.h"\n'})

    def test_only_the_source_of_the_loader_sees_elements(self):
        loader = '#include "teskara/element/TeskElement.h"\n'
        lists = {"teskara/CMakeLists.txt": "set(SOURCES core/Numbers.cpp markup/InterfaceLoader.cpp markup/XMLNode.cpp)"}
        self.assertEqual(
            list(check_layers.findings(self.tree({**lists, "teskara/markup/InterfaceLoader.cpp": loader}))), [])
        self.finds("may not see", {
            "teskara/CMakeLists.txt": "core/Numbers.cpp markup/XMLNode.cpp",
            "teskara/markup/XMLNode.cpp": loader})

    def test_the_toolkit_must_not_see_the_host(self):
        self.finds("may not see", {
            "host/Host.h": "#pragma once\n",
            "teskara/core/Down.h": '#pragma once\n#include "host/Host.h"\n'})

    def test_nothing_sees_what_stands_behind_the_header_for_c(self):
        flat = {"teskara/flat/FlatHost.h": '#pragma once\n#include "teskara/core/Numbers.h"\n'}
        self.assertEqual(list(check_layers.findings(self.tree(flat))), [])
        for path in ("teskara/script/Up.h", "host/Up.h"):
            self.finds("may not see", {**flat, path: '#pragma once\n#include "teskara/flat/FlatHost.h"\n'})

    def test_the_header_for_c_includes_no_header_of_c_plus_plus(self):
        plain = "#pragma once\n#include <stdint.h>\n"
        self.assertEqual(list(check_layers.findings(self.tree({"teskara/host.h": plain}))), [])
        for name in ("<cstdint>", '"teskara/core/Numbers.h"'):
            self.finds("a program in C", {"teskara/host.h": plain + f"#include {name}\n"})

    def test_the_toolkit_must_not_see_a_third_party(self):
        self.finds("not of the standard library", {"teskara/core/Draw.h": "#pragma once\n#include <SDL2/SDL.h>\n"})

    def test_headers_must_not_form_a_circle(self):
        self.finds("circle", {
            "teskara/core/A.h": '#pragma once\n#include "teskara/core/B.h"\n',
            "teskara/core/B.h": '#pragma once\n#include "teskara/core/A.h"\n'})

    def test_an_include_must_lead_to_a_file(self):
        self.finds("no file", {"teskara/core/A.h": '#pragma once\n#include "Numbers.h"\n'})

    def test_a_source_includes_its_own_header_first(self):
        self.finds("own header first", {
            "teskara/core/Numbers.cpp": '#include <string>\n#include "teskara/core/Numbers.h"\n'})

    def test_a_source_must_be_listed(self):
        self.finds("stands in no", {"teskara/core/Lost.cpp": "\n"})

    def test_a_name_must_say_something(self):
        self.finds("says nothing", {"teskara/core/StringUtils.h": "#pragma once\n"})

    def test_the_operating_system_stays_in_its_folder(self):
        self.finds("operating system", {"teskara/core/A.h": "#pragma once\n#ifdef _WIN32\n#endif\n"})

    def test_a_long_file_is_found(self):
        found, _ = check_sizes.measure(self.tree({"host/Long.cpp": "int a;\n" * 501}))
        self.assertEqual(found, ["host/Long.cpp has 501 lines, more than 500"])

    def test_a_long_function_is_found_and_a_long_class_is_not(self):
        body = "    Step();\n" * 101
        function = "static int Long(\n    int a)\n{\n" + body + "}\n"
        member = "class Holder\n{\n    int Long()\n    {\n" + body + "    }\n};\n"
        found, lengths = check_sizes.measure(self.tree({"host/A.cpp": function, "host/B.cpp": member}))
        self.assertEqual(lengths, [101, 101])
        self.assertEqual(len(found), 2)
        self.assertIn("static int Long(", found[0])

    def test_what_is_banned_is_found(self):
        for line, words in {
            "double a = std::strtod(text, nullptr);": "strtod depends on the locale",
            "int a = atoi(text);": "atoi is undefined",
            "strcpy(to, text);": "strcpy copies without a bound",
            "int a = (int)b;": "casts in the manner of C",
            "auto a = (const char*)(b + c);": "casts in the manner of C",
            "Take((TeskElement*)this);": "casts in the manner of C",
            "std::snprintf(to, size, text.c_str());": "the format of snprintf",
            "Host::PrintLine(name);": "the format of PrintLine",
        }.items():
            found = list(check_bans.findings(self.tree({"host/A.cpp": "void A()\n{\n    " + line + "\n}\n"})))
            self.assertEqual(len(found), 1, (line, found))
            self.assertIn("host/A.cpp:3: ", found[0])
            self.assertIn(words, found[0])

    def test_what_only_looks_banned_is_not_found(self):
        for line in [
            "// strcpy(to, from) is not for us",
            "const char* a = \"atoi(text)\";",
            "text.tolower(); int a = CountOf(b) + sizeof(int) * c;",
            "bool Read(const char*) const; void Give(u32) override;",
            "Host::PrintLine(\"%s is %d\", Name(\"a, b\"), 10'000);",
            "constexpr const char* Usage = \"%s\"; Host::PrintLine(Usage, name);",
            "Host::PrintLine(Messages::NameTaken, name);",
            "void Say(const char* format, int b) { Host::PrintLine(format, b); }",
        ]:
            self.assertEqual(list(check_bans.findings(self.tree({"host/A.cpp": line + "\n"}))), [], line)

    def test_a_file_in_another_style_is_found(self):
        style = Path(__file__).parent.parent / ".clang-format"
        tree = self.tree({"host/A.h": "#pragma once\nint  a;\n", "tests/B.cpp": "int b;\n"})
        found = check_format.findings(tree, style)
        self.assertEqual(len(found), 1, found)
        self.assertIn("host/A.h:2", found[0])

    def test_each_kind_needs_a_template(self):
        found = list(check_skins.missing_templates({"button", "map"}, {"button": None}))
        self.assertEqual(len(found), 1, found)
        self.assertIn('"map"', found[0])

    def test_a_template_must_stand_before_it_is_built_upon(self):
        def template(name, base):
            return xml.etree.ElementTree.fromstring(f'<Template name="{name}" Template="{base}"/>')

        early = {"late": template("Late", "Red,Base,"), "base": template("Base", "")}
        found = list(check_skins.used_too_early({"red": None}, early))
        self.assertEqual(len(found), 1, found)
        self.assertIn('"Base", which does not stand yet', found[0])

    def test_states_must_be_covered(self):
        hover = '"button" has no TextureHover'
        self.assertTrue(any(hover in finding for finding in check_skins.uncovered_states({})))
        texts = {"plate": "<T><TextureHover/></T>", "button": '<T Template="Other,Plate,"/>', "other": "<T/>"}
        covered = {name: xml.etree.ElementTree.fromstring(text) for name, text in texts.items()}
        self.assertFalse(any(hover in finding for finding in check_skins.uncovered_states(covered)))

    def test_skins_tell_the_same_colours(self):
        def skin(colors):
            return {"list colors": xml.etree.ElementTree.fromstring(f"<Template>{colors}</Template>")}

        full = skin("<Color>ff000000</Color><BorderColor>ff000000</BorderColor>")
        self.assertEqual(list(check_skins.missing_colors({"one": full, "other": full})), [])
        self.assertIn("lacks BorderColor", *check_skins.missing_colors({"one": full, "other": skin("<Color/>")}))
        self.assertIn("lacks BorderColor, Color", *check_skins.missing_colors({"one": full, "other": {}}))


if __name__ == "__main__":
    unittest.main()

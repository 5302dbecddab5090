#!/usr/bin/env python3
"""Checks the skins: each kind has a template that covers its states, each skin all colours and all images, and no image
is out of date.
"""

import re
import sys
import tempfile
import xml.etree.ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SKINS = ROOT / "interfaces/skins"
sys.path.insert(0, str(SKINS))
import make_images  # noqa: E402

# Kinds that are not dressed by a template of their own name: they take that of the kind that they stand in or for.
DRESSED_BY_OTHERS = {"scriptmessagebox"}

# Textures that kinds can have, and the skins leave out on purpose.
NOTHING_BUT_A_FRAME = "holds others, and shows nothing of its own"
LEFT_OUT = {
    ("frame", "Texture"): NOTHING_BUT_A_FRAME,
    ("table", "Texture"): "its cells are drawn",
    ("tablecell", "Texture"): NOTHING_BUT_A_FRAME,
    ("windowclient", "Texture"): "the window is drawn",
    ("console", "Texture"): "two plain colours tell whether it is scrolled back",
    ("console", "ScrollbackTexture"): "two plain colours tell whether it is scrolled back",
    ("tabcontrol", "FrameTexture"): "a page is a plain colour with a line around it",
    ("textedit", "CaretTexture"): "the caret has two colours",
    ("textedit", "CaretOverwriteTexture"): "the caret has two colours",
}


def templates(file):
    """The templates of a file by name, in small letters."""
    return {node.get("name").lower(): node for node in xml.etree.ElementTree.parse(file).getroot().iter("Template")
            if node.get("name")}


def kinds():
    return set(re.findall(r'^\w+(?:<.*>)? g_\w+\("(\w+)"\);', (ROOT / "teskara/core/Module.cpp").read_text(), re.MULTILINE))


def used_images(shared):
    return {node.get("Filename") for template in shared.values() for node in template.iter() if node.get("Filename")}


def old_images(skin):
    """Images that differ from what the shapes and colours give now."""
    with tempfile.TemporaryDirectory() as folder:
        make_images.draw_all(skin, Path(folder))
        for image in sorted(Path(folder).glob("*.png")):
            there = SKINS / skin / image.name
            if not there.exists() or there.read_bytes() != image.read_bytes():
                yield image.name


def classes_of_kinds():
    """The class of each kind, and the base of each class."""
    module = (ROOT / "teskara/core/Module.cpp").read_text()
    classes = {kind: name for name, kind in re.findall(r'^\w+<(\w+)[^;]*> g_\w+\("(\w+)"\);', module, re.MULTILINE)}
    bases = {}
    for header in (ROOT / "teskara").rglob("*.h"):
        bases.update(re.findall(r"^class TESKARA_EXPORT (\w+) : public (\w+)", header.read_text(), re.MULTILINE))
    return classes, bases


def textures_of_classes():
    """The names of the textures that each class reads from its tables of markup."""
    found = {}
    for source in (ROOT / "teskara").rglob("*.cpp"):
        rows = r'^    \{"(\w+)", +Markup::Texture<&(\w+)::\w+>'
        for name, owner in re.findall(rows, source.read_text(), re.MULTILINE):
            found.setdefault(owner, []).append(name)
    return found


def given_by(name, all_templates):
    """What a template gives, with those that it builds upon."""
    node = all_templates.get(name.lower())
    if node is None:
        return set()
    tags = {child.tag for child in node}
    return tags.union(*(given_by(base, all_templates) for base in node.get("Template", "").split(",")))


def uncovered_states(all_templates):
    classes, bases = classes_of_kinds()
    textures = textures_of_classes()
    used = set()
    for kind, owner in sorted(classes.items()):
        given = given_by(kind, all_templates)
        while owner:
            for name in textures.get(owner, ()):
                if (kind, name) in LEFT_OUT:
                    used.add((kind, name))
                elif name not in given and kind not in DRESSED_BY_OTHERS:
                    yield f'interfaces/skins/templates.xml: "{kind}" has no {name}'
            owner = bases.get(owner)
    for kind, name in sorted(LEFT_OUT.keys() - used):
        yield f'tools/check_skins.py: "{kind}" has no {name} that could be left out'


def missing_templates(wanted, shared):
    for kind in sorted(wanted - DRESSED_BY_OTHERS - shared.keys()):
        yield f'interfaces/skins/templates.xml: no template for the kind "{kind}"'


def used_too_early(first, shared):
    """Templates inherit when they are read: what they build upon has to stand by then."""
    known = set(first)
    for name, node in shared.items():
        bases = node.get("Template", "")
        for base in bases.split(",")[:-1] if "," in bases else [bases]:
            if base and base.lower() not in known:
                yield f'interfaces/skins/templates.xml: "{node.get("name")}" builds upon "{base}", which does not stand yet'
        known.add(name)


def missing_colors(skins):
    """What one skin tells in its templates, and another does not; skins by name."""
    for skin, mine in skins.items():
        for other, theirs in skins.items():
            for name, node in theirs.items():
                missing = {child.tag for child in node} - {child.tag for child in mine.get(name, ())}
                if missing:
                    yield f'interfaces/skins/{skin}/skin.xml: "{name}" lacks {", ".join(sorted(missing))}, which {other} tells'


def missing_images(skin, used):
    for image in sorted(used):
        if not (SKINS / skin / image).exists():
            yield f"interfaces/skins/{skin}: no image {image}"
    for image in old_images(skin):
        yield f"interfaces/skins/{skin}/{image} is not what its shape gives: run interfaces/skins/make_images.py"


def findings():
    shared = templates(SKINS / "templates.xml")
    yield from missing_templates(kinds(), shared)
    colors = {skin: templates(SKINS / skin / "skin.xml") for skin in make_images.skins()}
    yield from missing_colors(colors)
    yield from uncovered_states({**next(iter(colors.values())), **shared})
    yield from used_too_early(next(iter(colors.values())), shared)
    for skin in make_images.skins():
        yield from missing_images(skin, used_images(shared))


if __name__ == "__main__":
    found = list(findings())
    print("\n".join(found), end="\n" if found else "")
    sys.exit(1 if found else 0)

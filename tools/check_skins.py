#!/usr/bin/env python3
"""Checks the skins: each kind has a template, each skin all colours and all images, and no image is out of date."""

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
    yield from used_too_early(next(iter(colors.values())), shared)
    for skin in make_images.skins():
        yield from missing_images(skin, used_images(shared))


if __name__ == "__main__":
    found = list(findings())
    print("\n".join(found), end="\n" if found else "")
    sys.exit(1 if found else 0)

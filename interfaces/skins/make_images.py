#!/usr/bin/env python3
"""Draws the images of the skins: python3 make_images.py [SKIN...]

What is drawn stands in shapes/, one SVG file for each; in what colours, in the colors.css of a skin. A rule there reads
".button.hover .panel": the image, its state, the part of the shape. A new skin is a folder with a colors.css and a
skin.xml. Needs rsvg-convert, from Debian's librsvg2-bin.

All images are drawn at twice the size at which they are shown, so that they are sharp on fine displays as well.
"""

import argparse
import concurrent.futures
import pathlib
import subprocess
import xml.etree.ElementTree

FOLDER = pathlib.Path(__file__).resolve().parent
PIXELS = 2  # of an image for each of the interface
SVG = "http://www.w3.org/2000/svg"

PRESSABLE = ("", "hover", "pressed")
# What is made from a shape, where that is more than one image of its name: the images' names and their states.
VARIANTS = {
    "bar": (("bar", "bar_green", "bar_amber", "bar_red"), ("",)),
    "button": (("button", "primary"), PRESSABLE),
    "check": (("check", "checked"), PRESSABLE),
    "entry": (("entry",), ("", "focused")),
    "menu_item": (("menu_item", "menu_plain"), ("",)),
    "menu_more": (("menu_more",), ("", "hover")),
    "tab": (("tab",), ("", "selected")),
    **{name: ((name,), PRESSABLE) for name in ("round", "up", "down", "left", "right", "close", "minimize", "restore")},
}


def images():
    """The name of each image, its shape, and the classes that the colours are chosen by."""
    for shape in sorted((FOLDER / "shapes").glob("*.svg")):
        names, states = VARIANTS.get(shape.stem, ((shape.stem,), ("",)))
        for name in names:
            for state in states:
                yield "_".join(filter(None, (name, state))), shape, f"{name} {state}".strip()


def draw(skin, name, shape, classes, target):
    """Writes one image into the folder target."""
    xml.etree.ElementTree.register_namespace("", SVG)
    tree = xml.etree.ElementTree.parse(shape)
    tree.getroot().set("class", classes)
    subprocess.run(
        ["rsvg-convert", "--stylesheet", FOLDER / skin / "colors.css", "--zoom", str(PIXELS), "--output", target / f"{name}.png"],
        input=xml.etree.ElementTree.tostring(tree.getroot()), check=True)


def skins():
    return sorted(folder.parent.name for folder in FOLDER.glob("*/colors.css"))


def draw_all(skin, target):
    with concurrent.futures.ThreadPoolExecutor() as workers:
        list(workers.map(lambda image: draw(skin, *image, target), images()))


def main():
    parser = argparse.ArgumentParser(description="Draw the images of the skins.")
    parser.add_argument("skin", nargs="*", default=skins())
    for skin in parser.parse_args().skin:
        draw_all(skin, FOLDER / skin)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Writes the dictionary of the fuzz target interface, and a seed for every kind, from what markup may say.

Usage: make_interface_seeds.py BUILD/bin/teskara
"""

import json
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent

SLIDER = "<Slider><Width>16</Width><Height>100%</Height><Vertical/></Slider>"
INSIDE = {
    "button": "<Width>9</Width><Height>9</Height>",
    "fixed font": "<Size>9</Size>",
    "float": "0.5",
    "font": "<Size>9</Size>",
    "frame": "<Height>20</Height>",
    "gaugefiller": "<Width>50%</Width><Height>9</Height>",
    "hex": "ff102030",
    "integer": "7",
    "items": "<item Value='1'>a</item><item/>",
    "listbox": f"<Width>50</Width><Font><Size>9</Size></Font><ScrollBar>{SLIDER}</ScrollBar>",
    "position": "50%",
    "row": "<Cell ColSpan='2'/><Cell RowSpan='2'/>",
    "script": "0",
    "scrollbar": SLIDER,
    "sequence": "${x}",
    "slider": "<Width>9</Width><Height>60</Height>",
    "string": "f",
    "tabs": "<Tab Name='a'/><Tab Name='b'/>",
    "template": "t",
    "windowclient": "<Height>r20</Height>",
    "word": "user",
}
KINDS = ("element", "part", "made by programs")
PLACE = "<X>5</X><Width>200</Width><Height>90</Height>"
DECISIONS = bytes([3, 40, 40]) + bytes(range(0, 32))  # which act at first, and less later


def markup(row):
    name, form = row["name"], row["form"]
    if form == "texture":
        return f"<{name} Filename='#fill'/>"
    if form == "toggle":
        return f"<{name}/>"
    return f"<{name}>{INSIDE[form]}</{name}>" if form in INSIDE else ""


def values(shapes, shape):
    """The values of a shape and of those that it builds upon, but for the last of all."""
    rows = [markup(row) for row in shape.get("values", []) if "attribute" not in row["place"]]
    base = shapes.get(shape.get("base"))
    return rows + values(shapes, base) if base and base["name"] != "element" else rows


def seeds(shapes):
    for shape in shapes.values():
        if shape["use"] in KINDS:
            name = shape["name"]
            yield name.replace(" ", "_"), (f"<Tesk><Template name='t'>{PLACE}</Template><{name} name='a' Template='t'>"
                                           f"{''.join(values(shapes, shape))}</{name}></Tesk>")
    events = [markup(row) for row in shapes["element"]["values"] if row["form"] == "script"]
    for number in range(0, len(events), 5):
        yield f"events_{number}", (f"<Tesk><frame name='a'>{PLACE}{''.join(events[number:number + 5])}<Children>"
                                   f"<button name='b'>{PLACE}{''.join(events[number:number + 3])}</button></Children>"
                                   "</frame></Tesk>")


def words(shapes):
    found = {"<Tesk>", "</Tesk>", "<Skin name='a'>", "<Template name='t'>", " Template='t'", "<Children>", " name='b'",
             "<SkinTemplate Base='frame' Skin='t'/>", "<tooltip name='Auto Tooltip'/>", "50%", "r10", "-1", "${x}"}
    for shape in shapes.values():
        found |= {markup(row) for row in shape.get("values", []) if "attribute" not in row["place"]} - {""}
        if shape["use"] in KINDS:
            found |= {f"<{shape['name']} name='a'>", f"</{shape['name']}>"}
    return sorted(word for word in found if len(word) < 60)


def main():
    schema = json.loads(subprocess.run([sys.argv[1], "schema", "--json"], check=True, capture_output=True).stdout)
    shapes = {shape["name"]: shape for shape in schema["shapes"]}
    folder = HERE / "corpus/interface"
    for name, text in seeds(shapes):
        (folder / name).write_bytes(bytes([len(DECISIONS)]) + DECISIONS + text.encode())
    (HERE / "interface.dict").write_text("".join(f'"{word}"\n' for word in words(shapes)), encoding="utf-8")


if __name__ == "__main__":
    main()

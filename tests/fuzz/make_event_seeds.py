#!/usr/bin/env python3
"""Writes the seeds of the fuzz target events: short stories of what hosts, users and scripts do, as bytes.

Run it again after rows of the tables of steps or acts have changed their places.
"""

import re
from pathlib import Path

HERE = Path(__file__).resolve().parent


def names(file, pattern):
    """The numbers of the names in a table, which are their places in it."""
    found = re.findall(pattern, (HERE / file).read_text(encoding="utf-8"))
    return {name: number for number, name in enumerate(found)}


ROW = r'^    \{"([a-z ]+)",'
STEPS = names("events.cpp", re.compile(ROW, re.MULTILINE))
ACTS = names("HostileActs.cpp", re.compile(ROW, re.MULTILINE))
PLACES = names("ChaosHost.h", re.compile(r"^    ([A-Z][A-Za-z]+),$", re.MULTILINE))
FIRST_EVENT = PLACES.pop("Count")
PLACES |= {name: FIRST_EVENT + number for name, number in
           names("../../teskara/element/TeskElementMarkup.cpp", r'\{"(On[A-Za-z]+)", +Markup::Event').items()}

# The events of single kinds come behind those of all, in the order of their names.
EVENTS_OF_SOME_KINDS = sorted({name for file in (HERE / "../../teskara").rglob("*.cpp") for name in re.findall(
    r'\{"(On[A-Za-z]+)", +Markup::Script', file.read_text(encoding="utf-8"))})
PLACES |= {name: len(PLACES) + number for number, name in enumerate(EVENTS_OF_SOME_KINDS)}

WORDS = re.search(r"MethodWords\[\] = \{(.*?)\};", (HERE / "HostileActs.cpp").read_text(encoding="utf-8"), re.DOTALL)[1]
METHODS = re.findall(r'"(\w+)"', WORDS)
assert len(METHODS) % 4 != 0, "some methods would never get an argument"

OVER_FIRST = 0x11  # where the first element of the scene lies
OVER_SECOND = 0x13
OVER_BOX = 0x7e
NOWHERE = 0xef
THE_END = 0xff  # of the range of coordinates, numbers and keys
MANY = 20


def step(name, *arguments):
    return bytes([STEPS[name], *arguments])


def arm(place, act, argument=0, times=1):
    how = "arm once" if times == 1 else "arm for long"
    return step(how, PLACES[place], ACTS[act], argument)


def act(element, name, argument=0):
    return step("act", element, ACTS[name], argument)


def call(element, method):
    """Calls a method of the element with at least one argument."""
    number = METHODS.index(method)
    while number % 4 == 0:
        number += len(METHODS)
    return act(element, "call own method", number)


def click(button="left"):
    return step(f"{button} down") + step(f"{button} up")


FRAME = step("frame")
LOAD = act(0, "reset") + step("load again")
TOUR = FRAME + step("move", OVER_FIRST) + click() + click("right") + step("wheel", 120) + FRAME

MENU = step("open a menu", 0x33) + FRAME  # the first, with all values, where a row of it lies at ROW
ROW = 0x43

SEEDS = {
    "menus": b"\0" + MENU + step("move", ROW) + FRAME + click() + FRAME + MENU + step("move", NOWHERE) + click()
    + arm("OnRender", "end the menus") + MENU + arm("OnUnload", "open a menu", 1) + MENU + act(0, "close a menu", 5)
    + FRAME,
    "boxes": b"\0" + b"".join(step("show a box", kind) + FRAME + step("key down", 13) + step("move", 0x78) + click()
                              + act(0, "end the script") + FRAME for kind in (4, 1, 2, 3, 6)),
    "tour": b"\0" + TOUR + step("move", OVER_SECOND) + TOUR + step("move", NOWHERE) + FRAME,
    "every_scene": b"\x35" + TOUR + step("time", 255) + FRAME + step("time", 255) + FRAME,
    "keys": b"\0" + step("focus", 2) + b"".join(
        step("key down", key) + step("key up", key) for key in (16, 65, 0xf8, 0xfd, 0xff)) + step("focus", 3),
    "drag_with_alt": b"\7" + step("key down", 0xfa) + step("move", OVER_FIRST) + step("left down") + b"".join(
        step("move fine", distance) + FRAME for distance in (0x9a, 0xaa, 0x65)) + step("left up"),
    "release_without_press": b"\1" + step("left up") + step("right up") + step("move", OVER_FIRST) + step("left up")
    + step("left down") + step("forget mouse") + step("left up") + FRAME,
    "ends_of_ranges": b"\2" + b"".join(
        step("move", 0xf0 + n) + step("wheel", 0xf8 + n) + step("key down", 0xf8 + n) + FRAME for n in range(8))
    + b"".join(step("resize", 0xf8 + n, THE_END - n) + FRAME for n in range(8)),
    "clock_wraps": b"\3" + FRAME + step("long time", 255) + FRAME + step("move", OVER_FIRST) + step("long time", 2)
    + FRAME + step("double click") + FRAME,
    "refusing_host": b"\4" + b"".join(step("refuse each", n) + LOAD + TOUR for n in (1, 2, 3, 7)),
    "deleted_in_click": b"\5" + arm("OnLeftClick", "delete self") + arm("OnRightDown", "delete parent") + TOUR,
    "deleted_in_frame": b"\6" + arm("OnRender", "delete next", 0, MANY) + FRAME + FRAME
    + arm("RetrieveProcessedText", "delete another", 3) + FRAME + FRAME,
    "deleted_in_unload": b"\7" + arm("OnUnload", "delete previous", 0, MANY) + act(2, "delete self")
    + arm("SaveElementPosition", "delete self") + act(3, "delete self") + LOAD,
    "reset_in_event": b"\10" + arm("OnMouseEnter", "reset") + step("move", OVER_FIRST) + FRAME
    + LOAD + arm("OnMouseMove", "load", 3) + step("move", OVER_SECOND) + FRAME,
    "moves_in_frame": b"\11" + arm("OnRender", "move to top", 0, MANY) + FRAME
    + arm("OnRender", "move to bottom", 0, MANY) + FRAME + arm("OnRender", "load into self", 0, MANY) + FRAME,
    "focus_dance": b"\12" + step("focus", 2) + arm("OnKeyboardExit", "focus another", 3, MANY)
    + arm("OnKeyboardEnter", "hide", 0, MANY) + step("focus", 4) + act(4, "hide") + act(2, "ask for focus"),
    "nested": b"\13" + arm("OnMouseMove", "nested input", OVER_SECOND, MANY) + arm("OnLeftDown", "nested frame", 0, MANY)
    + arm("OnRender", "click own", 0, MANY) + TOUR,
    "scripts_call_types": b"\14" + b"".join(
        arm("OnLeftDown", "call own method", n) + arm("OnLeftClick", "ask own member", n) + step("move", OVER_FIRST)
        + click() for n in range(0, 40, 3)),
    "rows": b"\20" + b"".join(
        call(element, method) for element in range(2, 50)
        for method in ("AddItem", "Sort", "SelectItem", "RemoveItem", "SetSelection")) + FRAME
    + arm("ExecuteAtomForText", "delete self", 0, MANY) + b"".join(call(element, "Sort") for element in range(2, 50))
    + FRAME,
    "lines": b"\21" + b"".join(
        call(element, method) for element in range(2, 50) for method in ("AddText", "AddLine", "SetText", "AddText"))
    + arm("OnKeyDown", "call own method", METHODS.index("Clear"), MANY) + b"".join(
        step("focus", element) + b"".join(step("key down", key) for key in (13, 65, 40, 34, 38, 8, 46, 35)) + FRAME
        for element in range(2, 30)),
    "blips": b"\0" + b"".join(act(0, "feed a map", n) for n in (*range(8), 16, 20, 24)) + FRAME
    + b"".join(arm(place, "feed a map", n, MANY) + act(0, "feed a map", n + 4) + FRAME
               for place in ("OnLoad", "OnUnload", "OnRender") for n in range(0, 32, 4)) + TOUR,
    "nodes": b"\0" + b"".join(act(0, "shake a tree", n) for n in (*range(0, 64, 8), 4, 36, 6, 14, 1)) + FRAME
    + b"".join(arm(place, "shake a tree", n, MANY) + act(0, "shake a tree", m) + FRAME
               for place in ("Query", "OnSelect", "OnDeSelect") for n, m in ((2, 12), (3, 28), (0, 6), (4, 2), (6, 3)))
    + TOUR,
    "commands": b"\15" + arm("ExecuteCommand", "delete self") + arm("SetOutputConsole", "delete another", 5)
    + arm("Calculate", "delete another", 4) + TOUR + step("move", OVER_SECOND) + TOUR,
    "throwing": b"\16" + b"".join(arm(place, "throw") for place in PLACES) + LOAD + TOUR
    + step("focus", 3) + TOUR,
    "capture": b"\17" + act(2, "capture the mouse", 1) + TOUR + act(2, "delete self") + TOUR,
    "strata_and_sizes": b"\20" + act(2, "set strata", 127) + act(3, "set strata", 200) + act(2, "size", THE_END)
    + act(3, "place", 0xf8) + TOUR + arm("PrintLine", "reset") + LOAD + TOUR,
}


def main():
    folder = HERE / "corpus/events"
    folder.mkdir(parents=True, exist_ok=True)
    for name, seed in SEEDS.items():
        (folder / name).write_bytes(seed)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Writes the seeds of the fuzz targets events and host: short stories of what hosts, users and scripts do, as bytes.

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
STEPS = names("EventSteps.cpp", re.compile(ROW, re.MULTILINE))
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

KINDS = sorted(re.findall(r'Factory<[^>]*> g_\w+\("(\w+)"\)',
                          (HERE / "../../teskara/core/Module.cpp").read_text(encoding="utf-8")))

CALLS, SAID = (re.findall(r"^    ([A-Z]\w+),", block, re.MULTILINE) for block in re.findall(
    r"^enum class \w+ : u8 \{(.*?)^    Count,", (HERE / "Answers.h").read_text(encoding="utf-8"),
    re.DOTALL | re.MULTILINE))

OVER_FIRST = 0x11  # where the first element of a scene lies
OVER_SECOND = 0x16
NOWHERE = 0xef
THE_END = 0xff  # of the range of coordinates, numbers and keys
MANY = 20

INSIDE = 0x80  # the element before, rather than beside it
WITH_CHILD = 0x40
WITH_TOOLTIP = 0x80


def scene(*elements, look=0, tooltip=0):
    """Up to three elements: names of kinds, or pairs of a name and flags."""
    markup = bytes([len(elements) - 1 | tooltip])
    for element in elements:
        kind, flags = element if isinstance(element, tuple) else (element, 0)
        markup += bytes([KINDS.index(kind) | flags, look])
    return markup


def step(name, *arguments):
    return [bytes([STEPS[name], *arguments])]


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


def every(steps):
    return [one for some in steps for one in some]


def click(button="left"):
    return step(f"{button} down") + step(f"{button} up")


FRAME = step("frame")
LOAD = act(0, "reset") + step("load again")
TOUR = FRAME + step("move", OVER_FIRST) + click() + click("right") + step("wheel", 120) + FRAME
MENU = step("open a menu", 0x33) + FRAME  # the first, with all values, where a row of it lies at ROW
ROW = 0x43
TWO = scene(("frame", WITH_CHILD), "button")
NESTED = scene("frame", ("window", INSIDE), ("button", INSIDE), tooltip=WITH_TOOLTIP)

STORIES = {
    "menus": (TWO, MENU + step("move", ROW) + FRAME + click() + FRAME + MENU + step("move", NOWHERE) + click()
              + arm("OnRender", "end the menus") + MENU + arm("OnUnload", "open a menu", 1) + MENU
              + act(0, "close a menu", 5) + FRAME),
    "boxes": (TWO, every(step("show a box", kind) + FRAME + step("key down", 13) + step("move", 0x78) + click()
                         + act(0, "end the script") + FRAME for kind in (4, 1, 2, 3, 6))),
    "keys": (scene("textentry", "textedit"), step("focus", 1) + every(
        step("key down", key) + step("key up", key) for key in (16, 65, 0xf8, 0xfd, 0xff)) + step("focus", 2)),
    "drag_with_alt": (NESTED, step("key down", 0xfa) + step("move", OVER_FIRST) + step("left down") + every(
        step("move fine", distance) + FRAME for distance in (0x9a, 0xaa, 0x65)) + step("left up")),
    "release_without_press": (TWO, step("left up") + step("right up") + step("move", OVER_FIRST) + step("left up")
                              + step("left down") + step("forget mouse") + step("left up") + FRAME),
    "ends_of_ranges": (NESTED, every(
        step("move", 0xf0 + n) + step("wheel", 0xf8 + n) + step("key down", 0xf8 + n) + FRAME for n in range(8))),
    "ends_of_sizes": (NESTED, every(step("resize", 0xf8 + n, THE_END - n) + FRAME for n in range(8))),
    "clock_wraps": (TWO, FRAME + step("long time", 255) + FRAME + step("move", OVER_FIRST) + step("long time", 2)
                    + FRAME + step("double click") + FRAME),
    "refusing_host": (NESTED, every(step("refuse each", n) + LOAD + TOUR for n in (1, 3, 7))),
    "deleted_in_click": (TWO, arm("OnLeftClick", "delete self") + arm("OnRightDown", "delete parent") + TOUR),
    "deleted_in_frame": (NESTED, arm("OnRender", "delete next", 0, MANY) + FRAME + FRAME
                         + arm("RetrieveProcessedText", "delete another", 3) + FRAME + FRAME),
    "deleted_in_unload": (NESTED, arm("OnUnload", "delete previous", 0, MANY) + act(2, "delete self")
                          + arm("SaveElementPosition", "delete self") + act(3, "delete self") + LOAD),
    "reset_in_event": (TWO, arm("OnMouseEnter", "reset") + step("move", OVER_FIRST) + FRAME + LOAD
                       + arm("OnMouseMove", "load", 3) + step("move", OVER_SECOND) + FRAME),
    "moves_in_frame": (TWO, arm("OnRender", "move to top", 0, MANY) + FRAME
                       + arm("OnRender", "move to bottom", 0, MANY) + FRAME
                       + arm("OnRender", "load into self", 0, MANY) + FRAME),
    "focus_dance": (NESTED, step("focus", 2) + arm("OnKeyboardExit", "focus another", 3, MANY)
                    + arm("OnKeyboardEnter", "hide", 0, MANY) + step("focus", 4) + act(4, "hide")
                    + act(2, "ask for focus")),
    "nested": (TWO, arm("OnMouseMove", "nested input", OVER_SECOND, MANY) + arm("OnLeftDown", "nested frame", 0, MANY)
               + arm("OnRender", "click own", 0, MANY) + TOUR),
    "scripts_call_types": (TWO, every(
        arm("OnLeftDown", "call own method", n) + arm("OnLeftClick", "ask own member", n) + step("move", OVER_FIRST)
        + click() for n in range(0, 40, 6))),
    "rows": (scene("listbox", "combobox"), every(
        call(element, method) for element in (1, 4)
        for method in ("AddItem", "Sort", "SelectItem", "RemoveItem", "SetSelection")) + FRAME
        + arm("ExecuteAtomForText", "delete self", 0, MANY) + call(1, "Sort") + FRAME + TOUR),
    "lines": (scene("textedit", "console"), every(
        call(element, method) for element in (1, 4) for method in ("AddText", "AddLine", "SetText", "Echo"))
        + arm("OnKeyDown", "call own method", METHODS.index("Clear"), MANY) + step("focus", 1)
        + every(step("key down", key) for key in (13, 65, 40, 34, 38, 8, 46, 35)) + TOUR),
    "blips": (scene("map", "mapview"), every(act(0, "feed a map", n) for n in (*range(8), 16, 20, 24)) + FRAME
              + every(arm(place, "feed a map", n, MANY) + act(0, "feed a map", n + 4) + FRAME
                      for place in ("OnLoad", "OnUnload", "OnRender") for n in (0, 12, 24)) + TOUR),
    "nodes": (scene("tree"), every(act(0, "shake a tree", n) for n in (*range(0, 64, 8), 4, 36, 6, 14, 1)) + FRAME
              + every(arm(place, "shake a tree", n, MANY) + act(0, "shake a tree", m) + FRAME
                      for place, n, m in (("Query", 2, 12), ("OnSelect", 3, 28), ("OnDeSelect", 6, 3))) + TOUR),
    "commands": (scene("commandbutton", "commandcheckbox"), arm("ExecuteCommand", "delete self")
                 + arm("SetOutputConsole", "delete another", 5) + arm("Calculate", "delete another", 4) + TOUR
                 + step("move", OVER_SECOND) + TOUR),
    "completed": (scene("commandentry"), step("focus", 1) + arm("CompleteCommandLine", "delete focus")
                  + step("key down", 65) + step("key down", 9) + FRAME),
    "throwing": (TWO, every(arm(place, "throw") for place in list(PLACES)[:20]) + LOAD + TOUR + step("focus", 2)),
    "capture": (TWO, act(2, "capture the mouse", 1) + TOUR + act(2, "delete self") + TOUR),
    "strata_and_sizes": (NESTED, act(2, "set strata", 127) + act(3, "set strata", 200) + act(2, "size", THE_END)
                         + act(3, "place", 0xf8) + TOUR + arm("PrintLine", "reset") + LOAD + TOUR),
}
for name in KINDS:
    STORIES[f"tour_of_{name}"] = (scene((name, WITH_CHILD), look=0x35), TOUR + step("focus", 1) + step("key down", 65)
                                  + step("time", 255) + FRAME + act(1, "delete self") + FRAME)


def tell(call_name, answer, detail=0, times=9):
    return bytes([CALLS.index(call_name), SAID.index(answer) + len(SAID) * times, detail])


def told(story, answers):
    """A story for the target host: answers that stand from the start, and none between the steps."""
    markup, steps = story
    assert len(answers) < 8
    return markup + bytes([len(answers)]) + b"".join(answers) + b"".join(b"\1" + one for one in steps)


def host_seeds():
    """Every call gives every answer, to a scene that uses much."""
    scenes = [scene("textedit", "commandentry", "console"), scene("listbox", "tree", "map"),
              scene("window", ("tabcontrol", INSIDE), "gauge", "slider"), scene("commandbutton", "text", "hudelement")]
    for number, answer in enumerate(SAID[1:]):
        for first in range(0, len(CALLS), 7):
            markup = scenes[(number + first) % len(scenes)]
            steps = TOUR + step("focus", 2) + step("key down", 65) + step("key down", 9) + act(1, "delete self") + FRAME
            yield f"{answer.lower()}_{first}", told(
                (markup, steps), [tell(name, answer, number + first) for name in CALLS[first:first + 7]])
    for name, story in STORIES.items():
        yield name, told(story, [])


def main():
    seeds = {"events": ((name, markup + b"".join(steps)) for name, (markup, steps) in STORIES.items()),
             "host": host_seeds()}
    for target, named in seeds.items():
        folder = HERE / "corpus" / target
        folder.mkdir(parents=True, exist_ok=True)
        for name, seed in named:
            (folder / name).write_bytes(seed)


if __name__ == "__main__":
    main()

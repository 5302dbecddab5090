#!/usr/bin/env python3
"""Draws the images of this skin: python3 make_images.py

All are drawn at twice the size at which the skin shows them, so that they are sharp on fine displays as well. Shapes
are given in pixels of the interface.
"""

import math
import os
import struct
import zlib

FOLDER = os.path.dirname(os.path.abspath(__file__))
PIXELS = 2  # of an image for each of the interface
SAMPLES = 4  # along each side of a pixel

CARD = (30, 37, 48)
CARD_EDGE = (48, 58, 74)
INSET = (20, 25, 33)
INSET_EDGE = (38, 46, 59)
ACCENT = (92, 168, 255)
WHITE = (255, 255, 255)


def rounded(x, y, left, top, right, bottom, radius):
    """Distance from a point to a rounded rectangle: negative inside."""
    dx = max(left + radius - x, x - (right - radius), 0)
    dy = max(top + radius - y, y - (bottom - radius), 0)
    if dx or dy:
        return math.hypot(dx, dy) - radius
    return max(left - x, x - right, top - y, y - bottom)


def mix(a, b, share):
    return tuple(x + (y - x) * share for x, y in zip(a, b))


def write_png(name, width, height, rows):
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    raw = b"".join(b"\0" + bytes(row) for row in rows)
    with open(os.path.join(FOLDER, name), "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n")
        file.write(chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)))
        file.write(chunk(b"IDAT", zlib.compress(raw, 9)))
        file.write(chunk(b"IEND", b""))


def draw(name, width, height, color_at):
    """color_at(x, y) gives red, green, blue and alpha from 0 to 1, of a point in pixels of the interface."""
    steps = [(index + 0.5) / SAMPLES for index in range(SAMPLES)]
    rows = []
    for pixel_y in range(height * PIXELS):
        row = []
        for pixel_x in range(width * PIXELS):
            red = green = blue = alpha = 0.0
            for step_y in steps:
                for step_x in steps:
                    r, g, b, a = color_at((pixel_x + step_x) / PIXELS, (pixel_y + step_y) / PIXELS)
                    red, green, blue, alpha = red + r * a, green + g * a, blue + b * a, alpha + a
            if alpha:
                row += [round(red / alpha), round(green / alpha), round(blue / alpha)]
            else:
                row += [0, 0, 0]
            row.append(round(alpha * 255 / SAMPLES ** 2))
        rows.append(row)
    write_png(name, width * PIXELS, height * PIXELS, rows)


def panel(name, size, radius, fill, edge, fill_alpha=1.0, edge_alpha=1.0, sheen=0.0):
    """A rounded rectangle with an edge one pixel wide, and a brighter line below its upper edge."""

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, size, size, radius)
        if distance > 0:
            return (*edge, 0)
        if distance > -1:
            return (*mix(edge, WHITE, sheen * max(0, 1 - y / radius)), edge_alpha)
        return (*fill, fill_alpha)

    draw(name, size, size, color_at)


def button(name, top, bottom, edge, light=0.16):
    """A raised plate: lighter at the top, with a line of light below its upper edge."""
    size, radius = 28, 7

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, size, size, radius)
        if distance > 0:
            return (*edge, 0)
        if distance > -1:
            return (*edge, 1)
        if distance > -2 and y < radius:
            return (*mix(top, WHITE, light), 1)
        return (*mix(top, bottom, y / size), 1)

    draw(name, size, size, color_at)


def check_box(name, fill, edge, mark=None):
    """A small box; with a mark of that colour, it is checked."""
    size, radius = 18, 5

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, size, size, radius)
        if distance > 0:
            return (*edge, 0)
        if mark and min(segment(x, y, 4.6, 9.2, 7.7, 12.3), segment(x, y, 7.7, 12.3, 13.6, 5.9)) < 1.15:
            return (*mark, 1)
        return (*(edge if distance > -1.2 else fill), 1)

    draw(name, size, size, color_at)


def segment(x, y, from_x, from_y, to_x, to_y):
    """Distance from a point to a straight line between two others."""
    dx, dy = to_x - from_x, to_y - from_y
    share = max(0, min(1, ((x - from_x) * dx + (y - from_y) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - from_x - share * dx, y - from_y - share * dy)


def ribbon():
    """A card whose upper edge is a bright band, to be turned to each side."""
    size, radius, band = 40, 10, 4

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, size, size, radius)
        if distance > 0:
            return (*CARD_EDGE, 0)
        if y < band:
            return (*ACCENT, 1)
        glow = max(0, 1 - (y - band) / 8) ** 2 * 0.22
        return (*mix(CARD_EDGE if distance > -1 else INSET, ACCENT, glow), 1)

    draw("ribbon.png", size, size, color_at)


def glow():
    """A bright outline that fades inward, to lie over a card."""
    size, radius = 48, 12

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, size, size, radius)
        if distance > 0:
            return (*ACCENT, 0)
        if distance > -1.25:
            return (*ACCENT, 0.85)
        return (*ACCENT, 0.16 * max(0, 1 + distance / 14) ** 2)

    draw("glow.png", size, size, color_at)


def rim():
    """The edge of a gauge, to lie over its bar: it takes the bar's corners off."""
    size, radius = 16, 5

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, size, size, radius)
        return (*CARD_EDGE, 1 if -2 < distance <= 0 else 0)

    draw("rim.png", size, size, color_at)


def bar(name, left, right):
    """What fills a gauge: brighter toward its end and along its upper edge."""
    width, height = 96, 12

    def color_at(x, y):
        color = mix(left, right, x / width)
        return (*mix(color, WHITE, 0.22 * max(0, 1 - y / 5)), 1)

    draw(name, width, height, color_at)


def segment_of_bar(name, width, height, left, top, right, bottom):
    """One of the steps of a gauge that repeats its filler: white, to be tinted by a colour mask."""

    def color_at(x, y):
        return (*WHITE, 1 if rounded(x, y, left, top, right, bottom, 1) <= 0 else 0)

    draw(name, width, height, color_at)


def groove(name, width, height):
    """The track of a slider: a groove along the middle of its longer side."""
    middle_x, middle_y, half = width / 2, height / 2, 2

    def color_at(x, y):
        if width > height:
            distance = rounded(x, y, 0, middle_y - half, width, middle_y + half, half)
        else:
            distance = rounded(x, y, middle_x - half, 0, middle_x + half, height, half)
        return (*(mix(INSET_EDGE, WHITE, 0.14) if distance > -1 else INSET), 1 if distance <= 0 else 0)

    draw(name, width, height, color_at)


def handle(name, width, height, top, bottom):
    """What is dragged along the track of a slider."""

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, width, height, 2)
        return (*mix(top, bottom, y / height), 1 if distance <= 0 else 0)

    draw(name, width, height, color_at)


def arrow(name, size, direction, color, plate=None):
    """A small head of an arrow: up, down, left or right; on a plate of that colour, or on none."""
    low, high, middle = size * 0.40, size * 0.60, size / 2
    reach = size * 0.19
    ends = {
        "up": ((middle - reach, high), (middle, low), (middle + reach, high)),
        "down": ((middle - reach, low), (middle, high), (middle + reach, low)),
        "left": ((high, middle - reach), (low, middle), (high, middle + reach)),
        "right": ((low, middle - reach), (high, middle), (low, middle + reach)),
    }[direction]

    def color_at(x, y):
        if min(segment(x, y, *ends[0], *ends[1]), segment(x, y, *ends[1], *ends[2])) < 0.9:
            return (*color, 1)
        if plate and rounded(x, y, 1, 1, size - 1, size - 1, 3) <= 0:
            return (*plate, 1)
        return (*color, 0)

    draw(name, size, size, color_at)


def window():
    """The body of a window, with a shade of light along its upper edge."""
    size, radius = 32, 5

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, size, size, radius)
        if distance > 0:
            return (*CARD_EDGE, 0)
        if distance > -1:
            return (*mix((72, 86, 108), (50, 60, 77), min(1, y / 12)), 1)
        return (*CARD, 1)

    draw("window.png", size, size, color_at)


def menu_line():
    """What parts the items of a menu."""

    def color_at(x, y):
        return (*(78, 93, 117), 1 if 4 <= y < 5 else 0)

    draw("menu_line.png", 8, 9, color_at)


def sign(name, size, lines, color, plate=None):
    """A sign made of straight lines, in pixels of the interface; on a plate of that colour, or on none."""

    def color_at(x, y):
        if min(segment(x, y, *line) for line in lines) < 0.8:
            return (*color, 1)
        if plate and rounded(x, y, 1, 1, size - 1, size - 1, 5) <= 0:
            return (*plate, 1)
        return (*color, 0)

    draw(name, size, size, color_at)


def tile():
    """A white tile, to be tinted by a colour mask."""

    def color_at(x, y):
        distance = rounded(x, y, 0, 0, 24, 24, 6)
        shade = 1 - 0.12 * y / 24
        return (255 * shade, 255 * shade, 255 * shade, 0 if distance > 0 else 1)

    draw("tile.png", 24, 24, color_at)


def mark():
    """The sign of the program: panels inside a panel."""
    size = 44

    def color_at(x, y):
        if rounded(x, y, 0, 0, size, size, 11) > 0:
            return (*ACCENT, 0)
        color = mix((116, 190, 255), (64, 112, 235), (x + 2 * y) / (3 * size))
        if rounded(x, y, 9, 9, 35, 15, 2) <= 0:
            return (*WHITE, 1)
        if rounded(x, y, 9, 19, 18, 35, 2) <= 0:
            return (*mix(color, WHITE, 0.62), 1)
        if rounded(x, y, 22, 19, 35, 35, 2) <= 0:
            return (*mix(color, WHITE, 0.35), 1)
        return (*color, 1)

    draw("mark.png", size, size, color_at)


def backdrop():
    """What lies behind everything: a dark field, a little lighter toward the upper left."""
    width, height = 48, 32

    def color_at(x, y):
        light = max(0, 1 - math.hypot(x / width * 0.9, y / height) / 1.15) ** 1.6
        return (*mix((14, 17, 23), (29, 37, 51), light), 1)

    draw("backdrop.png", width, height, color_at)


panel("card.png", 40, 12, CARD, CARD_EDGE, sheen=0.10)
panel("inset.png", 32, 8, INSET, INSET_EDGE)
panel("chip.png", 24, 11, ACCENT, ACCENT, fill_alpha=0.13, edge_alpha=0.42)
panel("slot.png", 24, 6, ACCENT, ACCENT, fill_alpha=0.10, edge_alpha=0.55)
ribbon()
glow()
tile()
mark()
backdrop()

PLATE, PLATE_LOW, PLATE_EDGE = (53, 64, 82), (43, 52, 67), (70, 83, 105)
button("button.png", PLATE, PLATE_LOW, PLATE_EDGE, light=0.10)
button("button_hover.png", (65, 79, 101), (53, 65, 84), (104, 146, 196), light=0.12)
button("button_pressed.png", (33, 41, 54), (38, 47, 61), (84, 118, 160), light=0.0)
button("primary.png", (92, 162, 250), (64, 124, 232), (114, 180, 255))
button("primary_hover.png", (118, 182, 255), (84, 146, 244), (160, 208, 255))
button("primary_pressed.png", (48, 98, 196), (56, 110, 212), (92, 162, 250), light=0.0)

check_box("check.png", INSET, (92, 106, 130))
check_box("check_hover.png", (27, 35, 46), ACCENT)
check_box("check_pressed.png", (38, 52, 72), ACCENT)
check_box("checked.png", (74, 138, 240), (104, 168, 255), WHITE)
check_box("checked_hover.png", (98, 162, 250), (150, 200, 255), WHITE)
check_box("checked_pressed.png", (52, 104, 204), (92, 162, 250), WHITE)

panel("tooltip.png", 24, 6, (46, 56, 72), (88, 104, 130), sheen=0.15)
panel("hud.png", 24, 8, (9, 12, 17), (70, 84, 106), fill_alpha=0.72, edge_alpha=0.8)

rim()
bar("bar.png", (64, 124, 232), (110, 184, 255))
bar("bar_green.png", (44, 148, 108), (104, 220, 162))
bar("bar_amber.png", (206, 126, 44), (255, 198, 104))
bar("bar_red.png", (186, 58, 66), (248, 112, 108))
segment_of_bar("segment.png", 10, 12, 1, 0, 9, 12)
segment_of_bar("step.png", 12, 8, 0, 1, 12, 7)

groove("groove.png", 48, 18)
groove("groove_vertical.png", 18, 48)
handle("handle.png", 5, 14, (170, 206, 250), (110, 168, 246))
handle("handle_vertical.png", 14, 5, (170, 206, 250), (110, 168, 246))

panel("list.png", 20, 4, INSET, INSET_EDGE)
QUIET, LIT = (141, 153, 171), (214, 226, 242)
for direction in ("up", "down", "left", "right"):
    arrow(f"{direction}.png", 16, direction, QUIET)
    arrow(f"{direction}_hover.png", 16, direction, LIT, PLATE)
    arrow(f"{direction}_pressed.png", 16, direction, ACCENT, (33, 41, 54))
arrow("drop.png", 28, "down", LIT)

window()
menu_line()
panel("dialog.png", 16, 0.5, (38, 47, 61), (91, 108, 136))
panel("title.png", 20, 6, (38, 46, 60), (38, 46, 60))
panel("entry.png", 20, 5, INSET, (58, 70, 89))
panel("entry_focused.png", 20, 5, (16, 20, 27), ACCENT)
panel("menu.png", 24, 7, (38, 46, 60), (78, 93, 117), sheen=0.12)
panel("menu_item.png", 8, 1.5, (54, 104, 178), (54, 104, 178))
panel("menu_plain.png", 8, 1.5, CARD, CARD, fill_alpha=0.0, edge_alpha=0.0)
panel("bar_panel.png", 24, 9, (18, 23, 31), (46, 56, 71), fill_alpha=0.94)
panel("round.png", 28, 7, PLATE, PLATE, fill_alpha=0.0, edge_alpha=0.0)
panel("round_hover.png", 28, 7, PLATE, PLATE_EDGE)
panel("round_pressed.png", 28, 7, (33, 41, 54), PLATE_EDGE)

SIGNS = {
    "close": [(7, 7, 15, 15), (7, 15, 15, 7)],
    "minimize": [(6.5, 14.5, 15.5, 14.5)],
    "restore": [(7, 7, 15, 7), (15, 7, 15, 15), (15, 15, 7, 15), (7, 15, 7, 7)],
}
for sign_name, lines in SIGNS.items():
    warm = sign_name == "close"
    sign(f"{sign_name}.png", 22, lines, QUIET)
    sign(f"{sign_name}_hover.png", 22, lines, WHITE, (196, 66, 74) if warm else PLATE_EDGE)
    sign(f"{sign_name}_pressed.png", 22, lines, WHITE, (140, 44, 52) if warm else (33, 41, 54))


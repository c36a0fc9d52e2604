#!/usr/bin/python3
"""Draws every picture of the default skin into ../image."""

from pathlib import Path

import cairo

import icons
import palette as p
import plates
import png
import tree

OUT = Path(__file__).resolve().parent.parent / "image"
STATES = ("normal", "hover", "pressed", "disabled", "selected")

TOOLBAR = {
    "crop": icons.crop,
    "ocr": icons.recognise,
    "open": icons.open_picture,
    "quit": icons.power,
    "prev": icons.turn(-1),
    "next": icons.turn(1),
}
CROPBAR = {
    "save": icons.save,
    "ocr": icons.recognise_small,
    "again": icons.again,
    "cancel": icons.cross,
    "read": icons.read,
    "close": icons.cross,
}
PRIMARY = ("cropbar_save", "cropbar_read")
LEAVING = ("toolbar_quit", "cropbar_cancel", "cropbar_close", "panel_close")


def picture(name, w, h, paint):
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, w, h)
    paint(cairo.Context(surface))
    png.write(surface, OUT / f"{name}.png")


def colours(name, state):
    """Ink and accent of an icon."""
    if name in PRIMARY:
        return (p.WHITE, p.WHITE)
    if state == "selected":
        return (p.ACCENT_LIGHT, p.ACCENT_LIGHT)
    if state == "hover" and name in LEAVING:
        return (p.WARN, p.WARN)
    ink = {"hover": p.WHITE, "pressed": "#BAC6D2"}.get(state, p.INK)
    accented = name in ("toolbar_crop", "toolbar_ocr")
    return (ink, "#43D98A" if accented else ink)


def icon(c, draw, x, y, name, state):
    """An icon with a crisp one-pixel shadow below it."""
    c.save()
    c.translate(x, y)
    icons.stroke_style(c)
    strength = .35 if state == "disabled" else 1
    c.push_group()
    c.save()
    c.translate(0, 1)
    draw(c, p.rgba(p.BLACK), p.rgba(p.BLACK))
    c.restore()
    c.pop_group_to_source()
    c.paint_with_alpha(.24 * strength)
    c.push_group()
    draw(c, *(p.rgba(x) for x in colours(name, state)))
    c.pop_group_to_source()
    c.paint_with_alpha(strength)
    c.restore()


def buttons():
    for state in STATES:
        for key, draw in TOOLBAR.items():
            def paint(c, n="toolbar_" + key, d=draw):
                plates.toolbar_button(c, 88, 60, state)
                icon(c, d, 44, 22, n, state)
            picture(f"toolbar_{key}_{state}", 88, 60, paint)
        for key, draw in CROPBAR.items():
            def paint(c, n="cropbar_" + key, d=draw):
                plates.bar_button(c, 96, 40, state, n in PRIMARY)
                icon(c, d, 22, 20, n, state)
            picture(f"cropbar_{key}_{state}", 96, 40, paint)

        def paint(c):
            plates.round_button(c, 32, 32, state)
            icon(c, icons.close_small, 16, 16, "panel_close", state)
        picture(f"panel_close_{state}", 32, 32, paint)


def tree_pictures():
    picture("tree_glyph_normal", 30, 30, tree.glyph(False))
    picture("tree_glyph_selected", 30, 30, tree.glyph(True))
    picture("tree_folder_normal", 30, 30, tree.folder)
    picture("tree_folder_selected", 30, 30, tree.open_folder)


def app_icon(c):
    plates.app_icon(c, 64, 64)
    for dy, colour in ((1, p.rgba("#0B3B20", .55)), (0, p.rgba("#23D674"))):
        c.save()
        c.translate(32, 32 + dy)
        icons.stroke_style(c)
        c.set_line_width(4)
        icons.brackets(c, colour, 21, 21, 11, 4)
        c.restore()


def main():
    OUT.mkdir(exist_ok=True)
    buttons()
    tree_pictures()
    picture("toolbar_bg", 64, 76,
            lambda c: plates.toolbar_background(c, 64, 76))
    picture("panel_bg", 64, 64, lambda c: plates.panel_background(c, 64, 64))
    picture("app_icon", 64, 64, app_icon)


if __name__ == "__main__":
    main()

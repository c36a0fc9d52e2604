"""Plates the icons sit on, and the backgrounds of bars and panels."""

from math import pi

import cairo

import palette as p
from icons import rounded


def gradient(c, height, *stops):
    """Vertical gradient over the height, stops spread evenly."""
    g = cairo.LinearGradient(0, 0, 0, height)
    for i, stop in enumerate(stops):
        colour = stop if isinstance(stop, tuple) else p.rgba(stop)
        g.add_color_stop_rgba(i / (len(stops) - 1), *colour)
    c.set_source(g)


def row(c, y, width, colour, alpha=1.0):
    """One crisp pixel row."""
    c.rectangle(0, y, width, 1)
    c.set_source_rgba(*p.rgba(colour, alpha))
    c.fill()


def inset(c, path, steps=4, alpha=.09):
    """Soft shadow that falls from the upper rim into a path."""
    c.save()
    path(0)
    c.clip()
    for i in range(steps):
        c.set_fill_rule(cairo.FILL_RULE_EVEN_ODD)
        c.rectangle(-200, -200, 600, 600)
        path(i + 1)
        c.set_source_rgba(0, 0, 0, alpha)
        c.fill()
    c.restore()


def toolbar_button(c, w, h, state):
    """Plate of a toolbar button; nothing but air while at rest."""
    def body(shift=0):
        rounded(c, 0, shift, w, h, 8)

    def rim(colour_top, colour_bottom):
        rounded(c, .5, .5, w - 1, h - 1, 7.5)
        gradient(c, h, colour_top, colour_bottom)
        c.set_line_width(1)
        c.stroke()

    if state == "hover":
        body()
        gradient(c, h, p.rgba(p.GLASS, .17), p.rgba(p.GLASS, .09))
        c.fill()
        rim(p.rgba(p.GLASS, .20), p.rgba(p.GLASS, .05))
    elif state == "pressed":
        body()
        gradient(c, h, p.rgba("#0B0F14", .62), p.rgba("#0B0F14", .44))
        c.fill()
        inset(c, body)
        rim(p.rgba(p.BLACK, .35), p.rgba(p.WHITE, .09))
    elif state == "selected":
        body()
        gradient(c, h, p.rgba(p.ACCENT, .13), p.rgba(p.ACCENT, .27))
        c.fill()
        rim(p.rgba(p.ACCENT, .20), p.rgba(p.ACCENT, .42))
        rounded(c, 28, h - 2, w - 56, 2, 1)
        c.set_source_rgba(*p.rgba(p.ACCENT_LIGHT))
        c.fill()


def bar_button(c, w, h, state, primary):
    """Opaque plate of a crop bar button; they stand side by side."""
    top, bottom = ((p.ACCENT_TOP, p.ACCENT_BOTTOM) if primary
                   else ("#323E4B", "#232C37"))
    light, shade = .26, .30
    if state == "hover":
        over, lift = ("#3DEB93", .36) if primary else (p.GLASS, .15)
        top, bottom = (p.mix(x, over, lift) for x in (top, bottom))
    elif state == "pressed":
        top, bottom = (p.mix(top, p.BLACK, .46), p.mix(bottom, p.BLACK, .26))
        light = .05
    elif state == "selected" and not primary:
        top, bottom = (p.mix(top, p.ACCENT, .20), p.mix(bottom, p.ACCENT, .34))
    elif state == "selected":
        top, bottom = (p.mix(top, p.BLACK, .14), p.mix(bottom, p.BLACK, .04))
    elif state == "disabled" and primary:
        top, bottom = (p.mix(top, "#36403E", .72),
                       p.mix(bottom, "#28302F", .72))
    if not primary:
        light *= .55
    c.rectangle(0, 0, w, h)
    gradient(c, h, top, bottom)
    c.fill()
    if state == "pressed":
        inset(c, lambda s: c.rectangle(-20, s, w + 40, h + 20), 4, .07)
    row(c, 0, w, p.BLACK if state == "pressed" else p.WHITE, light)
    row(c, h - 1, w, p.BLACK, shade)
    if state == "selected":
        c.rectangle(0, h - 3, w, 2)
        c.set_source_rgba(*p.rgba(p.WHITE, .85) if primary
                          else p.rgba(p.ACCENT_LIGHT))
        c.fill()
    c.rectangle(w - 1, 0, 1, h)      # separator
    c.set_source_rgba(*p.rgba(p.BLACK, .36))
    c.fill()


def round_button(c, w, h, state):
    """Plate of the round close button of a panel."""
    alpha = {"normal": .07, "hover": .20, "disabled": .07}
    r = w / 2 - 2
    c.arc(w / 2, h / 2, r, 0, 2 * pi)
    if state == "pressed":
        gradient(c, h, p.rgba("#0B0F14", .66), p.rgba("#0B0F14", .46))
    elif state == "selected":
        gradient(c, h, p.rgba(p.ACCENT, .20), p.rgba(p.ACCENT, .32))
    else:
        gradient(c, h, p.rgba(p.GLASS, alpha[state] + .03),
                 p.rgba(p.GLASS, alpha[state] - .02))
    c.fill()
    c.arc(w / 2, h / 2, r - .5, 0, 2 * pi)
    if state == "selected":
        gradient(c, h, p.rgba(p.ACCENT, .35), p.rgba(p.ACCENT, .6))
    elif state == "pressed":
        gradient(c, h, p.rgba(p.BLACK, .4), p.rgba(p.WHITE, .10))
    else:
        gradient(c, h, p.rgba(p.GLASS, alpha[state] + .05),
                 p.rgba(p.WHITE, .03))
    c.set_line_width(1)
    c.stroke()


def toolbar_background(c, w, h):
    c.rectangle(0, 0, w, h)
    gradient(c, h, "#2F3A47", p.SLATE, "#202933")
    c.fill()
    row(c, 0, w, p.WHITE, .10)
    row(c, h - 1, w, p.SLATE_DEEP)


def panel_background(c, w, h):
    """Pure gradient without rims: it is stretched in both directions."""
    c.rectangle(0, 0, w, h)
    gradient(c, h, p.SLATE, "#232C37", p.SLATE_DARK)
    c.fill()


def app_icon(c, w, h):
    """Corner marks over a page, on a slate tile."""
    rounded(c, 2, 2, 60, 60, 14)
    gradient(c, h, "#3A4755", "#232C37", "#19202A")
    c.fill()
    rounded(c, 2.5, 2.5, 59, 59, 13.5)
    gradient(c, h, p.rgba(p.WHITE, .30), p.rgba(p.WHITE, .05),
             p.rgba(p.BLACK, .35))
    c.set_line_width(1)
    c.stroke()

    def page(dx=0, dy=0):
        c.new_path()
        c.arc(22 + dx, 18 + dy, 2, pi, 1.5 * pi)
        c.line_to(37 + dx, 16 + dy)
        c.line_to(44 + dx, 23 + dy)
        c.arc(42 + dx, 46 + dy, 2, 0, pi / 2)
        c.arc(22 + dx, 46 + dy, 2, pi / 2, pi)
        c.close_path()

    for dy, alpha in ((1, .22), (2, .14), (3, .08)):
        page(0, dy)
        c.set_source_rgba(0, 0, 0, alpha)
        c.fill()
    page()
    gradient(c, h, "#FFFFFF", "#F4F7FA", "#D3DCE5")
    c.fill()
    c.move_to(37, 16)
    c.line_to(37, 21)
    c.arc_negative(39, 21, 2, pi, pi / 2)
    c.line_to(44, 23)
    c.close_path()
    c.set_source_rgba(*p.rgba("#A9B7C5"))
    c.fill()
    c.set_line_width(2)
    c.set_line_cap(cairo.LINE_CAP_ROUND)
    for y, x in ((28, 39), (33, 39), (38, 34)):
        c.move_to(25, y)
        c.line_to(x, y)
        c.set_source_rgba(*p.rgba("#7D8D9D"))
        c.stroke()

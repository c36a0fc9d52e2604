"""Flat landscapes: mountains, a lake at sunset, a desert, a city at night."""

from math import pi, sin

import cairo
import numpy as np


def sky(c, w, h, *stops):
    gradient = cairo.LinearGradient(0, 0, 0, h)
    for i, colour in enumerate(stops):
        gradient.add_color_stop_rgb(i / (len(stops) - 1), *colour)
    c.set_source(gradient)
    c.rectangle(0, 0, w, h)
    c.fill()


def disc(c, colour, x, y, r, alpha=1.0):
    c.arc(x, y, r, 0, 2 * pi)
    c.set_source_rgba(*colour, alpha)
    c.fill()


def ridge(c, w, h, colour, base, waves):
    """A silhouette made of sine waves (height, length, shift)."""
    c.move_to(0, h)
    for x in range(0, w + 8, 8):
        c.line_to(x, base - sum(a * sin(x / length * 2 * pi + shift) for a, length, shift in waves))
    c.line_to(w, h)
    c.close_path()
    c.set_source_rgb(*colour)
    c.fill()


def peaks(c, w, h, colour, snow, tops):
    for x, y, half in tops:
        c.move_to(x - half, h)
        c.line_to(x, y)
        c.line_to(x + half, h)
        c.close_path()
        c.set_source_rgb(*colour)
        c.fill()
        cap = (h - y) * .2
        side = half * .2
        c.move_to(x, y)
        for dx, dy in ((side, cap), (side * .4, cap * .7), (0, cap * 1.1), (-side * .5, cap * .75),
                       (-side, cap)):
            c.line_to(x + dx, y + dy)
        c.close_path()
        c.set_source_rgb(*snow)
        c.fill()


def mountains(c, w, h):
    sky(c, w, h, (.36, .62, .88), (.72, .86, .96), (.95, .95, .92))
    disc(c, (1, .97, .80), 930, 170, 70)
    peaks(c, w, h, (.52, .63, .75), (.96, .97, 1), ((300, 220, 420), (760, 160, 520), (1120, 270, 380)))
    peaks(c, w, h, (.36, .47, .58), (.90, .94, .98), ((120, 390, 330), (560, 350, 400), (980, 420, 360)))
    ridge(c, w, h, (.28, .48, .33), 620, ((26, 620, 0), (12, 240, 1)))
    ridge(c, w, h, (.20, .38, .25), 710, ((20, 500, 2), (9, 170, 0)))
    for x in range(40, w, 74):
        base = 735 + 18 * sin(x)
        c.move_to(x - 20, base)
        c.line_to(x, base - 92 - 22 * sin(x * 3))
        c.line_to(x + 20, base)
        c.close_path()
        c.set_source_rgb(.11, .26, .19)
        c.fill()


def lake(c, w, h):
    sky(c, w, h, (.25, .18, .42), (.86, .42, .38), (.99, .76, .45), (.40, .25, .42))
    disc(c, (1, .90, .62), 620, 420, 84)
    ridge(c, w, 480, (.30, .19, .36), 410, ((46, 700, 1), (18, 260, 0)))
    rng = np.random.default_rng(3)
    for y in range(484, h, 9):
        reach = 90 + (y - 480) * .55
        x = 620 + rng.normal() * 18
        c.rectangle(x - reach / 2, y, reach * rng.uniform(.5, 1), 3.5)
        c.set_source_rgba(1, .86, .60, .65 - (y - 480) / 700)
        c.fill()
    for x, height in ((60, 250), (100, 330), (150, 280), (1080, 300), (1130, 360), (1170, 260)):
        c.move_to(x - 26, 800)
        c.line_to(x, 800 - height)
        c.line_to(x + 26, 800)
        c.close_path()
        c.set_source_rgb(.10, .07, .14)
        c.fill()


def desert(c, w, h):
    sky(c, w, h, (.22, .52, .72), (.78, .88, .86), (.98, .90, .74))
    disc(c, (1, 1, .92), 260, 150, 54)
    for colour, base, waves in (((.89, .72, .47), 470, ((40, 900, .4),)),
                                ((.83, .62, .36), 560, ((60, 1100, 2.2),)),
                                ((.74, .51, .28), 660, ((55, 800, 4.2), (12, 300, 1)))):
        ridge(c, w, h, colour, base, waves)
    for x, y, size in ((820, 640, 1.0), (930, 690, .7)):
        c.set_source_rgb(.20, .42, .26)
        c.set_line_cap(cairo.LINE_CAP_ROUND)
        c.set_line_width(30 * size)
        c.move_to(x, y + 60 * size)
        c.line_to(x, y - 140 * size)
        c.stroke()
        for side in (-1, 1):
            c.set_line_width(20 * size)
            c.move_to(x, y - 20 * size * side)
            c.curve_to(x + 60 * side * size, y - 20 * size, x + 60 * side * size, y - 30 * size,
                       x + 60 * side * size, y - 90 * size)
            c.stroke()


def city(c, w, h):
    sky(c, w, h, (.04, .06, .16), (.10, .13, .30), (.34, .26, .44))
    rng = np.random.default_rng(11)
    for _ in range(120):
        disc(c, (1, 1, 1), rng.uniform(0, w), rng.uniform(0, 380), rng.uniform(.8, 2), .8)
    disc(c, (.96, .95, .86), 990, 130, 50)
    for depth, colour in ((0, (.13, .15, .28)), (1, (.07, .08, .17))):
        x = -20
        while x < w:
            width = rng.integers(70, 140)
            top = rng.integers(260, 470) + depth * 120
            c.rectangle(x, top, width, h - top)
            c.set_source_rgb(*colour)
            c.fill()
            for wy in range(int(top) + 18, h - 30, 30):
                for wx in range(int(x) + 14, int(x + width) - 16, 24):
                    if rng.random() < .42:
                        c.rectangle(wx, wy, 11, 16)
                        c.set_source_rgba(1, .84, .48, rng.uniform(.45, 1))
                        c.fill()
            x += width + rng.integers(4, 16)

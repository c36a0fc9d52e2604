"""Whiteboards after a lesson or a meeting."""

from math import cos, pi, sin

import cairo

from sheets import BLUE, GREEN, INK, RED, fill, text

HAND = "Noto Sans CJK SC Light"


def board(c, w, h):
    fill(c, (.62, .65, .68), 0, 0, w, h)
    fill(c, (.955, .965, .97), 28, 28, w - 56, h - 84)
    fill(c, (.50, .53, .56), 28, h - 56, w - 56, 14)
    for i, colour in enumerate((BLUE, RED, GREEN)):
        fill(c, colour, 120 + i * 130, h - 68, 96, 16)
        fill(c, INK, 120 + i * 130, h - 68, 22, 16)
    c.set_line_cap(cairo.LINE_CAP_ROUND)
    c.set_line_join(cairo.LINE_JOIN_ROUND)


def pen(c, colour, *points, width=5, close=False):
    c.move_to(*points[0])
    for p in points[1:]:
        c.line_to(*p)
    if close:
        c.close_path()
    c.set_source_rgb(*colour)
    c.set_line_width(width)
    c.stroke()


def arrow(c, colour, x1, y1, x2, y2):
    pen(c, colour, (x1, y1), (x2, y2))
    length = ((x2 - x1) ** 2 + (y2 - y1) ** 2) ** .5
    ux, uy = (x2 - x1) / length, (y2 - y1) / length
    pen(c, colour, (x2 - 18 * ux - 12 * uy, y2 - 18 * uy + 12 * ux), (x2, y2),
        (x2 - 18 * ux + 12 * uy, y2 - 18 * uy - 12 * ux))


def box(c, colour, words, x, y, w=220, h=90):
    pen(c, colour, (x, y + 3), (x + w, y), (x + w - 3, y + h), (x + 2, y + h - 2), close=True)
    text(c, words, x, y + h / 2 - 24, 34, HAND, colour, width=w, align="centre")


def plan(c, w, h):
    board(c, w, h)
    text(c, "春游计划", 80, 60, 54, HAND, INK)
    pen(c, RED, (80, 140), (300, 136))
    box(c, BLUE, "集合 8:00", 90, 220)
    box(c, BLUE, "植物园", 490, 220)
    box(c, BLUE, "午餐", 890, 220)
    box(c, GREEN, "画新叶", 490, 440)
    box(c, GREEN, "合影", 890, 440)
    box(c, RED, "回校 15:30", 490, 650)
    arrow(c, INK, 320, 265, 480, 265)
    arrow(c, INK, 720, 265, 880, 265)
    arrow(c, INK, 1000, 320, 1000, 430)
    arrow(c, INK, 880, 485, 722, 485)
    arrow(c, INK, 600, 540, 600, 640)
    text(c, "雨天：改到周二！", 90, 500, 36, HAND, RED)
    text(c, "四位老师", 90, 580, 36, HAND, INK)


def geometry(c, w, h):
    board(c, w, h)
    text(c, "直角三角形", 80, 60, 54, HAND, INK)
    pen(c, BLUE, (140, 660), (560, 660), (140, 300), close=True, width=6)
    pen(c, BLUE, (140, 620), (180, 620), (180, 660))
    for words, x, y, colour in (("a = 3", 40, 450, RED), ("b = 4", 300, 676, RED),
                                ("c = ?", 370, 420, GREEN)):
        text(c, words, x, y, 40, HAND, colour)
    for i, (words, colour) in enumerate((("a² + b² = c²", INK), ("9 + 16 = 25", INK),
                                         ("c = √25", INK), ("c = 5", GREEN))):
        text(c, words, 720, 220 + i * 110, 58, HAND, colour)
    c.set_source_rgb(*GREEN)
    c.set_line_width(5)
    c.new_path()
    c.save()
    c.translate(800, 590)
    c.scale(1.7, .75)
    c.arc(0, 0, 70, .2, 2 * pi + .1)
    c.restore()
    c.stroke()


def ideas(c, w, h):
    board(c, w, h)
    cx, cy = w / 2, h / 2 - 30
    around = ("水从哪里来", "云", "河流", "地下水", "节约用水", "净水实验", "雨量表")
    for i, words in enumerate(around):
        angle = i * 2 * pi / len(around) - pi / 2
        x, y = cx + 410 * cos(angle), cy + 270 * sin(angle)
        colour = (BLUE, GREEN, RED)[i % 3]
        pen(c, colour, (cx + 130 * cos(angle), cy + 80 * sin(angle)),
            (cx + 300 * cos(angle), cy + 205 * sin(angle)))
        text(c, words, x - 120, y - 28, 38, HAND, colour, width=240, align="centre")
    c.new_path()
    c.save()
    c.translate(cx, cy)
    c.scale(1.6, 1)
    c.arc(0, 0, 76, .1, 2 * pi)
    c.restore()
    c.set_source_rgb(*INK)
    c.set_line_width(6)
    c.stroke()
    text(c, "水", cx - 120, cy - 42, 60, HAND, INK, width=240, align="centre")

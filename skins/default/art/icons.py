"""Line icons.

Every icon is drawn round the origin with a 2 px round pen. Straight strokes
run along whole coordinates, so that they cover exactly two pixel rows or
columns. `ink` is the colour of the main strokes, `accent` that of the detail.
"""

from math import pi, radians

import cairo


def rounded(c, x, y, w, h, r):
    """Path of a rectangle with round corners."""
    c.new_sub_path()
    c.arc(x + w - r, y + r, r, -pi / 2, 0)
    c.arc(x + w - r, y + h - r, r, 0, pi / 2)
    c.arc(x + r, y + h - r, r, pi / 2, pi)
    c.arc(x + r, y + r, r, pi, 1.5 * pi)
    c.close_path()


def line(c, colour, *points):
    c.move_to(*points[0])
    for p in points[1:]:
        c.line_to(*p)
    c.set_source_rgba(*colour)
    c.stroke()


def brackets(c, colour, w, h, arm, r):
    """Four corner marks of a w x h (half sizes) frame."""
    for sx, sy in ((-1, -1), (1, -1), (1, 1), (-1, 1)):
        c.save()
        c.scale(sx, sy)
        c.move_to(w - arm, h)
        c.line_to(w - r, h)
        c.curve_to(w - r * .45, h, w, h - r * .45, w, h - r)
        c.line_to(w, h - arm)
        c.restore()
    c.set_source_rgba(*colour)
    c.stroke()


def crop(c, ink, accent):
    """Two crossed angles; the wanted area between them is tinted."""
    c.rectangle(-6, -6, 12, 12)
    c.set_source_rgba(*accent[:3], accent[3] * .22)
    c.fill()
    line(c, ink, (-7, -12), (-7, 7), (12, 7))
    line(c, ink, (-12, -7), (7, -7), (7, 12))


def recognise(c, ink, accent):
    """Corner marks round three lines of text."""
    brackets(c, ink, 12, 11, 6, 3.5)
    line(c, accent, (-6, -5), (6, -5))
    line(c, accent, (-6, 0), (6, 0))
    line(c, accent, (-6, 5), (1, 5))


def open_picture(c, ink, accent):
    """Folder with a landscape on its front."""
    c.move_to(-13, -8)
    c.arc(-11, -8, 2, pi, 1.5 * pi)
    c.line_to(-5.2, -10)
    c.line_to(-2, -6)
    c.arc(11, -4, 2, -pi / 2, 0)
    c.arc(11, 8, 2, 0, pi / 2)
    c.arc(-11, 8, 2, pi / 2, pi)
    c.close_path()
    c.set_source_rgba(*ink)
    c.stroke()
    line(c, accent, (-8, 5), (-3.5, 0), (.5, 4), (3, 1.8), (7, 5))
    c.arc(6, -1.5, 1.5, 0, 2 * pi)
    c.fill()


def power(c, ink, accent):
    """Broken ring with a bar in the gap."""
    c.arc(0, 1, 10, radians(-54), radians(234))
    c.set_source_rgba(*ink)
    c.stroke()
    line(c, accent, (0, -11), (0, 0))


def turn(direction):
    """Picture card with a chevron on the side one turns to."""
    def draw(c, ink, accent):
        c.save()
        c.scale(direction, 1)
        rounded(c, -13, -9, 18, 18, 3)
        c.set_source_rgba(*ink)
        c.stroke()
        line(c, accent, (9, -6), (14, 0), (9, 6))
        c.restore()
        # The landscape on the card keeps its orientation on both sides.
        c.save()
        c.translate(-4 * direction, 0)
        line(c, ink, (-5, 5), (-1, 0), (2, 3.5), (5, 5))
        c.arc(4, -4, 1.6, 0, 2 * pi)
        c.fill()
        c.restore()
    return draw


def save(c, ink, accent):
    """Arrow down into a tray."""
    line(c, accent, (0, -9), (0, 3))
    line(c, accent, (-5, -2), (0, 3), (5, -2))
    c.move_to(-9, 3)
    c.arc_negative(-6, 5, 3, pi, pi / 2)
    c.arc_negative(6, 5, 3, pi / 2, 0)
    c.line_to(9, 3)
    c.set_source_rgba(*ink)
    c.stroke()


def recognise_small(c, ink, accent):
    brackets(c, ink, 9, 9, 5, 3)
    line(c, accent, (-4, -4), (4, -4))
    line(c, accent, (-4, 0), (4, 0))
    line(c, accent, (-4, 4), (0, 4))


def again(c, ink, accent):
    """Circular arrow."""
    c.arc(0, 1, 8, radians(-22), radians(270))
    c.line_to(3, -7)
    c.set_source_rgba(*ink)
    c.stroke()
    line(c, accent, (-1, -11), (3, -7), (-1, -3))


def cross(c, ink, accent, half=6):
    line(c, ink, (-half, -half), (half, half))
    line(c, ink, (half, -half), (-half, half))


def read(c, ink, accent):
    """A letter inside scanning marks."""
    brackets(c, ink, 9, 9, 5, 3)
    line(c, accent, (-4, -2), (-4, -4), (4, -4), (4, -2))
    line(c, accent, (0, -4), (0, 4))
    line(c, accent, (-2, 4), (2, 4))


def close_small(c, ink, accent):
    cross(c, ink, accent, 5)


def stroke_style(c):
    c.set_line_width(2)
    c.set_line_cap(cairo.LINE_CAP_ROUND)
    c.set_line_join(cairo.LINE_JOIN_ROUND)

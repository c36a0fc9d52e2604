"""Pictures of the folder tree: flat shapes for a white background.

Each is drawn in a cell of 30 x 30, round the cell's centre.
"""

from math import pi

import palette as p
from icons import line, rounded, stroke_style
from plates import gradient


def glyph(expanded):
    """Chevron of a node with children: to the right, expanded down."""
    def draw(c):
        c.translate(15, 15)
        if expanded:
            c.rotate(pi / 2)
        stroke_style(c)
        line(c, p.rgba(p.GLYPH), (-2, -4), (2, 0), (-2, 4))
    return draw


def back(c, colour):
    """Rear side with its tab."""
    c.new_path()
    c.arc(-8, -6.5, 1.5, pi, 1.5 * pi)
    c.line_to(-3.2, -8)
    c.line_to(-1, -5.5)
    c.arc(8, -4, 1.5, -pi / 2, 0)
    c.arc(8, 6, 2, 0, pi / 2)
    c.arc(-8, 6, 2, pi / 2, pi)
    c.close_path()
    c.set_source_rgba(*p.rgba(colour))
    c.fill()


def shaded(c, colour):
    """Fills the path, a little lighter at its top."""
    c.translate(0, -8)
    gradient(c, 16, p.mix(colour, p.WHITE, .22), colour)
    c.translate(0, 8)
    c.fill()


def folder(c):
    c.translate(15, 15)
    back(c, p.FOLDER_BACK)
    rounded(c, -9.5, -3, 19, 11, 2)
    shaded(c, p.FOLDER_FRONT)


def open_folder(c):
    """A sheet looks out of it, its front leans towards the viewer."""
    c.translate(14, 15)
    back(c, p.OPEN_BACK)
    rounded(c, -7, -4, 14, 9, 1)
    c.set_source_rgba(*p.rgba(p.WHITE))
    c.fill()
    c.new_path()
    c.move_to(-9.2, 8)
    c.line_to(-6.2, -.6)
    c.curve_to(-5.9, -1.5, -5.2, -2, -4.3, -2)
    c.line_to(11.3, -2)
    c.curve_to(12.6, -2, 13.3, -1, 12.9, .2)
    c.line_to(10.6, 6.6)
    c.curve_to(10.3, 7.5, 9.6, 8, 8.7, 8)
    c.close_path()
    shaded(c, p.OPEN_FRONT)

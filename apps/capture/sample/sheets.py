"""What the sample library's sheets have in common: colours, desk, paper, text."""

from worksheet import text

INK = (.14, .15, .18)
SOFT = (.42, .45, .50)
BLUE = (.16, .36, .68)
RED = (.78, .22, .20)
GREEN = (.15, .52, .32)


def fill(c, colour, x, y, w, h):
    c.rectangle(x, y, w, h)
    c.set_source_rgb(*colour)
    c.fill()


def stroke(c, colour, width, *points):
    c.move_to(*points[0])
    for p in points[1:]:
        c.line_to(*p)
    c.set_source_rgb(*colour)
    c.set_line_width(width)
    c.stroke()


def desk(c, w, h, colour):
    fill(c, colour, 0, 0, w, h)


def paper(c, x, y, w, h, colour=(.97, .965, .95)):
    for spread in range(14, 0, -2):
        c.rectangle(x - spread * .4, y + spread * .5, w + spread * .8, h + spread * .6)
        c.set_source_rgba(0, 0, 0, .045)
        c.fill()
    fill(c, colour, x, y, w, h)


def lines(c, words, x, y, size, **options):
    """Text of several paragraphs; the y below it."""
    for paragraph in words:
        y += text(c, paragraph, x, y, size, spacing=1.5, **options) + size * .7
    return y


__all__ = ["BLUE", "GREEN", "INK", "RED", "SOFT", "desk", "fill", "lines", "paper", "stroke", "text"]

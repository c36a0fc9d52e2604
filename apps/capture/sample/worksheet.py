"""The worksheet that lies under the camera, and the pencil beside it."""

from math import cos, pi, radians, sin

import cairo
import gi

gi.require_version("Pango", "1.0")
gi.require_version("PangoCairo", "1.0")
from gi.repository import Pango, PangoCairo  # noqa: E402

W, H = 1960, 1520     # layout units; the sheet is drawn twice as large
SCALE = 2
INK = (.13, .14, .16)
SOFT = (.38, .40, .43)
GREEN = (.16, .47, .27)
RULE = (.55, .58, .60)

TITLE = "树叶为什么会变色？"
SUBTITLE = "科学观察单 · Why Leaves Change Colour"
CHINESE = (
    "春天和夏天，树叶里有很多叶绿素。叶绿素吸收阳光，帮助大树制造养分，"
    "所以我们看到的树叶是绿色的。这时黄色的色素也在叶子里，只是被绿色盖住了。",
    "到了秋天，白天变短，天气变凉，大树不再制造新的叶绿素。绿色退去，"
    "藏在叶子里的黄色和橙色露了出来。有些树还会产生红色的花青素，"
    "于是山坡上一片火红。",
)
ENGLISH = (
    "In summer a leaf is a small green kitchen. It uses sunlight, water and "
    "air to make food for the tree. When the days grow short, the kitchen "
    "closes: the green fades, and the yellow that was hidden all along can "
    "be seen at last."
)
QUESTION = "你家附近的树，哪一种最先变色？把它写下来。"
TABLE = (
    ("色素", "颜色", "出现的季节"),
    ("叶绿素", "绿色", "春、夏"),
    ("类胡萝卜素", "黄、橙", "全年"),
    ("花青素", "红、紫", "秋"),
)
CHART = (("九月", (82, 14, 4)), ("十月", (46, 38, 16)), ("十一月", (10, 52, 38)))
CHART_COLOURS = ((.36, .62, .33), (.93, .74, .27), (.82, .35, .24))


def text(c, words, x, y, size, face="Noto Sans CJK SC", colour=INK, width=None,
         indent=0, spacing=1.0, align="left"):
    """Sets a text with its top left corner at x, y; returns its height."""
    layout = PangoCairo.create_layout(c)
    font = Pango.FontDescription(face)
    font.set_absolute_size(size * Pango.SCALE)
    layout.set_font_description(font)
    layout.set_text(words, -1)
    layout.set_line_spacing(spacing)
    if width:
        layout.set_width(width * Pango.SCALE)
        layout.set_wrap(Pango.WrapMode.WORD_CHAR)
        layout.set_indent(indent * Pango.SCALE)
    if align == "centre":
        layout.set_alignment(Pango.Alignment.CENTER)
        if not width:
            x -= layout.get_pixel_size()[0] / 2
    c.set_source_rgb(*colour)
    c.move_to(x, y)
    PangoCairo.show_layout(c, layout)
    return layout.get_pixel_size()[1]


def rule(c, x1, y1, x2, y2, width=2, colour=RULE):
    c.move_to(x1, y1)
    c.line_to(x2, y2)
    c.set_line_width(width)
    c.set_source_rgb(*colour)
    c.stroke()


def heading(c, x, y, words):
    c.rectangle(x, y + 9, 8, 36)
    c.set_source_rgb(*GREEN)
    c.fill()
    text(c, words, x + 24, y, 36, "Noto Sans CJK SC Bold", GREEN)


def table(c, x, y, widths, height):
    total = sum(widths)
    c.rectangle(x, y, total, height)
    c.set_source_rgb(.88, .93, .88)
    c.fill()
    for r, cells in enumerate(TABLE):
        left = x
        for cell, width in zip(cells, widths):
            face = "Noto Sans CJK SC" + (" Bold" if r == 0 else "")
            text(c, cell, left + width / 2, y + r * height + 9, 29, face,
                 align="centre")
            left += width
    for r in range(len(TABLE) + 1):
        rule(c, x, y + r * height, x + total, y + r * height,
             3 if r in (0, 1, len(TABLE)) else 2)
    left = x
    for width in (*widths, 0):
        rule(c, left, y, left, y + len(TABLE) * height)
        left += width


def chart(c, x, y, width, height):
    """Bars of how many leaves of one tree had which colour, in percent."""
    for percent in (0, 50, 100):
        line = y + height * (1 - percent / 100)
        rule(c, x + 64, line, x + width, line, 2,
             RULE if percent == 0 else (.84, .86, .87))
        text(c, str(percent), x + 30, line - 18, 24, colour=SOFT,
             align="centre")
    step = (width - 64) / len(CHART)
    for i, (month, parts) in enumerate(CHART):
        middle, top = x + 64 + step * (i + .5), y + height
        for part, colour in zip(parts, CHART_COLOURS):
            top -= height * part / 100
            c.rectangle(middle - 40, top, 80, height * part / 100)
            c.set_source_rgb(*colour)
            c.fill()
        text(c, month, middle, y + height + 8, 27, align="centre")


TEETH = 9


def leaf_edge(side):
    """Points along one edge of a broad toothed leaf, from tip to stalk."""
    steps = TEETH * 12
    for i in range(steps + 1):
        t = i / steps
        x = 124 * max(0, sin(pi * t ** 1.05)) ** .7 * (.5 + .5 * min(1, t * 2))
        tooth = (t * TEETH) % 1 if i < steps else 0
        x -= 9 * tooth * min(1, 5 * (1 - t), 8 * t)
        yield side * x, -182 + 300 * t


def leaf_outline(c):
    c.new_path()
    for point in leaf_edge(1):
        c.line_to(*point)
    for point in reversed(list(leaf_edge(-1))):
        c.line_to(*point)
    c.close_path()


LEAF_AT, LEAF_TURN = (205, 176), 16


def on_leaf(x, y):
    """Place on the figure of a point given in the leaf's own axes."""
    a = radians(LEAF_TURN)
    return (LEAF_AT[0] + x * cos(a) - y * sin(a),
            LEAF_AT[1] + x * sin(a) + y * cos(a))


def leaf(c, x, y, angle):
    """A leaf on its way from green to red, with veins and a stalk."""
    c.save()
    c.translate(x, y)
    c.rotate(radians(angle))
    leaf_outline(c)
    tint = cairo.LinearGradient(-110, -130, 110, 80)
    for at, colour in ((0, (.82, .33, .20)), (.38, (.95, .66, .22)),
                       (.64, (.86, .78, .30)), (1, (.36, .62, .30))):
        tint.add_color_stop_rgb(at, *colour)
    c.set_source(tint)
    c.fill_preserve()
    c.set_source_rgb(.38, .22, .12)
    c.set_line_width(4)
    c.stroke()
    c.set_line_cap(cairo.LINE_CAP_ROUND)
    c.move_to(0, -150)
    c.curve_to(2, -40, -2, 60, 0, 120)
    c.curve_to(2, 150, 12, 172, 22, 190)
    c.set_line_width(6)
    c.stroke()
    leaf_outline(c)
    c.clip()
    c.set_line_width(2.5)
    for i in range(TEETH - 1):
        at, reach = -128 + 31 * i, 118
        for side in (-1, 1):
            c.move_to(0, at)
            c.curve_to(side * reach * .4, at - 12, side * reach * .75,
                       at - 34, side * reach, at - 66)
            c.stroke()
    c.restore()


def figure(c, x, y):
    """The leaf with its parts named."""
    leaf(c, x + LEAF_AT[0], y + LEAF_AT[1], LEAF_TURN)
    for words, at, tx in (("叶尖", (3, -176), 352), ("叶脉", (52, -50), 402),
                          ("叶边还是绿的", (98, 30), 402),
                          ("叶柄", (7, 158), 272)):
        dx, dy = on_leaf(*at)
        rule(c, x + dx, y + dy, x + tx - 12, y + dy, 2.5, SOFT)
        c.arc(x + dx, y + dy, 5, 0, 2 * pi)
        c.fill()
        text(c, words, x + tx, y + dy - 22, 29)


def draw():
    s = cairo.ImageSurface(cairo.FORMAT_ARGB32, W * SCALE, H * SCALE)
    c = cairo.Context(s)
    c.scale(SCALE, SCALE)
    c.set_source_rgb(.955, .952, .945)
    c.paint()
    text(c, TITLE, 100, 62, 76, "Noto Serif CJK SC Bold")
    text(c, SUBTITLE, 104, 182, 34, colour=SOFT)
    text(c, "班级", 1300, 120, 32, colour=SOFT)
    rule(c, 1376, 164, 1540, 164)
    text(c, "姓名", 1580, 120, 32, colour=SOFT)
    rule(c, 1656, 164, 1860, 164)
    rule(c, 100, 252, 1860, 252, 4, GREEN)

    left, width = 100, 1020
    heading(c, left, 286, "读一读")
    y = 358
    for words in CHINESE:
        y += text(c, words, left, y, 40, "Noto Sans CJK SC",
                  width=width, indent=80, spacing=1.12) + 14
    heading(c, left, y + 20, "Read in English")
    y += 92
    y += text(c, ENGLISH, left, y, 40, "Noto Serif CJK SC Medium",
              width=width, spacing=1.08)
    heading(c, left, y + 34, "想一想")
    text(c, QUESTION, left, y + 100, 37, "Noto Sans CJK SC")
    for i in (0, 1):
        rule(c, left, y + 216 + 60 * i, left + width, y + 216 + 60 * i)

    right = 1200
    heading(c, right, 286, "看一看")
    figure(c, right, 380)
    heading(c, right, 778, "叶子里的色素")
    table(c, right, 846, (230, 180, 250), 62)
    heading(c, right, 1124, "每月树叶的颜色（%）")
    chart(c, right, 1208, 660, 190)
    return s


def pencil(c):
    """A pencil across the lower right corner of the sheet."""
    c.save()
    c.translate(2262, 1030)
    c.rotate(radians(7))
    length, half = 640, 17
    body = cairo.LinearGradient(-half, 0, half, 0)
    for at, colour in ((0, (.50, .33, .05)), (.30, (.80, .56, .12)),
                       (.34, (.95, .73, .25)), (.64, (.97, .78, .33)),
                       (.68, (.76, .52, .10)), (1, (.45, .29, .04))):
        body.add_color_stop_rgb(at, *colour)
    c.rectangle(-half, 0, 2 * half, length - 60)
    c.set_source(body)
    c.fill()
    metal = cairo.LinearGradient(-half, 0, half, 0)
    for at, grey in ((0, .35), (.3, .86), (.45, .95), (.7, .6), (1, .28)):
        metal.add_color_stop_rgb(at, grey, grey, grey * .97)
    c.rectangle(-half, length - 60, 2 * half, 34)
    c.set_source(metal)
    c.fill()
    rubber = cairo.LinearGradient(-half, 0, half, 0)
    for at, colour in ((0, (.55, .24, .22)), (.4, (.90, .52, .48)),
                       (1, (.50, .20, .19))):
        rubber.add_color_stop_rgb(at, *colour)
    c.move_to(-half, length - 26)
    c.line_to(half, length - 26)
    c.curve_to(half, length + 10, -half, length + 10, -half, length - 26)
    c.set_source(rubber)
    c.fill()
    wood = cairo.LinearGradient(-half, 0, half, 0)
    for at, colour in ((0, (.62, .44, .28)), (.45, (.93, .78, .58)),
                       (1, (.58, .40, .25))):
        wood.add_color_stop_rgb(at, *colour)
    c.move_to(-half, 0)
    for i in range(3):            # scalloped edge where the paint ends
        a = -half + 2 * half / 3 * i
        c.curve_to(a + 3, 12, a + 2 * half / 3 - 3, 12, a + 2 * half / 3, 0)
    c.line_to(3, -62)
    c.line_to(-3, -62)
    c.close_path()
    c.set_source(wood)
    c.fill()
    c.move_to(-5.4, -50)
    c.line_to(5.4, -50)
    c.line_to(0, -74)
    c.close_path()
    c.set_source_rgb(.16, .16, .17)
    c.fill()
    c.restore()

"""A letter, a report, a form, a reader's card and a receipt."""

from math import pi

from sheets import BLUE, GREEN, INK, RED, SOFT, desk, fill, lines, paper, stroke, text

BARS = (("一月", 42), ("二月", 58), ("三月", 51), ("四月", 73), ("五月", 88), ("六月", 79))
COURSES = (("植物观察", "周一", "青松楼 201", "16"), ("纸桥搭建", "周二", "青松楼 105", "12"),
           ("天气记录", "周三", "操场气象角", "18"), ("古诗朗读", "周四", "图书室", "20"),
           ("陶土手作", "周五", "工作坊", "10"))
GOODS = (("铅笔 HB × 12", "18.00"), ("方格纸 A4", "9.50"), ("彩色粉笔", "12.80"),
         ("量角器 × 6", "21.00"), ("胶带", "4.20"))


def letter(c, w, h):
    desk(c, w, h, (.33, .27, .22))
    paper(c, 90, 70, w - 180, h - 140)
    text(c, "致家长的一封信", 150, 130, 46, "Noto Serif CJK SC Bold", INK)
    text(c, "青松小学 · 三月", 150, 205, 22, colour=SOFT)
    fill(c, GREEN, 150, 248, w - 300, 4)
    end = lines(c, (
        "亲爱的家长：",
        "春天来了，我们将在下周五带孩子们去城郊的植物园观察早春的花草。请为孩子准备一双便于走路的鞋、一壶水和一本小小的记录本。",
        "早上八点在校门口集合，下午三点半回到学校。途中有四位老师陪同，午餐由学校准备。",
        "如果孩子对花粉过敏，请在本周三之前告诉班主任。孩子们画下的第一片新叶，将贴在教室门口的“春天墙”上。",
    ), 150, 290, 27, colour=INK, width=w - 300)
    text(c, "三年级全体老师", w - 400, end + 40, 27, colour=INK)
    for y in range(int(end) + 150, h - 160, 46):
        stroke(c, (.78, .79, .80), 1.5, (150, y), (w - 150, y))


def report(c, w, h):
    desk(c, w, h, (.22, .26, .31))
    paper(c, 60, 50, w - 120, h - 100, (.985, .985, .98))
    text(c, "上半年借阅情况", 120, 95, 42, "Noto Sans CJK SC Bold", INK)
    text(c, "单位：百册", 120, 160, 20, colour=SOFT)
    left, bottom, top = 130, 700, 230
    for part in range(5):
        y = bottom - part * (bottom - top) / 4
        stroke(c, (.84, .85, .87), 1.5, (left, y), (700, y))
        text(c, str(part * 25), left - 45, y - 12, 18, colour=SOFT)
    for i, (month, value) in enumerate(BARS):
        height = value / 100 * (bottom - top)
        fill(c, BLUE if i != 4 else GREEN, left + 25 + i * 94, bottom - height, 56, height)
        text(c, month, left + 30 + i * 94, bottom + 12, 20, colour=INK)
    c.move_to(930, 330)
    for start, end, colour in ((0, .45, BLUE), (.45, .72, GREEN), (.72, .88, (.93, .68, .22)),
                               (.88, 1, RED)):
        c.move_to(930, 360)
        c.arc(930, 360, 130, start * 2 * pi - pi / 2, end * 2 * pi - pi / 2)
        c.close_path()
        c.set_source_rgb(*colour)
        c.fill()
    for i, (what, colour) in enumerate((("故事", BLUE), ("科学", GREEN), ("历史", (.93, .68, .22)),
                                        ("其他", RED))):
        fill(c, colour, 800 + i % 2 * 150, 540 + i // 2 * 46, 24, 24)
        text(c, what, 836 + i % 2 * 150, 536 + i // 2 * 46, 22, colour=INK)
    text(c, "五月最多：读书周。", 800, 660, 24, colour=INK)


def form(c, w, h):
    desk(c, w, h, (.40, .33, .26))
    paper(c, 70, 60, w - 140, h - 120)
    text(c, "兴趣小组报名表", 0, 105, 44, "Noto Sans CJK SC Bold", INK, width=w, align="centre")
    columns, top, row = (130, 420, 590, 860, w - 130), 210, 84
    fill(c, (.86, .91, .88), columns[0], top, columns[-1] - columns[0], row)
    for i, cells in enumerate((("小组", "时间", "地点", "人数"),) + COURSES):
        for x, words in zip(columns, cells):
            face = "Noto Sans CJK SC Bold" if i == 0 else "Noto Sans CJK SC"
            text(c, words, x + 22, top + i * row + 24, 26, face, INK)
    for i in range(len(COURSES) + 2):
        stroke(c, (.45, .5, .5), 2, (columns[0], top + i * row), (columns[-1], top + i * row))
    for x in columns:
        stroke(c, (.45, .5, .5), 2, (x, top), (x, top + (len(COURSES) + 1) * row))
    text(c, "✓", columns[0] - 44, top + 2 * row + 14, 44, colour=RED)


def card(c, w, h):
    desk(c, w, h, (.18, .22, .26))
    x, y, cw, ch = 150, 120, w - 300, h - 240
    paper(c, x, y, cw, ch, (.90, .94, .98))
    fill(c, BLUE, x, y, cw, 110)
    text(c, "云杉图书馆 · 读者证", x + 40, y + 26, 44, "Noto Sans CJK SC Bold", (1, 1, 1))
    fill(c, (.78, .84, .90), x + 50, y + 160, 220, 280)
    c.set_source_rgb(.45, .55, .68)
    c.arc(x + 160, y + 265, 58, 0, 2 * pi)
    c.fill()
    c.save()
    c.rectangle(x + 50, y + 160, 220, 280)
    c.clip()
    c.arc(x + 160, y + 470, 105, 0, 2 * pi)
    c.fill()
    c.restore()
    for i, (label, value) in enumerate((("姓名", "林小舟"), ("编号", "YS-0042-7318"),
                                        ("有效期", "到明年六月"), ("地址", "云杉市溪边路 12 号"))):
        text(c, label, x + 320, y + 170 + i * 68, 24, colour=SOFT)
        text(c, value, x + 430, y + 164 + i * 68, 32, colour=INK)
    c.save()
    c.translate(x + cw - 150, y + ch - 90)
    c.rotate(-.25)
    c.set_source_rgba(*RED, .75)
    c.set_line_width(5)
    c.rectangle(-90, -38, 180, 76)
    c.stroke()
    text(c, "样 本", -58, -32, 44, "Noto Sans CJK SC Bold", RED)
    c.restore()


def receipt(c, w, h):
    desk(c, w, h, (.29, .34, .30))
    x, rw = 190, w - 380
    paper(c, x, 60, rw, h - 120, (.98, .98, .97))
    text(c, "小河文具店", x, 110, 44, "Noto Sans CJK SC Bold", INK, width=rw, align="centre")
    text(c, "柳树街 8 号", x, 178, 22, colour=SOFT, width=rw, align="centre")
    y = 250
    for dash in range(x + 30, x + rw - 30, 16):
        stroke(c, SOFT, 2, (dash, y), (dash + 8, y))
    for what, price in GOODS:
        y += 62
        text(c, what, x + 36, y - 30, 25, colour=INK)
        text(c, price, x + rw - 120, y - 30, 25, colour=INK)
    y += 50
    for dash in range(x + 30, x + rw - 30, 16):
        stroke(c, SOFT, 2, (dash, y), (dash + 8, y))
    text(c, "合计", x + 36, y + 30, 34, "Noto Sans CJK SC Bold", INK)
    text(c, "65.50", x + rw - 150, y + 30, 34, "Noto Sans CJK SC Bold", INK)
    for i in range(52):
        fill(c, INK, x + 60 + i * 5.8, y + 150, 2 + (i * 7 % 5) * .7, 110)
    text(c, "谢谢光临", x, y + 300, 26, colour=SOFT, width=rw, align="centre")

#!/usr/bin/python3
"""Draws sample_page.jpg: a school worksheet under a document camera.

Needs python3-cairo, python3-gi, python3-gi-cairo, gir1.2-pango-1.0,
python3-numpy, python3-pil and fonts-noto-cjk.
"""

from pathlib import Path

import cairo
import numpy as np
from PIL import Image, ImageFilter

import worksheet

OUT = Path(__file__).resolve().parent / "sample_page.jpg"
W, H = 2400, 1800
# Where the corners of the sheet lie in the picture: turned by about one and
# a half degrees, the far edge a little shorter than the near one.
CORNERS = ((236, 148), (2112, 101), (2192, 1612), (190, 1661))


def noise(rng, w, h, blur_x, blur_y):
    """Smooth noise with mean 0 and deviation 1."""
    sw, sh = max(2, int(w / blur_x)) + 3, max(2, int(h / blur_y)) + 3
    small = Image.fromarray(rng.standard_normal((sh, sw)).astype("float32"))
    n = np.asarray(small.resize((w, h), Image.BICUBIC), dtype="float32")
    return (n - n.mean()) / n.std()


def desk(rng):
    """Dark walnut, the grain running across the picture."""
    y = np.arange(H, dtype="float32")[:, None]
    bend = noise(rng, W, H, 900, 300) * 26 + noise(rng, W, H, 260, 120) * 5
    v = y + bend
    rings = np.sin(v / 23) * .5 + np.sin(v / 9.1 + 1.3) * .25
    lane = (v * 2.2).astype("int32") % 4096
    fibre = rng.standard_normal(4096).astype("float32")
    fibre = np.convolve(fibre, (.25, .5, .25), "same")[lane]
    tone = (1 + rings * .055 + fibre * .035 + noise(rng, W, H, 60, 2.5) * .045
            + noise(rng, W, H, 700, 240) * .07)
    pores = noise(rng, W, H, 46, 1.6) < -2.1
    tone = tone * np.where(pores, .86, 1)
    for seam in (612, 1388):            # joints between the boards
        tone *= 1 - .5 * np.exp(-((y - seam) / 2.2) ** 2)
        tone *= 1 + .12 * np.exp(-((y - seam - 6) / 2.5) ** 2)
    board = np.where(y < 612, 1.0, np.where(y < 1388, .93, 1.05))
    return tone[..., None] * board[..., None] * np.array((74, 54, 42), "float32")


def from_surface(surface):
    """Premultiplied RGBA picture of a cairo surface."""
    raw = np.frombuffer(surface.get_data(), np.uint8)
    raw = raw.reshape(surface.get_height(), surface.get_width(), 4)
    return Image.fromarray(raw[..., (2, 1, 0, 3)].copy())


def perspective(size, corners):
    """Coefficients that map the picture back onto the sheet."""
    w, h = size
    rows, right = [], []
    for (x, y), (u, v) in zip(corners, ((0, 0), (w, 0), (w, h), (0, h))):
        rows += [(x, y, 1, 0, 0, 0, -u * x, -u * y),
                 (0, 0, 0, x, y, 1, -v * x, -v * y)]
        right += [u, v]
    return np.linalg.solve(np.array(rows, float), np.array(right, float))


def shadow(shift, blur, draw):
    """Blurred mask of something that lies above the desk."""
    s = cairo.ImageSurface(cairo.FORMAT_ARGB32, W // 2, H // 2)
    c = cairo.Context(s)
    c.scale(.5, .5)
    c.translate(*shift)
    draw(c)
    mask = from_surface(s).getchannel("A").filter(
        ImageFilter.GaussianBlur(blur / 2)).resize((W, H), Image.BICUBIC)
    return np.asarray(mask, dtype="float32")[..., None] / 255


def sheet_outline(c):
    for corner in CORNERS:
        c.line_to(*corner)
    c.fill()


def over(base, layer):
    a = np.asarray(layer, dtype="float32")
    return base * (1 - a[..., 3:] / 255) + a[..., :3]


def lay_down(page):
    """The sheet as the camera sees it, its edges smooth."""
    # Sample a sheet with a few pixels of margin, then cut it along the outline.
    margin = 4
    w, h = page.size
    wide = np.pad(np.asarray(page), ((margin,) * 2, (margin,) * 2, (0, 0)),
                  "edge")
    k = perspective((w, h), CORNERS)
    k[0:3] += margin * np.array((k[6], k[7], 1))
    k[3:6] += margin * np.array((k[6], k[7], 1))
    seen = Image.fromarray(wide).transform((W, H), Image.PERSPECTIVE, k,
                                           Image.BICUBIC)
    outline = cairo.ImageSurface(cairo.FORMAT_ARGB32, W, H)
    sheet_outline(cairo.Context(outline))
    cover = np.asarray(from_surface(outline).getchannel("A"), "float32")
    seen = np.asarray(seen, "float32")[..., :3] * (cover / 255)[..., None]
    return np.dstack((seen, cover))


def pencil_layer():
    s = cairo.ImageSurface(cairo.FORMAT_ARGB32, W, H)
    worksheet.pencil(cairo.Context(s))
    return from_surface(s)


def paper_tone(rng, w, h):
    """Faint fibres and a soft wave along the sheet."""
    x = np.linspace(0, 1, w, dtype="float32")[None, :]
    y = np.linspace(0, 1, h, dtype="float32")[:, None]
    wave = 1 - .022 * np.exp(-((x - .5 - .02 * y) / .05) ** 2) \
        + .012 * np.exp(-((x - .57 - .02 * y) / .05) ** 2)
    return wave * (1 + noise(rng, w, h, 3, 3) * .004
                   + noise(rng, w, h, 300, 300) * .006)


def light(rng):
    """A lamp at the upper left, falling off towards the corners."""
    x = np.linspace(0, W / H, W, dtype="float32")[None, :]
    y = np.linspace(0, 1, H, dtype="float32")[:, None]
    lamp = 1.04 - .17 * ((x - .50) ** 2 + .9 * (y - .36) ** 2)
    d = ((x - W / H / 2) ** 2 + (y - .5) ** 2) / ((W / H / 2) ** 2 + .25)
    return (lamp * (1 - .17 * d ** 2.2)
            + noise(rng, W, H, 800, 700) * .008)[..., None]


def main():
    rng = np.random.default_rng(20)
    sheet = worksheet.draw()
    size = sheet.get_width(), sheet.get_height()
    page = from_surface(sheet)
    tone = paper_tone(rng, *size)[..., None]
    rgb = np.asarray(page, dtype="float32")[..., :3] * tone
    page = Image.fromarray(np.dstack(
        (np.clip(rgb, 0, 255).astype("uint8"), np.asarray(page)[..., 3])))
    # Halve first: the picture is then sampled close to one to one.
    page = page.resize((size[0] // 2, size[1] // 2), Image.LANCZOS)
    page = lay_down(page)

    shot = desk(rng)
    for shift, blur, depth in (((22, 26), 34, .55), ((6, 8), 7, .45)):
        shot = shot * (1 - depth * shadow(shift, blur, sheet_outline))
    shot = over(shot, page)
    for shift, blur, depth in (((16, 18), 12, .42), ((7, 8), 4, .35)):
        shot = shot * (1 - depth * shadow(shift, blur, worksheet.pencil))
    shot = over(shot, pencil_layer())

    shot = shot * light(rng) * np.array((1.0, .992, .968), "float32")
    shot = shot + rng.standard_normal((H, W, 1)).astype("float32") * 1.6
    shot = Image.fromarray(np.clip(shot, 0, 255).astype("uint8"))
    shot = shot.filter(ImageFilter.UnsharpMask(1.2, 40, 2))
    shot.save(OUT, quality=84, subsampling="4:2:0", optimize=True)


if __name__ == "__main__":
    main()

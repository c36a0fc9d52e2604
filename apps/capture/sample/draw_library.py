#!/usr/bin/python3
"""Draws the pictures of the sample library into library/: documents, whiteboards, landscapes.

All names, numbers and places in them are invented. Needs what draw_sample.py needs.
"""

from pathlib import Path

import cairo
import numpy as np
from PIL import Image, ImageFilter

import documents
import landscapes
import whiteboards

OUT = Path(__file__).resolve().parent / "library"
PICTURES = {
    "letter": (900, 1200, documents.letter),
    "report": (1200, 900, documents.report),
    "form": (1200, 900, documents.form),
    "card": (1200, 800, documents.card),
    "receipt": (800, 1200, documents.receipt),
    "plan": (1200, 900, whiteboards.plan),
    "geometry": (1200, 900, whiteboards.geometry),
    "ideas": (1200, 900, whiteboards.ideas),
    "mountains": (1200, 800, landscapes.mountains),
    "lake": (1200, 800, landscapes.lake),
    "desert": (1200, 800, landscapes.desert),
    "city": (1200, 800, landscapes.city),
}


def photographed(surface, rng):
    """A little uneven light and noise, as a camera gives it."""
    w, h = surface.get_width(), surface.get_height()
    raw = np.frombuffer(surface.get_data(), np.uint8).reshape(h, w, 4)
    picture = raw[..., (2, 1, 0)].astype("float32")
    x = np.linspace(-1, 1, w, dtype="float32")[None, :]
    y = np.linspace(-1, 1, h, dtype="float32")[:, None]
    light = 1.03 - .07 * (x + .25) ** 2 - .09 * (y + .2) ** 2
    picture = picture * light[..., None] + rng.standard_normal((h, w, 1)) * 1.2
    return Image.fromarray(np.clip(picture, 0, 255).astype("uint8"))


def main():
    OUT.mkdir(exist_ok=True)
    rng = np.random.default_rng(7)
    for name, (w, h, draw) in PICTURES.items():
        surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, w, h)
        draw(cairo.Context(surface), w, h)
        picture = photographed(surface, rng).filter(ImageFilter.GaussianBlur(.4))
        picture.save(OUT / f"{name}.jpg", quality=80, subsampling="4:2:0", optimize=True)


if __name__ == "__main__":
    main()

#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the program's icons: 108 (the service globe), 109 (right arrow) and 110 (left arrow),
each at 16, 24 and 32 pixels, into resources/icons/. Shapes are drawn 8 times larger and reduced,
so edges stay smooth; coordinates are in a 16-unit design grid so every size lines up on pixels.
Each icon is written as raw RGBA bytes (<id>-<size>.rgba, rows top to bottom, straight alpha), which
the program turns into a picture without any image decoder, so the launcher draws them at once.

Run: /usr/bin/python3 tools/icons/make-icons.py   (needs Debian's python3-pil)
"""
from pathlib import Path

from PIL import Image, ImageDraw

OUT = Path(__file__).resolve().parents[2] / "resources" / "icons"
SUPER = 8


def canvas(size):
    return Image.new("RGBA", (size * SUPER, size * SUPER), (0, 0, 0, 0))


def reduce(image, size):
    return image.resize((size, size), Image.LANCZOS)


def globe(size):
    img = canvas(size)
    d = ImageDraw.Draw(img)
    u = size * SUPER / 16.0  # one design unit

    def box(x0, y0, x1, y1):
        return [x0 * u, y0 * u, x1 * u, y1 * u]

    line = max(1, round(0.9 * u))
    d.ellipse(box(0.6, 0.6, 15.4, 15.4), fill=(18, 70, 140, 255))
    d.ellipse(box(1.5, 1.5, 14.5, 14.5), fill=(44, 140, 230, 255))
    # A lighter cap gives the sphere some depth.
    d.ellipse(box(3.0, 2.2, 10.5, 8.5), fill=(92, 178, 245, 255))
    grid = (235, 245, 255, 255)
    d.line(box(1.6, 8.0, 14.4, 8.0), fill=grid, width=line)
    d.arc(box(1.6, 3.6, 14.4, 12.4), 200, 340, fill=grid, width=line)
    d.arc(box(1.6, 3.6, 14.4, 12.4), 20, 160, fill=grid, width=line)
    d.line(box(8.0, 1.6, 8.0, 14.4), fill=grid, width=line)
    d.ellipse(box(4.6, 1.6, 11.4, 14.4), outline=grid, width=line)
    return reduce(img, size)


def arrow(size, pointing_right):
    img = canvas(size)
    d = ImageDraw.Draw(img)
    u = size * SUPER / 16.0
    points = [(3.5, 2.0), (13.5, 8.0), (3.5, 14.0)]
    if not pointing_right:
        points = [(16.0 - x, y) for x, y in points]
    outline = [(x * u, y * u) for x, y in points]
    d.polygon(outline, fill=(120, 70, 0, 255))
    cx = sum(x for x, _ in points) / 3
    cy = sum(y for _, y in points) / 3
    inner = [((cx + (x - cx) * 0.72) * u, (cy + (y - cy) * 0.72) * u) for x, y in points]
    d.polygon(inner, fill=(255, 206, 46, 255))
    return reduce(img, size)


def main():
    OUT.mkdir(parents=True, exist_ok=True)
    for size in (16, 24, 32):
        for icon_id, image in ((108, globe(size)), (109, arrow(size, True)), (110, arrow(size, False))):
            (OUT / f"{icon_id}-{size}.rgba").write_bytes(image.convert("RGBA").tobytes())


if __name__ == "__main__":
    main()

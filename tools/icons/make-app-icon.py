#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the application icon (the launcher's globe with a clock hand, on a rounded tile) as a
scalable SVG and as PNGs at the usual hicolor sizes, into resources/desktop/icons/. The shapes are
one list in a 16-unit design grid; the SVG writes them as they are, the PNGs draw them 8 times
larger and reduce them, so edges stay smooth.

Run: /usr/bin/python3 tools/icons/make-app-icon.py   (needs Debian's python3-pil)
"""
from pathlib import Path

from PIL import Image, ImageDraw

APP_ID = "io.github.wanderkit.Wanderkit"
OUT = Path(__file__).resolve().parents[2] / "resources" / "desktop" / "icons"
SIZES = (16, 24, 32, 48, 64, 128, 256)
SUPER = 8

TILE = (18, 40, 66)
SEA = (44, 140, 230)
RIM = (18, 70, 140)
CAP = (92, 178, 245)
GRID = (235, 245, 255)
HAND = (255, 196, 40)

# (kind, colour, box or points, stroke width); boxes are (x0, y0, x1, y1) in design units.
SHAPES = [
    ("tile", TILE, (0.25, 0.25, 15.75, 15.75), 0),
    ("disc", RIM, (1.6, 1.6, 14.4, 14.4), 0),
    ("disc", SEA, (2.3, 2.3, 13.7, 13.7), 0),
    ("disc", CAP, (3.6, 3.0, 9.8, 8.2), 0),
    ("line", GRID, (2.4, 8.0, 13.6, 8.0), 0.6),
    ("line", GRID, (8.0, 2.4, 8.0, 13.6), 0.6),
    ("ring", GRID, (5.0, 2.4, 11.0, 13.6), 0.6),
    ("line", HAND, (8.0, 8.0, 11.6, 5.2), 1.1),
    ("disc", HAND, (7.2, 7.2, 8.8, 8.8), 0),
]


def hex_colour(rgb):
    return "#%02x%02x%02x" % rgb


def svg():
    parts = ['<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16" viewBox="0 0 16 16">']
    for kind, colour, (x0, y0, x1, y1), width in SHAPES:
        c = hex_colour(colour)
        cx, cy, rx, ry = (x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2, (y1 - y0) / 2
        if kind == "tile":
            parts.append(f'<rect x="{x0}" y="{y0}" width="{x1 - x0}" height="{y1 - y0}" rx="3" fill="{c}"/>')
        elif kind == "disc":
            parts.append(f'<ellipse cx="{cx}" cy="{cy}" rx="{rx}" ry="{ry}" fill="{c}"/>')
        elif kind == "ring":
            parts.append(f'<ellipse cx="{cx}" cy="{cy}" rx="{rx}" ry="{ry}" fill="none" stroke="{c}" '
                         f'stroke-width="{width}"/>')
        else:
            parts.append(f'<line x1="{x0}" y1="{y0}" x2="{x1}" y2="{y1}" stroke="{c}" stroke-width="{width}" '
                         'stroke-linecap="round"/>')
    parts.append("</svg>")
    return "\n".join(parts) + "\n"


def png(size):
    u = size * SUPER / 16.0
    img = Image.new("RGBA", (size * SUPER, size * SUPER), (0, 0, 0, 0))
    d = ImageDraw.Draw(img)
    for kind, colour, box, width in SHAPES:
        scaled = [v * u for v in box]
        fill = colour + (255,)
        if kind == "tile":
            d.rounded_rectangle(scaled, radius=3 * u, fill=fill)
        elif kind == "disc":
            d.ellipse(scaled, fill=fill)
        elif kind == "ring":
            d.ellipse(scaled, outline=fill, width=max(1, round(width * u)))
        else:
            d.line(scaled, fill=fill, width=max(1, round(width * u)))
    return img.resize((size, size), Image.LANCZOS)


def main():
    OUT.mkdir(parents=True, exist_ok=True)
    (OUT / f"{APP_ID}.svg").write_text(svg())
    for size in SIZES:
        png(size).save(OUT / f"{APP_ID}-{size}.png", optimize=True)


if __name__ == "__main__":
    main()

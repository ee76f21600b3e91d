"""Flat weather icons, 48 x 48 pixels, 24-bit uncompressed BMP.

Each icon is drawn four times larger and scaled down for smooth edges. The background is the middle
tone of the weather screen's gradient, so an icon blends in when drawn as it is, and the corner
pixel can serve as a transparent colour.
"""

import math

from PIL import Image, ImageDraw

SIZE = 48
SCALE = 4
BACKGROUND = (99, 135, 165)
SUN = (255, 196, 0)
CLOUD = (246, 248, 250)
GREY_CLOUD = (176, 186, 198)
DARK_CLOUD = (96, 104, 120)
RAIN = (40, 120, 230)
ICE = (225, 240, 255)
BOLT = (255, 221, 0)


def _sun(draw, cx, cy, r):
    for i in range(8):
        a = i * math.pi / 4
        inner, outer = r * 1.3, r * 1.75
        draw.line([(cx + inner * math.cos(a), cy + inner * math.sin(a)),
                   (cx + outer * math.cos(a), cy + outer * math.sin(a))], fill=SUN, width=int(r * 0.28))
    draw.ellipse([cx - r, cy - r, cx + r, cy + r], fill=SUN)


def _cloud(draw, x, y, w, colour):
    """A cloud whose flat base spans x..x+w at height y."""
    h = w * 0.30
    draw.rounded_rectangle([x, y - h, x + w, y], radius=h / 2, fill=colour)
    draw.ellipse([x + w * 0.12, y - h * 1.9, x + w * 0.52, y - h * 0.5], fill=colour)
    draw.ellipse([x + w * 0.38, y - h * 2.5, x + w * 0.88, y - h * 0.4], fill=colour)


def _drops(draw, colour, count, length, y=140):
    """Slanted rain streaks below a cloud."""
    for i in range(count):
        x = 52 + i * 88 / max(count - 1, 1)
        draw.line([(x + 8, y), (x - 4 + 8 - length * 0.35, y + length)], fill=colour, width=10)


def _dots(draw, colour, count, y=150):
    for i in range(count):
        x = 56 + i * 80 / max(count - 1, 1)
        draw.ellipse([x - 7, y - 7 + (i % 2) * 16, x + 7, y + 7 + (i % 2) * 16], fill=colour)


def _flake(draw, cx, cy, r=13):
    for k in range(3):
        a = k * math.pi / 3
        draw.line([(cx - r * math.cos(a), cy - r * math.sin(a)), (cx + r * math.cos(a), cy + r * math.sin(a))],
                  fill=ICE, width=6)


def _flakes(draw, count, y=152):
    for i in range(count):
        _flake(draw, 54 + i * 84 / max(count - 1, 1), y + (i % 2) * 18)


def _sleet(draw):
    """Rain drops and snow flakes in turn."""
    for i in range(4):
        x = 54 + i * 28
        if i % 2:
            _flake(draw, x, 160)
        else:
            draw.line([(x + 8, 140), (x - 8, 180)], fill=RAIN, width=10)


def _bolt(draw):
    draw.polygon([(100, 118), (78, 160), (96, 160), (84, 188), (124, 144), (104, 144), (118, 118)], fill=BOLT)


def _rain_cloud(draw, colour=GREY_CLOUD):
    _cloud(draw, 26, 124, 140, colour)


ICONS = {
    "sunny": lambda d: _sun(d, 96, 96, 38),
    "fair": lambda d: (_sun(d, 84, 80, 34), _cloud(d, 92, 166, 84, CLOUD)),
    "partcloud": lambda d: (_sun(d, 74, 72, 30), _cloud(d, 40, 160, 130, CLOUD)),
    "cloudy": lambda d: (_cloud(d, 70, 118, 100, GREY_CLOUD), _cloud(d, 22, 160, 130, CLOUD)),
    "fog": lambda d: (_cloud(d, 30, 112, 132, GREY_CLOUD),
                      [d.rounded_rectangle([28 + 12 * (i % 2), 126 + i * 20, 164 - 12 * (i % 2), 136 + i * 20],
                                           radius=5, fill=CLOUD) for i in range(3)]),
    "drizzle": lambda d: (_rain_cloud(d), _dots(d, RAIN, 5)),
    "sleet": lambda d: (_rain_cloud(d), _sleet(d)),
    "rain": lambda d: (_rain_cloud(d), _drops(d, RAIN, 4, 44)),
    "snow": lambda d: (_rain_cloud(d, CLOUD), _flakes(d, 4)),
    "showers": lambda d: (_sun(d, 140, 52, 26), _rain_cloud(d, CLOUD), _drops(d, RAIN, 3, 40)),
    "snowshowers": lambda d: (_sun(d, 140, 52, 26), _rain_cloud(d, CLOUD), _flakes(d, 3)),
    "thunder": lambda d: (_rain_cloud(d, DARK_CLOUD), _bolt(d)),
    "hail": lambda d: (_rain_cloud(d, DARK_CLOUD), _bolt(d), _dots(d, ICE, 2, 150)),
    "na": lambda d: (d.ellipse([44, 44, 148, 148], outline=CLOUD, width=12),
                     d.rounded_rectangle([70, 88, 122, 104], radius=6, fill=CLOUD)),
}


def draw_icon(name):
    """The named icon as a 48 x 48 RGB image."""
    big = Image.new("RGB", (SIZE * SCALE, SIZE * SCALE), BACKGROUND)
    ICONS[name](ImageDraw.Draw(big))
    return big.resize((SIZE, SIZE), Image.LANCZOS)


def write_icons(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for name in ICONS:
        draw_icon(name).save(folder / f"{name}.bmp", format="BMP")

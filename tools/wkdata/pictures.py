"""The screens' JPEG pictures: the day and night world maps and two background images."""

import io
import math

from PIL import Image, ImageDraw

from . import paths

MAP_SIZE = (480, 240)
# The larger day picture that `wanderkit map` draws from for maps above the handheld's size.
LARGE_MAP_SIZE = (2048, 1024)
WORK_AREA = (240, 268)
JPEG_OPTIONS = {"format": "JPEG", "quality": 88, "optimize": False, "progressive": False, "subsampling": 0}


def world_map(name):
    """An xplanet map (equirectangular, 2:1) scaled to the map screen's size."""
    with Image.open(paths.XPLANET_IMAGES / name) as image:
        return image.convert("RGB").resize(MAP_SIZE, Image.LANCZOS)


def large_world_map_bytes(name):
    """The xplanet map at 2048 x 1024: its own bytes when it has that size, so nothing is lost to a
    second compression; otherwise scaled to it."""
    path = paths.XPLANET_IMAGES / name
    with Image.open(path) as image:
        if image.size == LARGE_MAP_SIZE and image.format == "JPEG":
            return path.read_bytes()
        scaled = image.convert("RGB").resize(LARGE_MAP_SIZE, Image.LANCZOS)
    out = io.BytesIO()
    scaled.save(out, **JPEG_OPTIONS)
    return out.getvalue()


def _gradient(size, top, bottom):
    image = Image.new("RGB", size)
    draw = ImageDraw.Draw(image)
    for y in range(size[1]):
        t = y / (size[1] - 1)
        draw.line([(0, y), (size[0], y)], fill=tuple(round(a + (b - a) * t) for a, b in zip(top, bottom)))
    return image


def _faint(base, overlay, strength):
    """Blends line art (white on black) faintly over the base picture."""
    return Image.composite(Image.new("RGB", base.size, (200, 230, 255)), base,
                           overlay.point(lambda v: v * strength // 255))


def _globe_grid(size, centre, radius, tilt):
    """Parallels and meridians of an orthographic globe, drawn twice as large for smooth lines."""
    scale = 2
    art = Image.new("L", (size[0] * scale, size[1] * scale), 0)
    draw = ImageDraw.Draw(art)
    cx, cy, r = centre[0] * scale, centre[1] * scale, radius * scale

    def project(lat, lon):
        la, lo, t = math.radians(lat), math.radians(lon), math.radians(tilt)
        x, y, z = math.cos(la) * math.sin(lo), math.sin(la), math.cos(la) * math.cos(lo)
        y, z = y * math.cos(t) - z * math.sin(t), y * math.sin(t) + z * math.cos(t)
        return (cx + r * x, cy - r * y) if z >= 0 else None

    def polyline(points):
        run = []
        for p in points + [None]:
            if p is None:
                if len(run) > 1:
                    draw.line(run, fill=255, width=2)
                run = []
            else:
                run.append(p)

    for lat in range(-60, 61, 30):
        polyline([project(lat, lon) for lon in range(-180, 181, 3)])
    for lon in range(-180, 180, 30):
        polyline([project(lat, lon) for lat in range(-90, 91, 3)])
    draw.ellipse([cx - r, cy - r, cx + r, cy + r], outline=255, width=3)
    return art.resize(size, Image.LANCZOS)


def _contours(size, centres):
    """Rings around a few centres, like the contour lines of a map."""
    scale = 2
    art = Image.new("L", (size[0] * scale, size[1] * scale), 0)
    draw = ImageDraw.Draw(art)
    for x, y, rings in centres:
        for k in range(1, rings + 1):
            r = k * 22 * scale
            draw.ellipse([x * scale - r * 1.3, y * scale - r, x * scale + r * 1.3, y * scale + r], outline=255, width=2)
    return art.resize(size, Image.LANCZOS)


def background():
    """Deep blue to teal with a faint globe grid: behind the clocks and the currency converter."""
    base = _gradient(WORK_AREA, (12, 34, 68), (8, 72, 92))
    return _faint(base, _globe_grid(WORK_AREA, (170, 190), 150, 20), 45)


def converter_background():
    """Deep teal to slate with faint contour rings: behind the converters and references."""
    base = _gradient(WORK_AREA, (10, 56, 66), (22, 38, 70))
    return _faint(base, _contours(WORK_AREA, [(40, 230, 6), (200, 40, 5)]), 40)


def write_pictures(folder):
    pictures = {"day.jpg": world_map("earth.jpg"), "bmap.jpg": world_map("night.jpg"),
                "back.jpg": background(), "bconv.jpg": converter_background()}
    for name, image in pictures.items():
        image.save(folder / name, **JPEG_OPTIONS)
    (folder / "daylarge.jpg").write_bytes(large_world_map_bytes("earth.jpg"))

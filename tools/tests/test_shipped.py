"""Checks the committed device root the way the device reads it."""

import struct
import unittest

from wkdata import paths
from wkdata.catalogue import read_catalogue
from wkdata.checks import country_list_problems, mapping_problems, read_currencies, rule_matches_tzdata
from wkdata.countries import SOVEREIGN, load_country_names
from wkdata.currencies import check_currencies
from wkdata.zonerule import tzdata_version

DEVICE = paths.DEVICE_DIR


def read(name):
    return (DEVICE / name).read_bytes()


class TextFilesTest(unittest.TestCase):
    def setUp(self):
        self.data = read("cities.lst")
        self.entries = read_catalogue(self.data)

    def test_files_are_ascii_with_line_feeds_only(self):
        names = ["cities.lst", "currs.lst", "cities.wet", "mapping.cfg"]
        names += [f"weatcs/{p.name}" for p in (DEVICE / "weatcs").iterdir()]
        for name in names:
            with self.subTest(name=name):
                data = read(name)
                self.assertTrue(data.isascii())
                self.assertNotIn(b"\r", data)

    def test_count_and_fields(self):
        lines = self.data.decode("ascii").split("\n")
        self.assertEqual(int(lines[1]), len(lines) - 3)
        for line in lines[2:-1]:
            fields = line.split(";")  # eleven, none empty, no ":" in the city or the country
            self.assertTrue(len(fields) == 11 and all(fields) and ":" not in fields[1] + fields[2], line)

    # Every kind of zone that a city of 100,000 people or more used in 2026 (GeoNames populations,
    # tzdata 2026f), as standard offset text, "+" when it observes daylight saving. Read off by hand:
    # -3:30 is St. John's, +9:30 Darwin without and Adelaide with daylight saving.
    ZONE_KINDS = ("-10 -9+ -8+ -7 -7+ -6 -6+ -5 -5+ -4 -4+ -330+ -3 -1 0 0+ 1 1+ 2 2+ 3 330 4 430 5 530 545 6 630 "
                  "7 8 9 930 930+ 10 10+ 11 12 12+")

    def test_every_zone_kind_of_a_large_city_has_a_city(self):
        present = {(e.offset, e.rule[0] != "0") for e in self.entries}
        missing = [k for k in self.ZONE_KINDS.split() if (k.rstrip("+"), k.endswith("+")) not in present]
        self.assertEqual(missing, [], f"present: {sorted(present)}")

    def test_every_sovereign_state_has_a_city(self):
        names = load_country_names()
        countries = {e.country for e in self.entries}
        self.assertEqual([c for c in SOVEREIGN if names[c] not in countries], [])

    def test_rules_are_those_of_the_installed_tzdata(self):
        built_with = self.data.split(b"\n", 1)[0].decode("ascii").split()[-1]
        if built_with != tzdata_version():
            self.skipTest(f"built with tzdata {built_with}, {tzdata_version()} installed")
        self.assertEqual([e.key for e in self.entries if not rule_matches_tzdata(e)], [])

    def test_country_lists_hold_every_catalogue_city(self):
        self.assertEqual(country_list_problems(DEVICE, self.entries), [])

    def test_favourites_name_catalogue_cities_with_their_codes(self):
        lines = read("cities.wet").decode("ascii").split("\n")
        self.assertEqual(int(lines[0]), len(lines) - 2)
        for line in lines[1:-1]:
            country, city, code = line.split(";")
            self.assertIn(f"{city};{code}\n", read(f"weatcs/{country}").decode("ascii"))
        self.assertLessEqual({"London", "New York", "Paris", "Tokyo"}, {line.split(";")[1] for line in lines[1:-1]})

    def test_every_icon_code_resolves_to_its_own_icon(self):
        self.assertEqual(mapping_problems(read("mapping.cfg"), DEVICE / "wiconset"), [])

    def test_189_priced_currencies_with_distinct_names(self):
        rows = read_currencies(read("currs.lst"))
        self.assertEqual(check_currencies(rows), [])
        for code, _, rate in rows:
            self.assertRegex(f"{code} {rate}", r"^[A-Z]{3} [0-9]+(\.[0-9]+)?$")


class PicturesTest(unittest.TestCase):
    def test_icons_are_48_pixel_24_bit_bitmaps(self):
        for path in (DEVICE / "wiconset").iterdir():
            with self.subTest(icon=path.name):
                header = path.read_bytes()[:34]
                self.assertEqual(header[:2], b"BM")
                width, height, _, bits, compression = struct.unpack("<iiHHI", header[18:34])
                self.assertEqual((width, abs(height), bits, compression), (48, 48, 24, 0))

    def test_jpeg_sizes(self):
        sizes = {"day.jpg": (480, 240), "bmap.jpg": (480, 240), "back.jpg": (240, 268), "bconv.jpg": (240, 268),
                 "daylarge.jpg": (2048, 1024)}
        for name, size in sizes.items():
            with self.subTest(name=name):
                self.assertEqual(jpeg_size(read(name)), size)


def jpeg_size(data):
    """Width and height from the first start-of-frame marker."""
    pos = 2
    while pos < len(data):
        marker, length = data[pos + 1], struct.unpack(">H", data[pos + 2:pos + 4])[0]
        if marker in (0xC0, 0xC1, 0xC2):
            height, width = struct.unpack(">HH", data[pos + 5:pos + 9])
            return width, height
        pos += 2 + length

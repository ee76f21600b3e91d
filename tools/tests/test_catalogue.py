import unittest

from wkdata.catalogue import CatalogueEntry, FieldReader, catalogue_bytes, read_catalogue
from wkdata.checks import catalogue_order


def entry(city, country="Testland", zone="Etc/UTC"):
    return CatalogueEntry(zone, city, country, "1.00", "-2.00", "0", ("0",) * 5)


class CatalogueFileTest(unittest.TestCase):
    def test_field_reader_reads_like_the_device(self):
        # A delimiter at the start of a field is skipped, so an empty field merges with the next.
        cases = [(b"a;b;c", ["a", "b", "c"]), (b"a;;c;d", ["a", "c", "d", ""]), (b";x;y", ["x", "y", ""]),
                 (b"end", ["end", "", ""])]
        for data, fields in cases:
            with self.subTest(data=data):
                reader = FieldReader(data)
                self.assertEqual([reader.field(b";") for _ in fields], fields)

    def test_written_file_reads_back_in_byte_order_as_the_device_sees_it(self):
        sydney = CatalogueEntry("Australia/Sydney", "Sydney", "Australia", "151.21", "-33.87", "10",
                                ("1", "277", "2", "95", "3"))
        data = catalogue_bytes([entry("Zurich"), sydney, entry("aachen"), entry("Abu Dhabi", "UAE"), entry("Abu")], "h")
        self.assertTrue(data.startswith(b"h\n5\n"))
        self.assertNotIn(b"\r", data)
        read = read_catalogue(data)
        self.assertEqual([e.key for e in read],
                         ["Abu Dhabi:UAE", "Abu:Testland", "Sydney:Australia", "Zurich:Testland", "aachen:Testland"])
        self.assertEqual(read[2], sydney)
        rule = read[2].daylight_rule()
        self.assertEqual((rule.standard_minutes, rule.shift_hours, rule.start_day, rule.end_day), (600, 1, 277, 95))

    def test_order_keeps_the_first_of_equal_keys(self):
        first, second = entry("Paris", zone="Europe/Paris"), entry("Paris", zone="America/Chicago")
        self.assertEqual(catalogue_order([first, entry("Oslo"), second]), ["Oslo:Testland", "Paris:Testland"])

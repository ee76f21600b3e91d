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

    def test_written_file_reads_back_in_byte_order(self):
        entries = [entry("Zurich"), entry("aachen"), entry("Abu Dhabi", "United Arab Emirates"), entry("Abu")]
        data = catalogue_bytes(entries, "header text")
        self.assertTrue(data.startswith(b"header text\n4\n"))
        self.assertNotIn(b"\r", data)
        self.assertEqual([e.key for e in read_catalogue(data)],
                         ["Abu Dhabi:United Arab Emirates", "Abu:Testland", "Zurich:Testland", "aachen:Testland"])

    def test_rule_text_reads_back_as_the_device_sees_it(self):
        written = CatalogueEntry("Australia/Sydney", "Sydney", "Australia", "151.21", "-33.87", "10",
                                 ("1", "277", "2", "95", "3"))
        (read,) = read_catalogue(catalogue_bytes([written], "h"))
        self.assertEqual(read, written)
        rule = read.daylight_rule()
        self.assertEqual((rule.standard_minutes, rule.shift_hours, rule.start_day, rule.end_day), (600, 1, 277, 95))

    def test_order_keeps_the_first_of_equal_keys(self):
        first, second = entry("Paris", zone="Europe/Paris"), entry("Paris", zone="America/Chicago")
        self.assertEqual(catalogue_order([first, entry("Oslo"), second]), ["Oslo:Testland", "Paris:Testland"])

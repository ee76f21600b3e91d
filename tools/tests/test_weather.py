import unittest

from wkdata.weather import icon_for_code, mapping_bytes, order_for_lookup


def mapping_text():
    words = mapping_bytes().decode("ascii").split()
    return "".join(f"{w};" for w in words[:words.index(">")])


class IconLookupTest(unittest.TestCase):
    def test_codes_pick_their_own_entry(self):
        cases = [("00", "sunny"), ("01", "fair"), ("03", "cloudy"), ("45", "fog"), ("48", "fog"),
                 ("56", "sleet"), ("67", "sleet"), ("77", "snow"), ("82", "showers"), ("95", "thunder"),
                 ("99", "hail"), ("N/A", "na"), ("-", "na"), ("42", "na"), ("10", "na")]
        text = mapping_text()
        for code, icon in cases:
            with self.subTest(code=code):
                self.assertEqual(icon_for_code(text, code), icon)

    def test_mapping_ends_with_the_end_word(self):
        self.assertTrue(mapping_bytes().endswith(b"\n>\n"))


class LookupOrderTest(unittest.TestCase):
    def test_a_name_inside_another_comes_first(self):
        cases = [
            (["New York", "York", "Yorkton"], ["York", "New York", "Yorkton"]),
            (["San Jose", "Jose", "Alajuela"], ["Alajuela", "Jose", "San Jose"]),
            (["Lima", "Lim", "Limassol"], ["Lim", "Lima", "Limassol"]),
        ]
        for names, expected in cases:
            with self.subTest(names=names):
                ordered = order_for_lookup(names)
                self.assertEqual(sorted(ordered), sorted(names))
                text = "".join(f"{n};1\n" for n in ordered)
                for i, name in enumerate(ordered):
                    self.assertEqual(text.find(name), text.find(f"{name};1\n"), name)
                self.assertEqual(ordered, expected)


if __name__ == "__main__":
    unittest.main()

import unittest

from wkdata.weather import icon_for_code, mapping_bytes, order_for_lookup


class WeatherFilesTest(unittest.TestCase):
    def test_codes_pick_their_own_entry(self):
        data = mapping_bytes()
        self.assertTrue(data.endswith(b"\n>\n"))
        words = data.decode("ascii").split()
        text = "".join(f"{w};" for w in words[:words.index(">")])
        cases = [("00", "sunny"), ("45", "fog"), ("48", "fog"), ("67", "sleet"), ("99", "hail"), ("N/A", "na"),
                 ("-", "na"), ("42", "na"), ("10", "na")]
        for code, icon in cases:
            with self.subTest(code=code):
                self.assertEqual(icon_for_code(text, code), icon)

    def test_a_name_inside_another_comes_first(self):
        # The dialog finds a city by searching the list's text for its name: each must be found on its own line.
        cases = [(["New York", "York", "Yorkton"], ["York", "New York", "Yorkton"]),
                 (["San Jose", "Jose", "Alajuela"], ["Alajuela", "Jose", "San Jose"]),
                 (["Lima", "Lim", "Limassol"], ["Lim", "Lima", "Limassol"])]
        for names, expected in cases:
            with self.subTest(names=names):
                self.assertEqual(order_for_lookup(names), expected)

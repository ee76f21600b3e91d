import unittest

from wkdata.checks import currency_order, read_currencies
from wkdata.currencies import check_currencies, currency_file_bytes, rate_text


class CurrencyFileTest(unittest.TestCase):
    def test_rate_text_is_the_plain_decimal_value_of_one_unit_in_dollars(self):
        cases = [(1, "1"), (157.47729333, "0.00635012"), (1374999.64464856, "0.000000727273"),
                 (1.2017405e-05, "83212.6")]
        for per_usd, text in cases:
            with self.subTest(per_usd=per_usd):
                self.assertEqual(rate_text(per_usd), text)

    def test_records_are_written_end_to_end_and_read_back(self):
        rows = [("EUR", "Euro", "1.1"), ("USD", "US Dollar", "1"), ("JPY", "Japanese Yen", "0.0063")]
        data = currency_file_bytes(rows)
        self.assertEqual(data.count(b"\n"), 1)
        self.assertTrue(data.endswith(b"#"))
        self.assertEqual(read_currencies(data), rows)

    def test_store_order_ignores_case_and_keeps_the_first_equal_name(self):
        rows = [("ZZZ", "euro", "2"), ("EUR", "Euro", "1"), ("aaa", "Afghan afghani", "1"), ("EUR", "EURO", "3")]
        self.assertEqual([r[0] for r in currency_order(rows)], ["aaa", "ZZZ"])

    def test_problems_are_reported(self):
        cases = [([("EUR", "Euro", "1"), ("EUX", "EURO", "1")], "names repeat"), ([("EUR", "Eu_ro", "1")], "separator"),
                 ([("EUR", "Euro", "1e-05")], "plain positive rate"), ([("EUR", "Euro", "0")], "plain positive rate"),
                 ([("EUR", "Euro", "1")], "instead of 189"), ([("EUR", "Euro", "1")], "USD is at position None")]
        for rows, message in cases:
            with self.subTest(message=message):
                self.assertTrue(any(message in p for p in check_currencies(rows)), check_currencies(rows))

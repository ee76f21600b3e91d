import unittest
from datetime import date

from wkdata.zonerule import DaylightRule, derive_rule, offset_by_rule, wtol, zone_offset_minutes, zone_offset_text


class ZoneOffsetTest(unittest.TestCase):
    def test_encoding_round_trips_through_the_device_conversion(self):
        cases = [(0, "0"), (60, "1"), (-300, "-5"), (330, "530"), (-210, "-330"), (345, "545"),
                 (765, "1245"), (-570, "-930"), (840, "14"), (-720, "-12")]
        for minutes, text in cases:
            with self.subTest(minutes=minutes):
                self.assertEqual(zone_offset_text(minutes), text)
                self.assertEqual(zone_offset_minutes(wtol(text)), minutes)

    def test_half_hour_without_whole_hours_has_no_encoding(self):
        with self.assertRaises(ValueError):
            zone_offset_text(30)

    def test_wtol_stops_at_the_first_non_digit(self):
        for text, value in [("530", 530), ("-330", -330), ("-0.13", 0), (" 12abc", 12), ("abc", 0),
                            ("+7", 7), ("", 0), ("-", 0)]:
            with self.subTest(text=text):
                self.assertEqual(wtol(text), value)


class OffsetByRuleTest(unittest.TestCase):
    def test_start_day_inside_end_day_outside(self):
        rule = DaylightRule(0, 1, 88, 1, 298, 2)  # 29 March to 25 October 2026
        cases = [(date(2026, 3, 28), 0), (date(2026, 3, 29), 60), (date(2026, 10, 24), 60), (date(2026, 10, 25), 0)]
        for day, offset in cases:
            with self.subTest(day=day):
                self.assertEqual(offset_by_rule(rule, day), offset)

    def test_rule_ending_before_it_starts_spans_the_new_year(self):
        rule = DaylightRule(600, 1, 277, 2, 95, 3)  # 4 October to 5 April
        cases = [(date(2026, 1, 1), 660), (date(2026, 4, 4), 660), (date(2026, 4, 5), 600),
                 (date(2026, 10, 3), 600), (date(2026, 10, 4), 660), (date(2026, 12, 31), 660)]
        for day, offset in cases:
            with self.subTest(day=day):
                self.assertEqual(offset_by_rule(rule, day), offset)

    def test_end_earlier_in_the_same_month_never_observes(self):
        rule = DaylightRule(60, 1, 80, 0, 70, 0)  # 21 March to 11 March
        self.assertEqual({offset_by_rule(rule, date(2026, m, 15)) for m in range(1, 13)}, {60})

    def test_end_day_366_runs_to_the_year_end(self):
        rule = DaylightRule(-480, 1, 67, 2, 366, 0)
        self.assertEqual(offset_by_rule(rule, date(2026, 3, 7)), -480)
        self.assertEqual(offset_by_rule(rule, date(2026, 12, 31)), -420)

    def test_no_shift_keeps_standard_offset(self):
        self.assertEqual(offset_by_rule(DaylightRule(330, 0, 10, 0, 20, 0), date(2026, 1, 15)), 330)


class DeriveRuleTest(unittest.TestCase):
    def test_published_2026_transitions(self):
        # Standard offset text and the five rule fields for zones with well-known 2026 rules.
        cases = [
            ("Europe/London", "0", ["1", "88", "1", "298", "2"]),
            ("Europe/Paris", "1", ["1", "88", "2", "298", "3"]),
            ("America/New_York", "-5", ["1", "67", "2", "305", "2"]),
            ("America/St_Johns", "-330", ["1", "67", "2", "305", "2"]),
            ("Australia/Sydney", "10", ["1", "277", "2", "95", "3"]),
            ("Pacific/Chatham", "1245", ["1", "270", "2", "95", "3"]),
            ("America/Santiago", "-4", ["1", "249", "0", "95", "0"]),
            ("Europe/Dublin", "0", ["1", "88", "1", "298", "2"]),
            ("Asia/Kolkata", "530", ["0"] * 5),
            ("Asia/Kathmandu", "545", ["0"] * 5),
            ("Asia/Tokyo", "9", ["0"] * 5),
        ]
        for zone, offset, fields in cases:
            with self.subTest(zone=zone):
                rule = derive_rule(zone)
                self.assertEqual(zone_offset_text(rule.standard_minutes), offset)
                self.assertEqual(rule.fields(), fields)

    def test_half_hour_saving_is_refused(self):
        with self.assertRaises(ValueError):
            derive_rule("Australia/Lord_Howe")


if __name__ == "__main__":
    unittest.main()

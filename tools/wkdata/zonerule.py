"""Standard offsets and yearly daylight-saving rules of IANA zones, in the catalogue's encoding.

The catalogue stores a zone as its standard offset ("ZoneOffset": whole hours when the magnitude is at
most 100, else hours * 100 + minutes) and one rule: shift in hours, start day of the year and hour,
end day of the year and hour. The device observes the shift from the start day (inside) to the end
day (outside), by date only; a rule whose end month lies before its start month ends next year.
"""

from dataclasses import dataclass
from datetime import date, datetime, timedelta, timezone
from functools import lru_cache
from zoneinfo import ZoneInfo

YEAR = 2026
_HOUR = timedelta(hours=1)


@dataclass(frozen=True)
class DaylightRule:
    standard_minutes: int
    shift_hours: int = 0
    start_day: int = 0
    start_hour: int = 0
    end_day: int = 0
    end_hour: int = 0

    def fields(self):
        """The five rule fields as written to the catalogue; "0" in every field when there is no shift."""
        if self.shift_hours == 0:
            return ["0"] * 5
        return [str(v) for v in (self.shift_hours, self.start_day, self.start_hour, self.end_day, self.end_hour)]


def zone_offset_text(minutes):
    """Encodes an offset from GMT: "1", "-5", "530", "-330", "545", "1245"."""
    hours, rest = divmod(abs(minutes), 60)
    sign = "-" if minutes < 0 else ""
    if rest == 0:
        return f"{sign}{hours}" if hours else "0"
    if hours == 0:
        raise ValueError(f"offset of {minutes} minutes has no ZoneOffset form")
    return f"{sign}{hours * 100 + rest}"


def wtol(text):
    """Text to integer like C's _wtol: leading blanks, optional sign, digits up to the first non-digit."""
    text = text.lstrip(" \t\n\r\f\v")
    sign = -1 if text.startswith("-") else 1
    digits = text[1:] if text[:1] in "+-" else text
    count = len(digits) - len(digits.lstrip("0123456789"))
    return sign * int(digits[:count]) if count else 0


def zone_offset_minutes(value):
    """Decodes a ZoneOffset integer; the minutes of the hhmm form carry the sign of the whole."""
    if -100 <= value <= 100:
        return value * 60
    hours = int(value / 100)
    return hours * 60 + (value - hours * 100)


def _offset_minutes(zone, instant):
    return int(instant.astimezone(zone).utcoffset().total_seconds()) // 60


def _exact_transition(zone, before, after):
    """Bisects to the first second at which the offset of `after` applies."""
    target = _offset_minutes(zone, after)
    while after - before > timedelta(seconds=1):
        middle = before + (after - before) / 2
        if _offset_minutes(zone, middle) == target:
            after = middle
        else:
            before = middle
    return after.replace(microsecond=0)


def transitions(zone_name, year=YEAR):
    """Offset changes whose local date (on the old offset) lies in the year: (local datetime, old, new)."""
    zone = ZoneInfo(zone_name)
    instant = datetime(year - 1, 12, 31, tzinfo=timezone.utc)
    end = datetime(year + 1, 1, 2, tzinfo=timezone.utc)
    found, offset = [], _offset_minutes(zone, instant)
    while instant < end:
        following = instant + _HOUR
        new = _offset_minutes(zone, following)
        if new != offset:
            at = _exact_transition(zone, instant, following)
            local = (at + timedelta(minutes=offset)).replace(tzinfo=None)
            if local.year == year:
                found.append((local, offset, new))
        instant, offset = following, new
    return found


def days_of(year=YEAR):
    first = date(year, 1, 1)
    return [first + timedelta(days=i) for i in range((date(year + 1, 1, 1) - first).days)]


def _switch_hour(changes, day):
    """Local hour of the offset change on that day, on the clock of either side of the change."""
    for local, old, new in changes:
        for wall in (local, local + timedelta(minutes=new - old)):
            if wall.date() == day:
                return wall.hour
    return 0


@lru_cache(maxsize=None)
def derive_rule(zone_name, year=YEAR):
    """The zone's year as a standard offset plus at most one whole-hour shift period.

    Judged by the real UTC offsets at noon only, the lower offset counts as standard, so zones that
    tzdata models with a negative saving (Dublin) or a Ramadan pause (Casablanca) still come out as
    one positive shift. Of the periods that begin and end where the noon offset changes, the one
    that agrees with tzdata on the most days is taken (a year with more than two changes cannot be
    written exactly).
    """
    days = days_of(year)
    noon = [real_offset_at_noon(zone_name, d) for d in days]
    values = sorted(set(noon))
    if len(values) == 1:
        return DaylightRule(values[0])
    if len(values) > 2 or (values[1] - values[0]) % 60:
        raise ValueError(f"{zone_name}: offsets {values} in {year} are not one whole-hour shift")
    low, shift = values[0], (values[1] - values[0]) // 60
    starts = [i + 1 for i, n in enumerate(noon) if n > low and (i == 0 or noon[i - 1] == low)]
    ends = [i + 1 for i, n in enumerate(noon) if n == low and i > 0 and noon[i - 1] > low]
    ends += [len(days) + 1] if noon[-1] > low else []

    def agreement(period):
        rule = DaylightRule(low, shift, period[0], 0, period[1], 0)
        return sum(offset_by_rule(rule, d, year) == n for d, n in zip(days, noon))

    start, end = max(((s, e) for s in starts for e in ends if s != e), key=lambda p: (agreement(p), -p[0], -p[1]))
    changes = transitions(zone_name, year)
    return DaylightRule(low, shift, start, _switch_hour(changes, days[start - 1]),
                        end, _switch_hour(changes, days[end - 1]) if end <= len(days) else 0)


def offset_by_rule(rule, day, year=YEAR):
    """The offset in minutes that the device derives from the rule on a date of the year.

    A rule whose end month lies before its start month ends next year; the days of this year before
    its end date belong to the period that began the year before and count as observing.
    """
    if rule.shift_hours == 0:
        return rule.standard_minutes
    first = date(year, 1, 1)
    start = first + timedelta(days=rule.start_day - 1)
    end = first + timedelta(days=rule.end_day - 1)
    observing = start <= day < end
    if end.month < start.month:
        observing = start <= day < end.replace(year=year + 1) or day < end.replace(year=year)
    return rule.standard_minutes + 60 * rule.shift_hours * observing


def real_offset_at_noon(zone_name, day):
    """The zone's real UTC offset in minutes at 12:00 local time on the date."""
    noon = datetime(day.year, day.month, day.day, 12, tzinfo=ZoneInfo(zone_name))
    return int(noon.utcoffset().total_seconds()) // 60


def tzdata_version(path="/usr/share/zoneinfo/tzdata.zi"):
    """The release of the installed tzdata ("2026a"), read from its source summary."""
    with open(path, encoding="ascii") as f:
        return f.readline().split()[-1]

"""Checks of the written device root, reading each file the way the device does."""

from dataclasses import dataclass
from datetime import timedelta

from . import currencies, weather
from .catalogue import FieldReader, read_catalogue
from .text import latin1_casefold_key
from .zonerule import YEAR, days_of, derive_rule, offset_by_rule, real_offset_at_noon, transitions, wtol

# The default world clocks' cities and their catalogue positions.
ANCHOR_KEYS = {"London:United Kingdom": 565, "New York:United States": 684, "Paris:France": 756, "Tokyo:Japan": 988}


def catalogue_order(entries):
    """Keys in the device's order: ascending bytes of "city:country", the first of equal keys kept."""
    return sorted({e.key: None for e in reversed(entries)}, key=lambda k: k.encode("latin-1"))


def read_currencies(data):
    """[(code, name, rate)] as the launcher reads the currency file."""
    reader = FieldReader(data)
    count = wtol(reader.field(b"\n"))
    return [(reader.field(b"_"), reader.field(b"_"), reader.field(b"#")) for _ in range(count)]


def currency_order(rows):
    """Rows in the store's order: case-insensitive name, then code; the first of equal names kept."""
    unique = {}
    for row in rows:
        unique.setdefault(row[1].lower(), row)
    return sorted(unique.values(), key=lambda r: (latin1_casefold_key(r[1]), r[0]))


def position_report(device):
    """[(what, expected, found)] for the default clocks and the default currencies."""
    keys = catalogue_order(read_catalogue((device / "cities.lst").read_bytes()))
    codes = [r[0] for r in currency_order(read_currencies((device / "currs.lst").read_bytes()))]
    report = [(k, p, keys.index(k) if k in keys else None) for k, p in ANCHOR_KEYS.items()]
    report += [(c, p, codes.index(c) if c in codes else None) for c, p in currencies.DEFAULT_POSITIONS.items()]
    return report


def transition_days(zone):
    """Local dates on which the zone's offset changes, on either side of the change."""
    days = set()
    for local, old, new in transitions(zone):
        days |= {local.date(), (local + timedelta(minutes=new - old)).date()}
    return days


@dataclass
class DstResult:
    entry: object
    days: int
    missed: list
    off_transition: list
    changes: int

    @property
    def one_period(self):
        """Whether the zone's year fits one shift period at all (at most two offset changes)."""
        return self.changes <= 2


def dst_agreement(entries, year=YEAR):
    """Per city: the days on which the written rule and tzdata disagree at noon."""
    days = days_of(year)
    results = []
    for entry in entries:
        rule = entry.daylight_rule()
        missed = [d for d in days if offset_by_rule(rule, d, year) != real_offset_at_noon(entry.zone, d)]
        stray = [d for d in missed if d not in transition_days(entry.zone)]
        results.append(DstResult(entry, len(days), missed, stray, len(transitions(entry.zone, year))))
    return results


def rule_matches_tzdata(entry):
    """True when the written rule is the one derived from the zone (nothing lost in writing)."""
    return entry.daylight_rule() == derive_rule(entry.zone)


def country_list_problems(device, entries):
    """Catalogue cities missing from their country's list, and lists that break the format."""
    problems = []
    folder = device / "weatcs"
    for country in sorted({e.country for e in entries}):
        path = folder / country
        if not path.is_file():
            problems.append(f"no country list for {country}")
            continue
        lines = path.read_bytes().decode("ascii").split("\n")
        if lines[-2:] != [">", ""] or any(">" in line for line in lines[:-2]):
            problems.append(f"{country}: the list does not end with a single '>' line")
        lines = lines[:-2]
        if not all(len(line.split(";")) == 2 and line.split(";")[1].isdigit() for line in lines):
            problems.append(f"{country}: a line is not 'city;geonameid'")
        names = [line.split(";")[0] for line in lines]
        # The dialog finds a chosen city by searching the list's text for its name.
        text = "".join(f"{line}\n" for line in lines)
        starts = [sum(len(line) + 1 for line in lines[:i]) for i in range(len(lines))]
        problems += [f"{country}: {name} is first found inside another line"
                     for name, start in zip(names, starts) if text.find(name) != start]
        for entry in entries:
            if entry.country == country and entry.city not in names:
                problems.append(f"{country}: catalogue city {entry.city} is missing")
    extra = {p.name for p in folder.iterdir()} - {e.country for e in entries}
    problems += [f"country list {name} has no catalogue city" for name in sorted(extra)]
    return problems


def mapping_problems(mapping_data, icon_folder):
    """Codes that the icon lookup resolves wrongly, and icons that are missing."""
    words = mapping_data.decode("ascii").split()
    text = "".join(f"{w};" for w in words[:words.index(">")])
    problems = []
    listed = {f"{c:02d}": name for name, codes in weather.ICON_CODES for c in codes}
    for code in (f"{n:02d}" for n in range(100)):
        found = weather.icon_for_code(text, code)
        if found != listed.get(code, weather.NO_FORECAST_ICON):
            problems.append(f"code {code} gives icon {found}")
    for name in set(listed.values()) | {weather.NO_FORECAST_ICON}:
        if not (icon_folder / f"{name}.bmp").is_file():
            problems.append(f"icon {name}.bmp is missing")
    return problems

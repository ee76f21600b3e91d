"""Writes and reads the city catalogue file "cities.lst".

A record line is: zone ; city ; country ; longitude ; latitude ; standard offset ; five rule fields.
The first field is a label that the device ignores; it holds the city's IANA zone so that the file
can be checked against tzdata on its own.
"""

from dataclasses import dataclass

from .zonerule import derive_rule, wtol, zone_offset_minutes, zone_offset_text, DaylightRule


@dataclass(frozen=True)
class CatalogueEntry:
    zone: str
    city: str
    country: str
    lon: str
    lat: str
    offset: str
    rule: tuple

    @property
    def key(self):
        return f"{self.city}:{self.country}"

    def daylight_rule(self):
        """The rule as the device reads it back from the text fields."""
        shift, start_day, start_hour, end_day, end_hour = (wtol(f) for f in self.rule)
        if self.rule[0] == "0":
            shift = 0
        return DaylightRule(zone_offset_minutes(wtol(self.offset)), shift, start_day, start_hour, end_day, end_hour)


def _degrees(value):
    text = f"{value:.2f}"
    return "0.00" if text == "-0.00" else text


def make_entry(city, country):
    """The catalogue entry of a GeoNames city, with the zone's 2026 rule."""
    rule = derive_rule(city.zone)
    return CatalogueEntry(city.zone, city.name, country, _degrees(city.lon), _degrees(city.lat),
                          zone_offset_text(rule.standard_minutes), tuple(rule.fields()))


def catalogue_bytes(entries, header):
    """The whole file, entries in catalogue order (ascending bytes of "city:country")."""
    entries = sorted(entries, key=lambda e: e.key.encode("ascii"))
    lines = [header, str(len(entries))]
    lines += [";".join((e.zone, e.city, e.country, e.lon, e.lat, e.offset) + e.rule) for e in entries]
    return ("\n".join(lines) + "\n").encode("ascii")


class FieldReader:
    """Reads delimited fields the way the device does: a delimiter met as the first byte of a field
    is skipped, so a field is never empty; the end of the data ends a field."""

    def __init__(self, data):
        self.data, self.pos = data, 0

    def field(self, delimiter):
        if self.data[self.pos:self.pos + 1] == delimiter:
            self.pos += 1
        end = self.data.find(delimiter, self.pos)
        end = len(self.data) if end < 0 else end
        text = self.data[self.pos:end].decode("latin-1")
        self.pos = end + 1
        return text


def read_catalogue(data):
    """Parses catalogue bytes like the device's loader: header, count, then count records."""
    reader = FieldReader(data)
    reader.field(b"\n")
    count = wtol(reader.field(b"\n"))
    entries = []
    for _ in range(count):
        fields = [reader.field(b";") for _ in range(10)] + [reader.field(b"\n")]
        entries.append(CatalogueEntry(fields[0], *fields[1:6], tuple(fields[6:])))
    return entries

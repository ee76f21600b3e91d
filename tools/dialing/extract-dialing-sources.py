#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the dialing-code snapshot the test suite checks the international table against.

For every row of the international table, mapped to an ISO country code by countries.tsv, it takes
the country calling code from the npm package countries-list (pinned in package.json) and the
standard offset from GMT of the country's capital from Debian's tzdata (read through Python's
zoneinfo). Run `npm ci` in this folder first, or use
update-snapshot.sh, which does both.

Usage: /usr/bin/python3 extract-dialing-sources.py [OUTPUT]
(default: tests/reference/dialing-sources.tsv of the repository)
"""

import json
import sys
from datetime import datetime, timedelta, timezone
from pathlib import Path
from zoneinfo import ZoneInfo

HERE = Path(__file__).resolve().parent
REPO = HERE.parent.parent
DEFAULT_OUTPUT = REPO / "tests" / "reference" / "dialing-sources.tsv"
PACKAGE = HERE / "node_modules" / "countries-list"
ROWS_FILE = HERE / "countries.tsv"
TABLE_FILE = REPO / "src" / "reference" / "international-codes.tsv"
ZONEINFO = Path("/usr/share/zoneinfo")
REFERENCE_YEAR = 2025
NO_OFFSET = "+x"

# The capital's zone of every country that tzdata splits into several zones (a country tzdata keeps
# in one zone needs no entry). Antarctica has no capital and no single time: its row gets NO_OFFSET.
CAPITAL_ZONES = {
    "AQ": None, "AR": "America/Argentina/Buenos_Aires", "AU": "Australia/Sydney", "BR": "America/Sao_Paulo",
    "CA": "America/Toronto", "CD": "Africa/Kinshasa", "CL": "America/Santiago", "CN": "Asia/Shanghai",
    "CY": "Asia/Nicosia", "DE": "Europe/Berlin", "EC": "America/Guayaquil", "ES": "Europe/Madrid",
    "FM": "Pacific/Pohnpei", "GL": "America/Nuuk", "ID": "Asia/Jakarta", "KI": "Pacific/Tarawa",
    "KZ": "Asia/Almaty", "MH": "Pacific/Majuro", "MN": "Asia/Ulaanbaatar", "MX": "America/Mexico_City",
    "MY": "Asia/Kuala_Lumpur", "NZ": "Pacific/Auckland", "PF": "Pacific/Tahiti", "PG": "Pacific/Port_Moresby",
    "PS": "Asia/Hebron", "PT": "Europe/Lisbon", "UA": "Europe/Kyiv", "US": "America/New_York",
    "UZ": "Asia/Tashkent",
}


def fail(message):
    sys.exit(f"extract-dialing-sources: {message}")


def read_json(path):
    try:
        return json.loads(path.read_text(encoding="utf-8"))
    except (OSError, ValueError) as error:
        fail(f"cannot read {path} ({error}); run `npm ci` in {HERE}")


def read_rows():
    """The rows of countries.tsv (country, ISO code, and for a place of its own that place and its zone),
    which must name the international table's countries in its order."""
    lines = ROWS_FILE.read_text(encoding="utf-8").splitlines()
    rows = [tuple(line.split("\t")) for line in lines if line and not line.startswith("#")]
    table = [line.split("\t")[0].rstrip() for line in TABLE_FILE.read_text(encoding="utf-8").splitlines()]
    if [row[0] for row in rows] != table:
        fail(f"{ROWS_FILE.name} does not list the countries of {TABLE_FILE.name} in its order")
    return rows


def tzdata_version():
    first = (ZONEINFO / "tzdata.zi").read_text(encoding="utf-8").splitlines()[0]
    return first.removeprefix("# version ").strip()


def zones_by_country():
    zones = {}
    for line in (ZONEINFO / "zone.tab").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            fields = line.split("\t")
            zones.setdefault(fields[0], []).append(fields[2])
    return zones


def calling_code(entry):
    """The first calling code of a countries-list entry, in the table's style: a four-digit value is
    a shared country code followed by an area code ("1 268", "599 9")."""
    text = str(entry["phone"][0])
    if len(text) == 4:
        cut = 1 if text.startswith("1") else 3
        return f"{text[:cut]} {text[cut:]}"
    return text


def standard_offset(zone_name):
    """The zone's standard offset over the reference year: the UTC offset less daylight saving.
    Where tzdata writes a negative saving (Ireland, Morocco), the offset during that saving is the
    standard one, as tzdata's rearguard form writes it."""
    zone = ZoneInfo(zone_name)
    start = datetime(REFERENCE_YEAR, 1, 1, 12, tzinfo=timezone.utc)
    samples = [(start + timedelta(days=d)).astimezone(zone) for d in range(365)]
    negative = [s.utcoffset() for s in samples if s.dst() < timedelta(0)]
    offsets = set(negative) if negative else {s.utcoffset() - s.dst() for s in samples}
    if len(offsets) != 1:
        fail(f"{zone_name} has no single standard offset in {REFERENCE_YEAR}: {sorted(offsets)}")
    return offsets.pop()


def offset_text(offset):
    """Hours in the table's style: "0", "+1", "-4", "+5.5", "+5.75", "+12.75"."""
    minutes = int(offset.total_seconds()) // 60
    if minutes == 0:
        return "0"
    return f"{minutes / 60:+g}"


def capital_zone(iso, zones):
    listed = zones.get(iso, [])
    if iso in CAPITAL_ZONES:
        chosen = CAPITAL_ZONES[iso]
        if chosen is not None and chosen not in listed:
            fail(f"{chosen} is not a zone of {iso} in zone.tab")
        return chosen
    if len(listed) != 1:
        fail(f"{iso} has zones {listed}: name its capital's zone in CAPITAL_ZONES")
    return listed[0]


def snapshot_row(number, row, countries, zones):
    country, iso, *place = row
    entry = countries.get(iso) or fail(f"countries-list has no entry {iso} for {country}")
    capital, zone = place if place else (entry["capital"], capital_zone(iso, zones))
    gmt = offset_text(standard_offset(zone)) if zone else NO_OFFSET
    return [str(number), country, iso, calling_code(entry), capital or "-", zone or "-", gmt]


def main():
    output = Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_OUTPUT
    countries = read_json(PACKAGE / "countries.min.json")
    version = read_json(PACKAGE / "package.json")["version"]
    zones = zones_by_country()
    rows = read_rows()
    lines = [
        "# Sources of the international dialing table, written by tools/dialing/extract-dialing-sources.py.",
        f"# code: first calling code of the ISO entry in npm countries-list {version} (MIT).",
        f"# gmt: standard offset over {REFERENCE_YEAR} of the capital's zone, Debian tzdata {tzdata_version()}"
        " through Python zoneinfo.",
        "row\tcountry\tiso\tcode\tcapital\tzone\tgmt",
    ]
    for number, row in enumerate(rows):
        lines.append("\t".join(snapshot_row(number, row, countries, zones)))
    output.write_text("\n".join(lines) + "\n", encoding="utf-8")
    print(f"wrote {len(rows)} rows to {output}")


if __name__ == "__main__":
    main()

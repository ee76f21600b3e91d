#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the dialing-code snapshot the test suite checks the international table against.

For every row of the international table it takes the country calling code from the npm package
countries-list (pinned in package.json) and the standard offset from GMT of the country's capital
from Debian's tzdata (read through Python's zoneinfo). Run `npm ci` in this folder first, or use
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
ZONEINFO = Path("/usr/share/zoneinfo")
REFERENCE_YEAR = 2025
NO_OFFSET = "+x"

# The international rows in table order: country text (without trailing blanks), the ISO 3166-1
# alpha-2 code whose calling code the source gives, and, for a row that is a place of its own
# rather than the country's capital, that place and its tz zone.
ROWS = [
    ("Afghanistan", "AF"), ("Albania", "AL"), ("Algeria", "DZ"), ("American Samoa", "AS"),
    ("Andorra", "AD"), ("Angola", "AO"), ("Anguilla", "AI"), ("Antarctica", "AQ"),
    ("Antigua and Barbuda", "AG"), ("Argentina", "AR"), ("Armenia", "AM"), ("Aruba", "AW"),
    ("Ascension", "AC", "Georgetown", "Atlantic/St_Helena"), ("Australia", "AU"), ("Austria", "AT"),
    ("Azerbaijan", "AZ"), ("Bahamas", "BS"), ("Bahrain", "BH"), ("Bangladesh", "BD"), ("Barbados", "BB"),
    ("Belarus", "BY"), ("Belgium", "BE"), ("Belize", "BZ"), ("Benin", "BJ"), ("Bermuda", "BM"),
    ("Bhutan", "BT"), ("Bolivia", "BO"), ("Bosnia and Herzegovina", "BA"), ("Botswana", "BW"),
    ("Brazil", "BR"), ("British Virgin Islands", "VG"), ("Brunei", "BN"), ("Bulgaria", "BG"),
    ("Burkina Faso", "BF"), ("Burundi", "BI"), ("Cambodia", "KH"), ("Cameroon", "CM"), ("Canada", "CA"),
    ("Cape Verde Islands", "CV"), ("Cayman Islands", "KY"), ("Central African Republic", "CF"),
    ("Chad", "TD"), ("Chatham Island (New Zealand)", "NZ", "Waitangi", "Pacific/Chatham"), ("Chile", "CL"),
    ("China", "CN"), ("Christmas Island", "CX"), ("Cocos Islands", "CC"), ("Colombia", "CO"),
    ("Comoros", "KM"), ("Congo", "CG"), ("Cook Islands", "CK"), ("Costa Rica", "CR"), ("Croatia", "HR"),
    ("Cuba", "CU"), ("Cyprus", "CY"), ("Czech Republic", "CZ"), ("Denmark", "DK"), ("Diego Garcia", "IO"),
    ("Djibouti", "DJ"), ("Dominica", "DM"), ("Dominican Republic", "DO"),
    ("Easter Island", "CL", "Hanga Roa", "Pacific/Easter"), ("Ecuador", "EC"), ("Egypt", "EG"),
    ("ElSalvador", "SV"), ("Equatorial Guinea", "GQ"), ("Eritrea", "ER"), ("Estonia", "EE"),
    ("Ethiopia", "ET"), ("Falkland Islands", "FK"), ("Faroe Islands", "FO"), ("Fiji", "FJ"),
    ("Finland", "FI"), ("France", "FR"), ("French Antilles", "GP"), ("French Guyana", "GF"),
    ("French Polynesia", "PF"), ("Fyrom (Macedonia)", "MK"), ("Gabon", "GA"), ("Gambia", "GM"),
    ("Georgia", "GE"), ("Germany", "DE"), ("Ghana", "GH"), ("Gibraltar", "GI"), ("Greece", "GR"),
    ("Greenland", "GL"), ("Grenada and Carriacuou", "GD"), ("Grenadin Islands", "VC"), ("Guadeloupe", "GP"),
    ("Guam", "GU"), ("Guantanamo Bay", "CU", "Guantanamo Bay Naval Base", "America/Havana"),
    ("Guatemala", "GT"), ("Guiana", "GF"), ("Guinea", "GN"), ("Guinea-Bissau", "GW"), ("Guyana", "GY"),
    ("Haiti", "HT"), ("Honduras", "HN"), ("Hong Kong", "HK"), ("Hungary", "HU"), ("Iceland", "IS"),
    ("India", "IN"), ("Indonesia C.", "ID"), ("Iran", "IR"), ("Iraq", "IQ"), ("Ireland", "IE"),
    ("Israel", "IL"), ("Italy", "IT"), ("Ivory Coast", "CI"), ("Jamaica", "JM"), ("Japan", "JP"),
    ("Jordan", "JO"), ("Kazakhstan", "KZ"), ("Kenya", "KE"), ("Kiribati", "KI"), ("South Korea", "KR"),
    ("Kuwait", "KW"), ("Kygyzstan", "KG"), ("Laos", "LA"), ("Latvia", "LV"), ("Lebanon", "LB"),
    ("Lesotho", "LS"), ("Liberia", "LR"), ("Libya", "LY"), ("Liechtenstein", "LI"), ("Lithuania", "LT"),
    ("Luxembourg", "LU"), ("Macau", "MO"), ("Macedonia, Federal Republic of", "MK"), ("Madagascar", "MG"),
    ("Malawi", "MW"), ("Malaysia", "MY"), ("Maldives", "MV"), ("Mali", "ML"), ("Malta", "MT"),
    ("Mariana Islands", "MP"), ("Marshall Islands", "MH"), ("Martinique", "MQ"), ("Mauritania", "MR"),
    ("Mauritius", "MU"), ("Mayotte", "YT"), ("Mexico C.", "MX"), ("Micronesia, Federated States", "FM"),
    ("Midway Islands", "UM", "Midway Atoll", "Pacific/Midway"), ("Miquelon", "PM"), ("Moldova", "MD"),
    ("Monaco", "MC"), ("Mongolia", "MN"), ("Montserrat", "MS"), ("Morocco", "MA"), ("Mozambique", "MZ"),
    ("Myanmar", "MM"), ("Namibia", "NA"), ("Nauru", "NR"), ("Nepal", "NP"), ("Netherlands", "NL"),
    ("Neth. Antilles", "CW"), ("Nevis", "KN"), ("New Caledonia", "NC"), ("New Zealand", "NZ"),
    ("Nicaragua", "NI"), ("Niger", "NE"), ("Nigeria", "NG"), ("Niue", "NU"), ("Norfolk Island", "NF"),
    ("North Korea", "KP"), ("Norway", "NO"), ("Oman", "OM"), ("Pakistan", "PK"), ("Palau", "PW"),
    ("Palestinian Territories", "PS"), ("Panama", "PA"), ("Papua New Guinea", "PG"), ("Paraguay", "PY"),
    ("Peru", "PE"), ("Philippines", "PH"), ("Poland", "PL"), ("Portugal", "PT"), ("Principe", "ST"),
    ("Puerto Rico", "PR"), ("Qatar", "QA"), ("Reunion Island", "RE"), ("Romania", "RO"), ("St. Helena", "SH"),
    ("St. Kitts", "KN"), ("St. Lucia", "LC"), ("St Pierre et Miquelon", "PM"), ("St. Vincent", "VC"),
    ("Saipan", "MP"), ("San Marino", "SM"), ("Sao Tome", "ST"), ("Saudi Arabia", "SA"),
    ("Senegal Republic", "SN"), ("Serbia, Republic of", "RS"), ("Seychelles", "SC"), ("Sierra Leone", "SL"),
    ("Singapore", "SG"), ("Slovakia", "SK"), ("Slovenia", "SI"), ("Solomon Islands", "SB"), ("Somalia", "SO"),
    ("South Africa", "ZA"), ("Spain", "ES"), ("Sri Lanka", "LK"), ("Sudan", "SD"), ("Suriname", "SR"),
    ("Swaziland", "SZ"), ("Sweden", "SE"), ("Switzerland", "CH"), ("Syria", "SY"), ("Taiwan", "TW"),
    ("Tajikistan", "TJ"), ("Tanzania", "TZ"), ("Thailand", "TH"), ("Togo", "TG"), ("Tokelau", "TK"),
    ("Tonga", "TO"), ("Trinidad and Tobago", "TT"), ("Tunisia", "TN"), ("Turkey", "TR"),
    ("Turkmenistan", "TM"), ("Turks and Caicos Islands", "TC"), ("Tuvalu", "TV"), ("Uganda", "UG"),
    ("Ukraine", "UA"), ("United Arab Emirates", "AE"), ("United Kingdom", "GB"), ("United States", "US"),
    ("Uruguay", "UY"), ("U.S. Virgin Islands", "VI"), ("Uzbekistan", "UZ"), ("Vanuatu", "VU"),
    ("Vatican city", "VA"), ("Venezuela", "VE"), ("Vietnam, Socialist Republic of", "VN"),
    ("Wake Island", "UM", "Wake Island", "Pacific/Wake"), ("Wallis & Futuna Islands", "WF"),
    ("Western Samoa", "WS"), ("Yemen", "YE"), ("Yugoslavia", "RS"), ("Zaire", "CD"), ("Zambia", "ZM"),
    ("Zanzibar", "TZ"), ("Zimbabwe", "ZW"),
]

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
    lines = [
        "# Sources of the international dialing table, written by tools/dialing/extract-dialing-sources.py.",
        f"# code: first calling code of the ISO entry in npm countries-list {version} (MIT).",
        f"# gmt: standard offset over {REFERENCE_YEAR} of the capital's zone, Debian tzdata {tzdata_version()}"
        " through Python zoneinfo.",
        "row\tcountry\tiso\tcode\tcapital\tzone\tgmt",
    ]
    for number, row in enumerate(ROWS):
        lines.append("\t".join(snapshot_row(number, row, countries, zones)))
    output.write_text("\n".join(lines) + "\n", encoding="utf-8")
    print(f"wrote {len(ROWS)} rows to {output}")


if __name__ == "__main__":
    main()

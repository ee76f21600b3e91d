"""Short common country names, keyed by ISO 3166 alpha-2 code, and the list of sovereign states."""

import json

from . import paths
from .text import to_ascii

# Where the ISO short name is long or formal, the name people use. Kosovo (XK) has no ISO code.
COMMON_NAMES = {
    "AX": "Aland Islands", "BL": "Saint Barthelemy", "BN": "Brunei", "BQ": "Caribbean Netherlands",
    "CC": "Cocos Islands", "CD": "DR Congo", "CI": "Ivory Coast", "CV": "Cape Verde", "CW": "Curacao",
    "FK": "Falkland Islands", "FM": "Micronesia", "HM": "Heard and McDonald Islands",
    "IO": "British Indian Ocean Territory", "MF": "Saint Martin", "MO": "Macau", "PS": "Palestine",
    "RE": "Reunion", "RU": "Russia", "SH": "Saint Helena", "SJ": "Svalbard", "SX": "Sint Maarten",
    "TR": "Turkey", "UM": "US Minor Outlying Islands", "VA": "Vatican City",
    "VG": "British Virgin Islands", "VI": "US Virgin Islands", "XK": "Kosovo",
    "GS": "South Georgia", "PN": "Pitcairn Islands",
}

# The 193 member states of the United Nations, the two observer states, Kosovo and Taiwan.
SOVEREIGN = set("""
AF AL DZ AD AO AG AR AM AU AT AZ BS BH BD BB BY BE BZ BJ BT BO BA BW BR BN BG BF BI CV KH CM CA CF
TD CL CN CO KM CG CD CR CI HR CU CY CZ DK DJ DM DO EC EG SV GQ ER EE SZ ET FJ FI FR GA GM GE DE GH
GR GD GT GN GW GY HT HN HU IS IN ID IR IQ IE IL IT JM JP JO KZ KE KI KP KR KW KG LA LV LB LS LR LY
LI LT LU MG MW MY MV ML MT MH MR MU MX FM MD MC MN ME MA MZ MM NA NR NP NL NZ NI NE NG MK NO OM PK
PW PA PG PY PE PH PL PT QA RO RU RW KN LC VC WS SM ST SA SN RS SC SL SG SK SI SB SO ZA SS ES LK SD
SR SE CH SY TJ TZ TH TL TG TO TT TN TR TM TV UG UA AE GB US UY UZ VU VE VN YE ZM ZW
VA PS XK TW
""".split())


def load_country_names():
    """Returns {alpha-2: short ASCII name} for every ISO 3166-1 country plus Kosovo."""
    with open(paths.ISO_CODES_DIR / "iso_3166-1.json", encoding="utf-8") as f:
        entries = json.load(f)["3166-1"]
    names = {e["alpha_2"]: to_ascii(e.get("common_name", e["name"])) for e in entries}
    names.update(COMMON_NAMES)
    for code, name in names.items():
        if any(ch in name for ch in ";:/>,()") or not name.isascii():
            raise ValueError(f"country name {name!r} of {code} is not a clean short name")
    return names

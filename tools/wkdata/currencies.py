"""The currency list: ISO 4217 codes with short common names and their value in US dollars."""

import json
from decimal import Decimal, localcontext

from . import paths
from .text import latin1_casefold_key, to_ascii

# Codes that iso-codes lists but a traveller cannot use: an index unit, the IMF's drawing right, the
# digital twin of the bolivar, and currencies already withdrawn (kuna, convertible peso, old leone,
# Zimbabwe and Netherlands Antillean dollars).
LEFT_OUT = {"MXV", "XDR", "VED", "HRK", "CUC", "SLL", "ZWL", "ANG"}

# Currencies beyond the iso-codes release, with their names.
ADDED = {
    # ISO codes issued since that release.
    "XCG": "Caribbean Guilder", "ZWG": "Zimbabwe Gold",
    # Local issues of the pound and the Tuvaluan coins, and the offshore yuan of Hong Kong.
    "GGP": "Guernsey Pound", "IMP": "Manx Pound", "JEP": "Jersey Pound", "TVD": "Tuvaluan Dollar",
    "CNH": "Chinese Offshore Yuan",
    # The euro area's former currencies, which still convert at their fixed rates.
    "ATS": "Austrian Schilling", "BEF": "Belgian Franc", "CYP": "Cypriot Pound", "DEM": "German Mark",
    "EEK": "Estonian Kroon", "ESP": "Spanish Peseta", "FIM": "Finnish Markka", "FRF": "French Franc",
    "GRD": "Greek Drachma", "IEP": "Irish Pound", "ITL": "Italian Lira", "LTL": "Lithuanian Litas",
    "LUF": "Luxembourg Franc", "LVL": "Latvian Lats", "MTL": "Maltese Lira", "NLG": "Dutch Guilder",
    "PTE": "Portuguese Escudo", "SIT": "Slovenian Tolar", "SKK": "Slovak Koruna",
    # Well-known cryptocurrencies with three-letter codes.
    "BTC": "Bitcoin", "BCH": "Bitcoin Cash", "BNB": "Binance Coin", "ADA": "Cardano", "ETH": "Ether",
    "XRP": "XRP",
}

# The names people use where the ISO name is a bare unit or an official form.
COMMON_NAMES = {
    "AED": "Emirati Dirham", "AFN": "Afghan Afghani", "ALL": "Albanian Lek", "AOA": "Angolan Kwanza", "AZN": "Azerbaijani Manat",
    "BAM": "Bosnian Convertible Mark", "BBD": "Barbadian Dollar", "BDT": "Bangladeshi Taka",
    "BIF": "Burundian Franc", "BOB": "Bolivian Boliviano", "BTN": "Bhutanese Ngultrum",
    "BWP": "Botswana Pula", "CNY": "Chinese Yuan", "CVE": "Cape Verdean Escudo",
    "DJF": "Djiboutian Franc", "ERN": "Eritrean Nakfa", "FJD": "Fijian Dollar", "GBP": "British Pound",
    "GEL": "Georgian Lari", "GHS": "Ghanaian Cedi", "GMD": "Gambian Dalasi", "GTQ": "Guatemalan Quetzal",
    "GYD": "Guyanese Dollar", "HNL": "Honduran Lempira", "HTG": "Haitian Gourde", "HUF": "Hungarian Forint",
    "IDR": "Indonesian Rupiah", "ILS": "Israeli Shekel", "ISK": "Icelandic Krona", "JPY": "Japanese Yen",
    "KGS": "Kyrgyzstani Som", "KHR": "Cambodian Riel", "KRW": "South Korean Won",
    "KZT": "Kazakhstani Tenge", "LSL": "Lesotho Loti", "MKD": "Macedonian Denar", "MMK": "Myanmar Kyat",
    "MNT": "Mongolian Tugrik", "MOP": "Macanese Pataca", "MRU": "Mauritanian Ouguiya",
    "MUR": "Mauritian Rupee", "MVR": "Maldivian Rufiyaa", "MWK": "Malawian Kwacha",
    "MZN": "Mozambican Metical", "NAD": "Namibian Dollar", "NGN": "Nigerian Naira",
    "NIO": "Nicaraguan Cordoba", "OMR": "Omani Rial", "PAB": "Panamanian Balboa", "PEN": "Peruvian Sol",
    "PGK": "Papua New Guinean Kina", "PKR": "Pakistani Rupee", "PLN": "Polish Zloty",
    "PYG": "Paraguayan Guarani", "RWF": "Rwandan Franc", "SLE": "Sierra Leonean Leone",
    "SRD": "Surinamese Dollar", "STN": "Sao Tome Dobra", "SVC": "Salvadoran Colon",
    "SZL": "Eswatini Lilangeni", "THB": "Thai Baht", "TJS": "Tajikistani Somoni", "TMT": "Turkmen Manat",
    "TOP": "Tongan Paanga", "UAH": "Ukrainian Hryvnia", "UGX": "Ugandan Shilling",
    "UYU": "Uruguayan Peso", "UZS": "Uzbekistani Som", "VES": "Bolivar Soberano",
    "VND": "Vietnamese Dong", "VUV": "Vanuatu Vatu", "WST": "Samoan Tala", "XAF": "Central African CFA Franc",
    "XOF": "West African CFA Franc", "ZAR": "South African Rand",
    "LKR": "Sri Lankan Rupee", "LAK": "Lao Kip", "ZMW": "Zambian Kwacha", "SBD": "Solomon Islands Dollar",
}

COUNT = 189
# Positions of the converter's three default currencies in the store's name order.
DEFAULT_POSITIONS = {"EUR": 61, "USD": 180, "GBP": 27}


def load_iso_names():
    with open(paths.ISO_CODES_DIR / "iso_4217.json", encoding="utf-8") as f:
        return {e["alpha_3"]: e["name"] for e in json.load(f)["4217"]}


def load_usd_snapshot(path=paths.CURRENCY_SNAPSHOT):
    """(date, {CODE: units per US dollar}) of the pinned snapshot."""
    with open(path, encoding="utf-8") as f:
        data = json.load(f)
    return data["date"], {code.upper(): value for code, value in data["usd"].items()}


def rate_text(units_per_usd):
    """Value of one unit in US dollars, as plain decimal text with 6 significant digits."""
    with localcontext() as ctx:
        ctx.prec = 6
        value = Decimal(1) / Decimal(repr(units_per_usd))
    text = format(value, "f")
    return text.rstrip("0").rstrip(".") if "." in text else text


def build_currencies(iso_names, per_usd):
    """[(code, name, rate text)] of the shipped currencies, in the store's name order."""
    names = {c: n for c, n in iso_names.items() if c not in LEFT_OUT and c in per_usd}
    names.update(ADDED)
    names.update((c, COMMON_NAMES[c]) for c in names.keys() & COMMON_NAMES.keys())
    rows = sorted(((c, to_ascii(n), rate_text(per_usd[c])) for c, n in names.items()),
                  key=lambda r: (latin1_casefold_key(r[1]), r[0]))
    problems = check_currencies(rows)
    if problems:
        raise ValueError("; ".join(problems))
    return rows


def check_currencies(rows):
    """What is wrong with a currency list, as messages (empty when it suits the device)."""
    problems = []
    if len(rows) != COUNT:
        problems.append(f"{len(rows)} currencies instead of {COUNT}")
    folded = [n.lower() for _, n, _ in rows]
    if len(set(folded)) != len(folded):
        problems.append("names repeat when case is ignored")
    for code, name, rate in rows:
        if any(ch in code + name + rate for ch in "_#\n") or not (code + name + rate).isascii():
            problems.append(f"{code} holds a separator or a non-ASCII character")
        if not rate or float(rate) <= 0 or "e" in rate.lower():
            problems.append(f"{code} has no plain positive rate")
    codes = [c for c, _, _ in rows]
    for code, position in DEFAULT_POSITIONS.items():
        if code not in codes or codes.index(code) != position:
            found = codes.index(code) if code in codes else None
            problems.append(f"{code} is at position {found} instead of {position}")
    return problems


def currency_file_bytes(rows):
    """The currency file: the count line, then the records end to end with nothing between them."""
    records = "".join(f"{code}_{name}_{rate}#" for code, name, rate in rows)
    return f"{len(rows)}\n{records}".encode("ascii")

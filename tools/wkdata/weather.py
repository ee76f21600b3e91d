"""Weather files: one city list per country, the initial favourites and the forecast icon mapping.

Location codes are GeoNames ids, which forecast services resolve to a place and its coordinates.
"""

from collections import defaultdict

from .selection import notable_towns

# Cities offered per country in the favourites dialog: the catalogue's, then the most populous
# other towns that are not suburbs of a larger one.
CITIES_PER_COUNTRY = 30
MIN_POPULATION = 15000

# Initial favourites, the default world clocks first.
FAVOURITES = [
    ("New York", "US"), ("Paris", "FR"), ("London", "GB"), ("Tokyo", "JP"), ("Sydney", "AU"),
    ("Berlin", "DE"), ("Rome", "IT"), ("Madrid", "ES"), ("Moscow", "RU"), ("Beijing", "CN"),
    ("Dubai", "AE"), ("Singapore", "SG"), ("Hong Kong", "HK"), ("Los Angeles", "US"),
    ("Rio de Janeiro", "BR"),
]

# Forecast icons for the WMO weather interpretation codes that forecast services report, written
# as two digits so that no code can be found inside another entry's codes.
ICON_CODES = [
    ("sunny", [0]), ("fair", [1]), ("partcloud", [2]), ("cloudy", [3]), ("fog", [45, 48]),
    ("drizzle", [51, 53, 55]), ("sleet", [56, 57, 66, 67]), ("rain", [61, 63, 65]),
    ("snow", [71, 73, 75, 77]), ("showers", [80, 81, 82]), ("snowshowers", [85, 86]),
    ("thunder", [95]), ("hail", [96, 99]),
]
NO_FORECAST_ICON = "na"


def order_for_lookup(names):
    """Alphabetical order, except that a name found inside another comes before it, since the
    favourites dialog finds the chosen city by searching the file text for its name."""
    ordered = []
    for name in sorted(names):
        index = next((i for i, other in enumerate(ordered) if name in other), len(ordered))
        ordered.insert(index, name)
    return ordered


def country_lists(catalogue, cities, country_names):
    """{country: [(city, code)]}: each country's catalogue cities plus its most populous towns."""
    towns = notable_towns(cities, country_names, MIN_POPULATION).values()
    lists = defaultdict(dict)
    for city in catalogue:
        lists[country_names[city.country_code]][city.name] = city.geoname_id
    for city in sorted(towns, key=lambda c: (-c.population, c.geoname_id)):
        country = country_names[city.country_code]
        if country in lists and len(lists[country]) < CITIES_PER_COUNTRY:
            lists[country].setdefault(city.name, city.geoname_id)
    return {country: [(name, str(codes[name])) for name in order_for_lookup(codes)]
            for country, codes in lists.items()}


def country_list_bytes(cities):
    return "".join(f"{name};{code}\n" for name, code in cities).encode("ascii") + b">\n"


def favourites_bytes(catalogue, country_names):
    """The favourites file: count, then "country file;city;location code" lines."""
    by_place = {(c.name, c.country_code): c for c in catalogue}
    lines = [f"{country_names[cc]};{name};{by_place[(name, cc)].geoname_id}" for name, cc in FAVOURITES]
    return "\n".join([str(len(lines))] + lines + [""]).encode("ascii")


def mapping_bytes():
    """The icon mapping: one "name@code,code" word per icon, ended by a word holding ">"."""
    words = [f"{name}@{','.join(f'{code:02d}' for code in codes)}" for name, codes in ICON_CODES]
    return ("\n".join(words + [">"]) + "\n").encode("ascii")


def icon_for_code(mapping_text, code):
    """The icon name the weather screen picks: the first entry containing the code, else "na"."""
    if code in ("N/A", "-"):
        return NO_FORECAST_ICON
    for entry in mapping_text.split(";"):
        if code in entry:
            return entry.split("@")[0]
    return NO_FORECAST_ICON

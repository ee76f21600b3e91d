"""Chooses the catalogue's cities: every capital, well-known destinations, a city for every kind of
time zone that a large city uses, and the largest cities, shaped so that the default world clocks
land on London, New York, Paris and Tokyo."""

import math
from collections import defaultdict

from .zonerule import derive_rule

# Positions of the default clocks in the catalogue's order (ascending bytes of "city:country").
ANCHORS = (("London", "GB", 565), ("New York", "US", 684), ("Paris", "FR", 756), ("Tokyo", "JP", 988))
CATALOGUE_SIZE = 1090

# Each further city of a country weighs this much less than the one before it, so that the
# catalogue spreads over the world instead of listing every large city of the largest countries.
COUNTRY_DECAY = 0.9

# Towns chosen to fill up the catalogue have at least this many people, and are not suburbs: a
# town this close to a more populous one is taken as part of it.
MIN_POPULATION = 50000
SUBURB_RADIUS_KM = 20.0

# Every kind of zone (standard offset, with or without daylight saving) that a city of at least this
# many people uses gets its most populous such city, so that each offset can be picked in the clocks.
ZONE_KIND_POPULATION = 100000

# Destinations that travellers look for even where they are not among the largest cities.
DESTINATIONS = [
    ("Agra", "IN"), ("Amsterdam", "NL"), ("Anchorage", "US"), ("Antalya", "TR"), ("Athens", "GR"),
    ("Auckland", "NZ"), ("Barcelona", "ES"), ("Bergen", "NO"), ("Bordeaux", "FR"),
    ("Boston", "US"), ("Bruges", "BE"), ("Cairns", "AU"), ("Cancun", "MX"), ("Cape Town", "ZA"),
    ("Chiang Mai", "TH"), ("Chicago", "US"), ("Cusco", "PE"), ("Darwin", "AU"), ("Denpasar", "ID"), ("Dubai", "AE"),
    ("Dubrovnik", "HR"), ("Edinburgh", "GB"), ("Florence", "IT"), ("Geneva", "CH"), ("Granada", "ES"),
    ("Hamburg", "DE"), ("Hobart", "AU"), ("Honolulu", "US"), ("Innsbruck", "AT"), ("Istanbul", "TR"),
    ("Jerusalem", "IL"), ("Kyoto", "JP"), ("Krakow", "PL"), ("Las Vegas", "US"), ("Los Angeles", "US"),
    ("Luxor", "EG"), ("Lyon", "FR"), ("Malaga", "ES"), ("Marrakesh", "MA"), ("Mecca", "SA"),
    ("Miami", "US"), ("Milan", "IT"), ("Montreal", "CA"), ("Munich", "DE"), ("Naples", "IT"),
    ("New Orleans", "US"), ("New York", "US"), ("Nice", "FR"), ("Orlando", "US"), ("Osaka", "JP"),
    ("Palma", "ES"), ("Perth", "AU"), ("Phuket", "TH"), ("Porto", "PT"), ("Queenstown", "NZ"),
    ("Rio de Janeiro", "BR"), ("Saint Petersburg", "RU"), ("Salzburg", "AT"), ("San Francisco", "US"),
    ("Seattle", "US"), ("Seville", "ES"), ("Siem Reap", "KH"), ("Split", "HR"), ("St. John's", "CA"),
    ("Sydney", "AU"),
    ("Toronto", "CA"), ("Valencia", "ES"), ("Vancouver", "CA"), ("Venice", "IT"), ("Zanzibar", "TZ"),
    ("Zurich", "CH"),
]


def catalogue_key(name, country):
    """The text the catalogue sorts on."""
    return f"{name}:{country}"


def _unique_by_key(cities, country_names):
    """The most populous city of each "city:country" text (the device keeps only one of each)."""
    best = {}
    for city in sorted(cities, key=lambda c: (-c.population, c.geoname_id)):
        best.setdefault(catalogue_key(city.name, country_names[city.country_code]), city)
    return best


def distance_km(a, b):
    """Great-circle distance between two cities."""
    p1, p2 = math.radians(a.lat), math.radians(b.lat)
    h = math.sin((p2 - p1) / 2) ** 2 + math.cos(p1) * math.cos(p2) * math.sin(math.radians(b.lon - a.lon) / 2) ** 2
    return 2 * 6371.0 * math.asin(math.sqrt(h))


def suburbs(cities):
    """Keys of the cities that lie within SUBURB_RADIUS_KM of a more populous one."""
    grid = defaultdict(list)
    for city in cities.values():
        grid[(math.floor(city.lat), math.floor(city.lon))].append(city)
    found = set()
    for key, city in cities.items():
        row, col = math.floor(city.lat), math.floor(city.lon)
        near = (o for dr in (-1, 0, 1) for dc in (-1, 0, 1) for o in grid[(row + dr, (col + dc + 180) % 360 - 180)])
        if any(o.population > city.population and distance_km(city, o) < SUBURB_RADIUS_KM for o in near):
            found.add(key)
    return found


def notable_towns(cities, country_names, min_population):
    """{key: city} of the towns with at least min_population people that are not suburbs."""
    by_key = _unique_by_key(cities, country_names)
    towns = {k: c for k, c in by_key.items() if c.population >= min_population}
    return {k: towns[k] for k in towns.keys() - suburbs(towns)}


def zone_kind(zone):
    """The standard offset in minutes of an IANA zone, and whether it has a daylight-saving shift."""
    rule = derive_rule(zone)
    return rule.standard_minutes, rule.shift_hours != 0


def zone_kind_leaders(by_key, kind_of=zone_kind):
    """Keys of the most populous city of each zone kind used by a city of ZONE_KIND_POPULATION or more."""
    leaders = {}
    for key, city in sorted(by_key.items(), key=lambda kv: (-kv[1].population, kv[1].geoname_id)):
        if city.population >= ZONE_KIND_POPULATION:
            leaders.setdefault(kind_of(city.zone), key)
    return set(leaders.values())


def _weights(by_key):
    """Population weighed down by the city's rank within its own country."""
    rank, weights = defaultdict(int), {}
    for key, city in sorted(by_key.items(), key=lambda kv: (-kv[1].population, kv[1].geoname_id)):
        weights[key] = city.population * COUNTRY_DECAY ** rank[city.country_code]
        rank[city.country_code] += 1
    return weights


def _segment(key, bounds):
    """Index of the stretch between anchor keys that holds key (None for an anchor itself)."""
    if key in bounds:
        return None
    return sum(key > b for b in bounds)


def select_cities(cities, country_names, size=CATALOGUE_SIZE, kind_of=zone_kind):
    """The catalogue's cities as {key: city}, with each anchor city at its fixed position.

    The required cities (capitals, destinations, zone-kind leaders) come first in each stretch
    between two anchors; the rest of its fixed quota goes to the heaviest towns, so that adding a
    required city drops a lighter one from the same stretch and no anchor moves."""
    by_key = _unique_by_key(cities, country_names)
    bounds = [catalogue_key(name, country_names[cc]) for name, cc, _ in ANCHORS]
    quotas = [b - a - 1 for a, b in zip([-1] + [p for *_, p in ANCHORS], [p for *_, p in ANCHORS] + [size])]
    wanted = {catalogue_key(n, country_names[cc]) for n, cc in DESTINATIONS} | {
        k for k, c in by_key.items() if c.is_capital} | zone_kind_leaders(by_key, kind_of)
    missing = wanted - by_key.keys()
    if missing:
        raise ValueError(f"cities not found in the source: {sorted(missing)}")
    weights = _weights(by_key)
    eligible = notable_towns(cities, country_names, MIN_POPULATION).keys() | wanted
    chosen = {b: by_key[b] for b in bounds}
    for index, quota in enumerate(quotas):
        pool = [k for k in eligible if _segment(k, bounds) == index]
        pool.sort(key=lambda k: (k not in wanted, -weights[k], k))
        if sum(k in wanted for k in pool) > quota:
            raise ValueError(f"more required cities than places between anchors {index - 1} and {index}")
        chosen.update((k, by_key[k]) for k in pool[:quota])
    return chosen

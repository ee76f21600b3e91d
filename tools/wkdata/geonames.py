"""Reads the GeoNames cities500 dump into plain city records with ASCII display names."""

from dataclasses import dataclass

from . import paths
from .text import to_ascii

# Populated places that are towns in their own right (sections, ruins and the like are left out).
TOWN_FEATURES = {"PPL", "PPLA", "PPLA2", "PPLA3", "PPLA4", "PPLA5", "PPLC", "PPLG", "PPLL", "PPLS"}

# Boroughs that GeoNames lists beside the city that contains them, and places whose population
# figure is that of a whole district or county rather than of the town.
NOT_A_CITY = {
    5110302, 5133273, 5125771,          # Brooklyn, Queens, Manhattan
    10630176, 12165956, 1183105, 1723510, 2422488, 23814, 1642548, 1821940, 1798425, 11810635,
}

# Display names where the GeoNames name is not the one travellers use.
DISPLAY_NAMES = {
    5128581: "New York",        # New York City
    2925533: "Frankfurt",       # Frankfurt am Main
    1581130: "Hanoi",           # Ha Noi
    2886242: "Cologne",         # Koln
    2861650: "Nuremberg",       # Nurnberg
    2711537: "Gothenburg",      # Goteborg
    2660646: "Geneva",          # Geneve
    2510911: "Seville",         # Sevilla
    2800931: "Bruges",          # Brugge
    2803138: "Antwerp",         # Antwerpen
    2797656: "Ghent",           # Gent
    2624652: "Aarhus",          # Arhus
    2028462: "Ulaanbaatar",     # Ulan Bator
    501175: "Rostov-on-Don",    # Rostov-na-Donu
    520555: "Nizhny Novgorod",  # Nizhniy Novgorod
    2081986: "Palikir",         # Palikir - National Government Center
}


@dataclass(frozen=True)
class City:
    geoname_id: int
    name: str
    country_code: str
    lat: float
    lon: float
    population: int
    feature: str
    zone: str

    @property
    def is_capital(self):
        """A national capital or seat of government (GeoNames also tags a few landmarks PPLG)."""
        return self.feature == "PPLC" or (self.feature == "PPLG" and self.population >= 1000)


def display_name(geoname_id, name, ascii_name):
    """The city's ASCII name, or None when it cannot be written safely in the data files."""
    for text in (DISPLAY_NAMES.get(geoname_id), to_ascii(name), to_ascii(ascii_name)):
        if text and text[0].isalpha() and not any(ch in text for ch in ";:/>^\\"):
            return text
    return None


def parse_line(line):
    """One tab-separated GeoNames record, or None when it is not a usable town."""
    f = line.rstrip("\n").split("\t")
    geoname_id, feature, zone = int(f[0]), f[7], f[17]
    name = display_name(geoname_id, f[1], f[2])
    if feature not in TOWN_FEATURES or geoname_id in NOT_A_CITY or not zone or name is None:
        return None
    return City(geoname_id, name, f[8], float(f[4]), float(f[5]), int(f[14] or 0), feature, zone)


def load_cities(path=paths.GEONAMES_CITIES):
    """All usable towns of the dump, in file order."""
    with open(path, encoding="utf-8") as f:
        return [c for c in map(parse_line, f) if c is not None]

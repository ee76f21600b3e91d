"""Writes every file of the device root from the pinned sources.

Usage: generate.py [DEVICE_DIR]   (default: resources/device of this repository)
"""

import shutil
import sys
from pathlib import Path

from . import currencies, icons, paths, pictures, weather
from .catalogue import catalogue_bytes, make_entry
from .countries import load_country_names
from .geonames import load_cities
from .selection import select_cities
from .zonerule import YEAR, tzdata_version


def _write(path, data):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)


def _fresh_folder(path):
    """An empty folder, so that files of an earlier run that are no longer made do not linger."""
    if path.exists():
        shutil.rmtree(path)
    path.mkdir(parents=True)
    return path


def write_cities(device, towns, country_names):
    """cities.lst, the country lists, the favourites; returns the catalogue's cities."""
    chosen = list(select_cities(towns, country_names).values())
    header = (f"Wanderkit cities {YEAR}: GeoNames cities500 (CC BY 4.0), "
              f"daylight saving from IANA tzdata {tzdata_version()}")
    entries = [make_entry(city, country_names[city.country_code]) for city in chosen]
    _write(device / "cities.lst", catalogue_bytes(entries, header))
    folder = _fresh_folder(device / "weatcs")
    for country, cities in weather.country_lists(chosen, towns, country_names).items():
        _write(folder / country, weather.country_list_bytes(cities))
    _write(device / "cities.wet", weather.favourites_bytes(chosen, country_names))
    return chosen


def write_currencies(device):
    _, per_usd = currencies.load_usd_snapshot()
    rows = currencies.build_currencies(currencies.load_iso_names(), per_usd)
    _write(device / "currs.lst", currencies.currency_file_bytes(rows))


def generate(device):
    country_names = load_country_names()
    towns = load_cities()
    chosen = write_cities(device, towns, country_names)
    write_currencies(device)
    _write(device / "mapping.cfg", weather.mapping_bytes())
    icons.write_icons(_fresh_folder(device / "wiconset"))
    pictures.write_pictures(device)
    print(f"wrote {device}: {len(chosen)} cities, {currencies.COUNT} currencies, {len(icons.ICONS)} icons")


if __name__ == "__main__":
    generate(Path(sys.argv[1]) if len(sys.argv) > 1 else paths.DEVICE_DIR)

#!/usr/bin/python3
"""Compares each city's daylight-saving rule in cities.lst with tzdata, day by day through the year.

For every city and every day at 12:00 local time, the offset the rule gives (start day inside, end
day outside, dates only; a rule that ends before it starts runs into next year, and its days up to
the end day belong to last year's period) must equal the zone's real UTC offset.
Usage: check-dst.py [DEVICE_DIR]. Fails below 99.5 % agreement, or when a zone whose year fits one
shift period misses a day that is not a transition day.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from wkdata import paths  # noqa: E402
from wkdata.catalogue import read_catalogue  # noqa: E402
from wkdata.checks import dst_agreement  # noqa: E402
from wkdata.zonerule import YEAR, tzdata_version  # noqa: E402

TARGET_PERCENT = 99.5
WORST_SHOWN = 10


def _days(days):
    if len(days) <= 4:
        return ", ".join(d.isoformat() for d in days)
    return f"{days[0].isoformat()} .. {days[-1].isoformat()}"


def main(device):
    data = (device / "cities.lst").read_bytes()
    built_with = data.split(b"\n", 1)[0].decode("ascii").split()[-1]
    if built_with != tzdata_version():
        print(f"note: the catalogue was built with tzdata {built_with}, tzdata {tzdata_version()} is installed")
    results = dst_agreement(read_catalogue(data))
    total = sum(r.days for r in results)
    missed = sum(len(r.missed) for r in results)
    avoidable = sum(len(r.off_transition) for r in results if r.one_period)
    print(f"tzdata {tzdata_version()}, year {YEAR}: {len(results)} cities, {total} city-days at 12:00")
    percent = 100.0 * (total - missed) / total
    print(f"agreement {percent:.3f} %: {missed} city-days differ, "
          f"{avoidable} of them off transition days in zones that fit one shift period")
    for r in sorted((r for r in results if not r.one_period), key=lambda r: r.entry.key):
        print(f"  one period cannot express {r.changes} offset changes: {r.entry.key} ({r.entry.zone})")
    worst = sorted((r for r in results if r.missed), key=lambda r: (-len(r.missed), r.entry.key))
    print("worst cities:" if worst else "worst cities: none, every city agrees on every day")
    for r in worst[:WORST_SHOWN]:
        print(f"  {r.entry.key} ({r.entry.zone}): {len(r.missed)} days, {_days(r.missed)}")
    ok = percent >= TARGET_PERCENT and avoidable == 0
    print("PASS" if ok else "FAIL")
    return 0 if ok else 1


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]) if len(sys.argv) > 1 else paths.DEVICE_DIR))

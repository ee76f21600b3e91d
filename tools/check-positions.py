#!/usr/bin/python3
"""Sorts cities.lst and currs.lst the way the device's stores do and prints the default positions.

Cities: ascending bytes of "city:country", the first of equal keys kept. Currencies: names compared
case-insensitively, then by code. Usage: check-positions.py [DEVICE_DIR]; fails on a wrong position.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from wkdata import paths  # noqa: E402
from wkdata.checks import position_report  # noqa: E402


def main(device):
    report = position_report(device)
    for what, expected, found in report:
        print(f"{what:24s} expected {expected:4d}  found {found}  {'ok' if found == expected else 'WRONG'}")
    return 0 if all(found == expected for _, expected, found in report) else 1


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]) if len(sys.argv) > 1 else paths.DEVICE_DIR))

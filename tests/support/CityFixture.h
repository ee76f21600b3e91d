// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TempDir.h"

#include <map>
#include <string>

// A catalogue of 1,000 cities "C0000" to "C0999" of the country "Land", named by catalogue position, each on
// GMT without daylight saving unless `zones` gives it "zone;shift;start day;start hour;end day;end hour".
// The country list "\weatcs\Land" holds every city with the location code 1000 + its position.
struct CityFixture
{
    static void write(const TempDir& root, const std::map<int, std::string>& zones)
    {
        std::string cities = "Test cities\n1000\n";
        std::string country;
        for (int i = 0; i < 1000; ++i) {
            const std::string name = "C" + std::to_string(10000 + i).substr(1);
            const auto zone = zones.find(i);
            cities += "x;" + name + ";Land;2.35;48.85;"
                + (zone == zones.end() ? std::string("0;0;0;0;0;0") : zone->second) + "\n";
            country += name + ";" + std::to_string(1000 + i) + "\n";
        }
        root.write("cities.lst", cities);
        root.write("weatcs/Land", country + ">\n");
    }
};

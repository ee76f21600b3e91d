// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

// A rates file in the form the European Central Bank publishes eurofxref-daily.xml: one dated Cube of
// "currency"/"rate" Cubes, rates per 1 euro. `rates` holds (code, rate text) pairs.
inline std::string EcbFile(const std::string& date, const std::vector<std::pair<std::string, std::string>>& rates)
{
    std::string file = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<gesmes:Envelope xmlns:gesmes=\"http://www.gesmes.org/xml/2002-08-01\" "
                       "xmlns=\"http://www.ecb.int/vocabulary/2002-08-01/eurofxref\">\n"
                       "\t<gesmes:subject>Reference rates</gesmes:subject>\n"
                       "\t<gesmes:Sender>\n\t\t<gesmes:name>European Central Bank</gesmes:name>\n\t</gesmes:Sender>\n"
                       "\t<Cube>\n\t\t<Cube time='"
        + date + "'>\n";
    for (const auto& [code, rate] : rates)
        file += "\t\t\t<Cube currency='" + code + "' rate='" + rate + "'/>\n";
    return file + "\t\t</Cube>\n\t</Cube>\n</gesmes:Envelope>\n";
}

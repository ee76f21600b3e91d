// SPDX-License-Identifier: GPL-3.0-or-later
// libFuzzer target for the ECB rates reader: any bytes, read whole and as a stream, must give the same
// answer, and every rate read must be a three-letter code with a positive, finite rate.
#include "currency/EcbRatesReader.h"

#include <cmath>
#include <cstdint>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::string error;
    const auto whole = EcbRatesReader::readBytes(bytes, error);
    std::istringstream in(bytes);
    std::string streamError;
    const auto streamed = EcbRatesReader::read(in, streamError);
    if (whole != streamed || error != streamError)
        __builtin_trap();
    if (whole && (!whole->date.ok() || !error.empty()))
        __builtin_trap();
    for (const EcbRate& rate : whole ? whole->rates : std::vector<EcbRate> {}) {
        if (rate.code.size() != 3 || !(rate.perEuro > 0) || !std::isfinite(rate.perEuro))
            __builtin_trap();
    }
    return 0;
}

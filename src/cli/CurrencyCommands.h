// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit currency AMOUNT FROM [TO...]`: AMOUNT of FROM in each TO (by default the converter's three
// currencies), one "code<TAB>amount" line each, the amount as the converter's field shows it.
int RunCurrencyCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
// `wanderkit rates`: code, name and rate text of every currency in store order, then the last-update line.
// `wanderkit rates import FILE`: the ECB's daily reference rates from FILE ("-": standard input).
int RunRatesCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);
// The same, with `in` as standard input.
int RunRatesCommandWithInput(const CommandRequest& request, std::istream& in, std::ostream& out, std::ostream& err);

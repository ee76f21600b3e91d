// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandRequest.h"

#include <iosfwd>

// `wanderkit convert AMOUNT FROM TO`: prints the Measurements screen's result for AMOUNT converted from
// FROM to TO, or "0" with "Below Absolute Zero" on standard error (exit 1). A unit is a name as shown
// (any case, or the unique start of a name) or "C:I", the category and unit indices of the screen's lists;
// a name found in several categories is taken from the category the other unit belongs to. An unknown or
// ambiguous unit is a usage error (2) that lists the candidates. A negative AMOUNT is an amount.
int RunConvertCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);

// `wanderkit units [CATEGORY]`: each category's title, then its units in the screen's order as name and
// factor text, tab-separated; categories separated by an empty line. CATEGORY is an index 0 to 6 or the
// (start of the) title, any case.
int RunUnitsCommand(const CommandRequest& request, std::ostream& out, std::ostream& err);

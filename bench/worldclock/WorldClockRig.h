// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ScreenRig.h"
#include "screens/worldclock/WorldClockScreen.h"

// The World Clocks screen on the shipped data, in a fresh state folder, ready to be run.
using WorldClockRig = ScreenRig<WorldClockScreen>;

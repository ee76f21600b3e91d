// SPDX-License-Identifier: GPL-3.0-or-later
// The process's CPU use while the World Clocks screen stays open with its one-second timer.
// Target: at most 1 %. Usage: bench_worldclock_idlecpu [SECONDS]
#include "IdleCpu.h"
#include "screens/worldclock/WorldClockScreen.h"

int main(int argc, char** argv)
{
    return IdleCpu::run<WorldClockScreen>(argc, argv, "World Clocks");
}

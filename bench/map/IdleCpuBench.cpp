// SPDX-License-Identifier: GPL-3.0-or-later
// The process's CPU use while the World Map screen stays open with its 250 ms timer (and its full
// redraw every 60 s). Target: at most 1 %. Usage: bench_map_idlecpu [SECONDS]
#include "IdleCpu.h"
#include "screens/map/MapScreen.h"

int main(int argc, char** argv)
{
    return IdleCpu::run<MapScreen>(argc, argv, "World Map");
}

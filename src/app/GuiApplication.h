// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/StartOptions.h"

// Starts the program's window: single-instance check, state folder and stores, the device window
// and the launcher; or, with --tour, renders every screen to PNG files.
class GuiApplication
{
public:
    explicit GuiApplication(StartOptions options);

    // Returns the process exit code.
    int run(int& argc, char** argv);

private:
    StartOptions m_options;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/DevicePaths.h"
#include "settings/RegistrySettings.h"

#include <string>
#include <string_view>

// The folder the installer recorded as "InstallDir"; empty (the root) when the key or value is missing
// or the folder does not fit the 50-character buffer it is read into.
std::wstring ReadInstallFolder(RegistrySettings& settings);

// The icon mapping of "mapping.cfg" in the install folder: each whitespace-separated word followed by ";",
// up to the first word that contains ">" (not kept) or the end of the file. Empty when the file is missing.
std::wstring ReadMappingText(RegistrySettings& settings, const DevicePaths& paths);
// The same mapping from the bytes of a "mapping.cfg".
std::wstring ParseMappingText(std::string_view bytes);

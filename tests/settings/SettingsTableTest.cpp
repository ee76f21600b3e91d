// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsTable.h"

#include <gtest/gtest.h>

#include <optional>
#include <tuple>

namespace {

// What the hive holds before a read of a row.
enum class Before { FreshDevice, KeyOnly, Stored };

std::unique_ptr<SettingsHive> hiveWith(Before before, std::wstring_view subkey, std::wstring_view name)
{
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    if (before == Before::KeyOnly)
        settings.SetDWORD(subkey, L"another value", 1);
    if (before == Before::Stored)
        settings.SetDWORD(subkey, name, 5);
    return hive;
}

} // namespace

TEST(SettingsTable, DefaultsAndWriteBack)
{
    const std::tuple<const char*, const DwordSetting&, Before, std::uint32_t, std::optional<std::uint32_t>> cases[]
        = {{"clock1, fresh device: default, written", Settings::Clock1, Before::FreshDevice, 684, 684},
            {"clock2, value deleted: default, not written", Settings::Clock2, Before::KeyOnly, 756, std::nullopt},
            {"clock3 present", Settings::Clock3, Before::Stored, 5, 5},
            {"curp2, value missing: written", Settings::Currency2, Before::KeyOnly, 180, 180},
            {"showcs: default, never written", Settings::ShowCities, Before::FreshDevice, 1, std::nullopt}};
    for (const auto& [what, setting, before, read, storedAfter] : cases) {
        SCOPED_TRACE(what);
        auto hive = hiveWith(before, setting.subkey, setting.name);
        RegistrySettings settings(*hive);
        EXPECT_EQ(ReadSetting(settings, setting), read);
        const auto stored = hive->value(setting.subkey, setting.name)
            ? std::optional(RegistrySettings(*hive).GetDWORD(setting.subkey, setting.name))
            : std::nullopt;
        EXPECT_EQ(stored, storedAfter);
    }

    // String rows.
    auto hive = SettingsHive::openInMemory();
    RegistrySettings settings(*hive);
    EXPECT_EQ(ReadSetting(settings, Settings::IconFolder), L"\\wiconset\\");
    EXPECT_FALSE(hive->value(Settings::IconFolder.subkey, Settings::IconFolder.name));

    WriteSetting(settings, Settings::MeasureValue, L"3.5");
    EXPECT_EQ(ReadSetting(settings, Settings::MeasureValue), L"3.5");
    WriteSetting(settings, Settings::MeasureValue, L"");
    EXPECT_EQ(ReadSetting(settings, Settings::MeasureValue), L"");
    EXPECT_EQ(settings.Status(), RegistrySettings::Read) << "an empty string is a stored value";
    WriteSetting(settings, Settings::ClothesKind, 4);
    EXPECT_EQ(ReadSetting(settings, Settings::ClothesKind), 4u);
}

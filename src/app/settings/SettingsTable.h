// SPDX-License-Identifier: GPL-3.0-or-later
// What a line of the description of all settings can say: the key, and the field or constant in it.
#pragma once

#include "app/settings/SettingsValues.h"

#include <limits>
#include <span>
#include <variant>

/// A window's place, with nothing of it kept.
struct ConstantPosition {};
struct ConstantFont {
    const char* name;
    int size; ///< points
};
struct EmptyObject {};
struct EmptyList {};

/// Constants are written at each save and read by nothing. A size or a rectangle is kept in a
/// position object.
using SettingsContent =
    std::variant<bool, int, const char*, ConstantPosition, ConstantFont, EmptyObject, EmptyList,
                 bool SettingsValues::*, int SettingsValues::*, QString SettingsValues::*,
                 QFont SettingsValues::*, QStringList SettingsValues::*, QSize SettingsValues::*,
                 QRect SettingsValues::*>;

enum class SettingsUse { Both, OnlyWritten, OnlyRead };

struct SettingsKey {
    const char* path; ///< names of the objects around it and its own, with slashes
    SettingsContent content;
    SettingsUse use = SettingsUse::Both;
    /// What a number in the file may be.
    int least = 0;
    int most = std::numeric_limits<int>::max();
};

/// In the order of the file.
std::span<const SettingsKey> settingsTable();

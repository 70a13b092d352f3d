// SPDX-License-Identifier: GPL-3.0-or-later
// The one description of all keys of the settings file. It drives both reading and writing.
#pragma once

#include <QJsonObject>

struct SettingsValues;

/// What the file holds under a top-level key.
QJsonObject writeSettingsGroup(const QString& group, const SettingsValues& values);

/// Sets the fields that the file tells. A key that is absent, of another type, or beyond what makes
/// sense leaves its field as it is.
void readSettings(const QJsonObject& document, SettingsValues& values);

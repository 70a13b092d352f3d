// SPDX-License-Identifier: GPL-3.0-or-later
// A font as the settings file holds it: name, size in points, and its attributes.
#pragma once

#include <QFont>
#include <QJsonObject>

QJsonObject fontToJson(const QFont& font);
/// The default stands in for each member that is absent or makes no sense.
QFont fontFromJson(const QJsonObject& json, const QFont& defaultFont);

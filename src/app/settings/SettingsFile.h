// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the settings file: a format of QSettings that lays down the values of the store, whatever
// QSettings itself holds.
#pragma once

#include <QString>
#include <QVariant>

struct SettingsValues;

/// The file below a base folder.
QString settingsFilePath(const QString& base);

/// Sets the key, which serves to set off the writing: the file gets the values and nothing else. It
/// is replaced whole. False, with the old file untouched, where that fails.
bool writeSettingsFile(const QString& base, const SettingsValues& values, const QString& group,
                       const QString& key, const QVariant& value);

// SPDX-License-Identifier: GPL-3.0-or-later
// The older form of settings, a format of QSettings: keys are nested elements below one root.
#pragma once

#include <QSettings>

/// The registered format "xml".
QSettings::Format xmlSettingsFormat();

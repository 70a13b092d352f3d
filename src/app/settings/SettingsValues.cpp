// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/SettingsValues.h"

SettingsValues::SettingsValues(const QString& folder)
    : defaultFolder(folder), dictionaryFolder(folder), dataDictionaryFolder(folder),
      mapFolder(folder), graphFolder(folder), tableFolder(folder), selectionFolder(folder),
      programFolder(folder), projectFolder(folder) {}

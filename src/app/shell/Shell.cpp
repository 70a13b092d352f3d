// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/shell/Shell.h"

Shell::~Shell() = default;

void Shell::reloadDictionary() {}

// SPDX-License-Identifier: GPL-3.0-or-later
// Counts how often the program ends the engine. Linking this puts a kel::destroy of the test before
// the engine's, which it then calls.
#pragma once

int destroyCalls();

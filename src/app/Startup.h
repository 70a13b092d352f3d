// SPDX-License-Identifier: GPL-3.0-or-later
// What every program around the main window does before that window exists.
#pragma once

class MainWindow;

/// Before the application object exists.
void scaleWithScreen();
/// Icon, names and version of the application object.
void nameApplication();
/// The bridge for the engine's questions, then the engine. Throws what the engine throws.
void startEngine();
void nameWindow(MainWindow& window);

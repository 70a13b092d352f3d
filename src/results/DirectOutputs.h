// SPDX-License-Identifier: GPL-3.0-or-later
// Writes what a list of programs sends to files; nothing of it is shown.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class KelSystem;
class TKelDictionary;
class TKelOutput;

class DirectOutputs {
public:
    /// The dictionary that the outputs are about, and the path of its file.
    DirectOutputs(const KelSystem& settings, TKelDictionary& dictionary, QString databasePath);

    /// Makes tables of the direct outputs only, each in the style that its program names. Gives a
    /// line for each file that was not written, or elsewhere than the program says.
    QStringList write(const std::vector<TKelOutput*>& outputs) const;

private:
    const KelSystem* settings_;
    TKelDictionary* dictionary_;
    QString databasePath_;
};

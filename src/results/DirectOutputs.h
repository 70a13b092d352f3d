// SPDX-License-Identifier: GPL-3.0-or-later
// Writes what a list of programs sends to files; nothing of it is shown.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class KelSystem;
class QWidget;
class TKelDictionary;
class TKelOutput;

class DirectOutputs {
public:
    /// The dictionary that the outputs are about, and the path of its file.
    DirectOutputs(const KelSystem& settings, TKelDictionary& dictionary, QString databasePath);

    /// Makes tables of the direct outputs only, all in the first style that one of the outputs
    /// names. Gives a line for each file that was not written, or elsewhere than the program says.
    /// parent: what the progress stands in front of.
    QStringList write(const std::vector<TKelOutput*>& outputs, QWidget* parent) const;

private:
    const KelSystem* settings_;
    TKelDictionary* dictionary_;
    QString databasePath_;
};

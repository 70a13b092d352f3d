// SPDX-License-Identifier: GPL-3.0-or-later
// The file dialog of the system: it begins where the last file of the same kind was.
#pragma once

#include <QString>

class KelvoraFileDialog {
public:
    /// kind: a folder word of KelSystem. An empty folder means the remembered one.
    KelvoraFileDialog(QString kind, const QString& folder, QString caption);

    /// The chosen existing file, whose folder is remembered; empty where the user cancels.
    QString openFile(const QString& filter) const;

    /// The file to write, ending in the suffix (".json"), which is added where the user leaves it
    /// out; its folder is remembered. Empty where the user cancels. The dialog asks before a file
    /// that exists is taken.
    QString saveFile(const QString& filter, const QString& suffix,
                     const QString& proposal = {}) const;

    /// An existing folder, which is remembered; empty where the user cancels.
    QString chooseFolder() const;

    /// The next dialog is not shown and gives this path, for tests and tours.
    static void answerNext(const QString& path);

private:
    void remember(const QString& path) const;

    QString kind_;
    QString folder_;
    QString caption_;
};

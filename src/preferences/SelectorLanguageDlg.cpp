// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/SelectorLanguageDlg.h"

#include "preferences/Languages.h"

QString SelectorLanguageDlg::ask() {
    QStringList names;
    for (const Language& language : languages())
        names += language.name;
    bool accepted = false;
    const QString chosen =
        getItem(nullptr, tr("Language"), tr("Select Language"), names, 0, false, &accepted);
    const qsizetype index = accepted ? names.indexOf(chosen) : 0;
    return languages()[static_cast<std::size_t>(std::max<qsizetype>(0, index))].key;
}

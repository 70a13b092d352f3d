// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/SelectorLanguageDlg.h"

#include <array>

namespace {

struct Language {
    const char* name;
    const char* key;
};

/// Each in its own words, since none is installed yet.
constexpr std::array<Language, 4> languages{{{"English", "Process_en"},
                                             {"Español", "Process_es"},
                                             {"Português", "Process_pt"},
                                             {"Français", "Process_fr"}}};

} // namespace

QString SelectorLanguageDlg::ask() {
    QStringList names;
    for (const Language& language : languages)
        names += QString::fromUtf8(language.name);
    const QString chosen = getItem(nullptr, tr("Language"), tr("Select Language"), names, 0, false);
    // A cancelled dialog gives the first one.
    return QString::fromLatin1(
        languages.at(static_cast<std::size_t>(std::max<qsizetype>(0, names.indexOf(chosen)))).key);
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The languages of the interface.
#pragma once

#include <QString>

#include <span>

struct Language {
    QString name; ///< in its own words
    QString key;  ///< the base name of its translation
    QString flag; ///< a picture among the resources
};

/// English first.
std::span<const Language> languages();

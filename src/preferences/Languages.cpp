// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/Languages.h"

#include <array>

std::span<const Language> languages() {
    static const std::array<Language, 4> all{
        {{QStringLiteral("English"), QStringLiteral("Process_en"),
          QStringLiteral(":/images/en.png")},
         {QStringLiteral("Español"), QStringLiteral("Process_es"),
          QStringLiteral(":/images/es.png")},
         {QStringLiteral("Português"), QStringLiteral("Process_pt"),
          QStringLiteral(":/images/pt.png")},
         {QStringLiteral("Français"), QStringLiteral("Process_fr"),
          QStringLiteral(":/images/fr.png")}}};
    return all;
}

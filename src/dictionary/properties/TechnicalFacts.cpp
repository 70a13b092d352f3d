// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/TechnicalFacts.h"

#include "TKelVariable.h"
#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QDir>
#include <QLocale>
#include <QStringList>

namespace {

/// As dictionaries write it: no locale, no digit too many.
QString number(double value) {
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

/// The engine knows whether there is a code at all; without it, 0 may be none.
QString code(const TKelVariable* engine, const std::optional<double>& (TKelVariable::*told)() const,
             int mirrored) {
    if (engine == nullptr)
        return number(mirrored);
    const std::optional<double>& value = (engine->*told)();
    return value ? number(*value) : QString();
}

QString bounds(const TKpVariable& variable, double TKelRange::*bound) {
    QStringList texts;
    if (variable.ranges)
        for (const TKelRange& range : *variable.ranges)
            texts += number(range.*bound);
    return texts.join(QLatin1String("; "));
}

} // namespace

TechnicalFacts TechnicalFacts::of(const TKpVariable& variable) {
    const TKelVariable* engine = DictionaryEdit::engineVariable(variable);
    TechnicalFacts facts;
    facts.type = variable.typeName;
    facts.minimum = bounds(variable, &TKelRange::minimum);
    facts.maximum = bounds(variable, &TKelRange::maximum);
    facts.notApp = code(engine, &TKelVariable::notapp, variable.notApp);
    facts.missing = code(engine, &TKelVariable::missing, variable.missing);
    facts.file = QDir::toNativeSeparators(variable.path);
    facts.fileExists = variable.fileExists;
    return facts;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/TKpVariable.h"

TKpVariable::TKpVariable(TKelEntity* entity) : TKelVariable(entity), engineEntity(entity) {}

TKpVariable::TKpVariable(const TKelVariable& engineVariable) : TKelVariable(engineVariable) {}

TKpVariable::TKpVariable(const TKpVariable& other) = default;

TKpVariable::~TKpVariable() = default;

void TKpVariable::setSize(int value) {
    size = value;
    TKelVariable::setSize(value);
}

void TKpVariable::setTag(int value) {
    tag = value;
    TKelVariable::setTag(value);
}

bool TKpVariable::addValueLabel(const std::string& value, const std::string& text) {
    if (!valueLabels)
        valueLabels = std::make_shared<QList<ValueLabelElement>>();
    valueLabels->append({QString::fromStdString(value), QString::fromStdString(text)});
    return true;
}

void TKpVariable::setValueLabels(const TKelValueLabels& labels) {
    if (valueLabels)
        valueLabels->clear();
    else
        valueLabels = std::make_shared<QList<ValueLabelElement>>();
    for (const auto& [value, text] : labels)
        addValueLabel(value, text);
}

std::string TKpVariable::labelOf(const TKelVariant& value) {
    if (const auto* text = std::get_if<std::string>(&value))
        return labelOf(*text);
    // Six digits and a point in every locale.
    if (const auto* real = std::get_if<double>(&value))
        return labelOf(QByteArray::number(*real, 'f', 6).toStdString());
    return labelOf(std::to_string(std::get<std::int64_t>(value)));
}

std::string TKpVariable::labelOf(const std::string& value) {
    if (!valueLabels)
        return {};
    const QString wanted = QString::fromStdString(value);
    for (const ValueLabelElement& element : *valueLabels)
        if (element.value == wanted)
            return element.label.toStdString();
    return {};
}

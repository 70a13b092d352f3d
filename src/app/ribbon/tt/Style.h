// SPDX-License-Identifier: GPL-3.0-or-later
// The looks of the ribbon: named sets of colours, which fill the style sheet of the ribbon and give
// the rest of the application a palette that suits it.
#pragma once

#include <QColor>
#include <QGradient>
#include <QHash>
#include <QPalette>
#include <QString>
#include <QStringList>

#include <variant>

namespace tt {

/// One colour, or the stops of a gradient that runs from the bottom (0) to the top (1).
using StyleValue = std::variant<QColor, QGradientStops>;

/// Named colours. Reading one that is absent, or a gradient without stops, throws
/// std::runtime_error "Some property has no colors!"; an invalid colour throws "Unknown property
/// type in style!".
class StyleParams {
public:
    void Set(const QString& name, StyleValue value) { values_[name] = std::move(value); }
    /// The colour, or the first stop of a gradient.
    QColor Color(const QString& name) const;
    /// As a style sheet writes it.
    QString Text(const QString& name) const;
    /// The text with every %Name% replaced by the colour of that name.
    QString Fill(const QString& sheetTemplate) const;

private:
    QGradientStops Stops(const QString& name) const;

    QHash<QString, StyleValue> values_;
};

/// Throws std::runtime_error where there is a style of that name already.
void RegisterStyle(const QString& name, const StyleParams& params);
/// In the order of registration; the first is the default.
QStringList StyleNames();
/// Throws std::runtime_error where there is no style of that name. So do the two below.
const StyleParams& Style(const QString& name);
/// The style sheet of a ribbon.
QString StyleSheet(const QString& name);
/// For all that is not the ribbon.
QPalette palette(const QString& name);

} // namespace tt

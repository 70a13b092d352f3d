// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/tt/Style.h"

#include "app/ribbon/tt/StyleTable.h"

#include <QFile>
#include <QRegularExpression>

#include <stdexcept>
#include <utility>
#include <vector>

namespace tt {

namespace {

using Registry = std::vector<std::pair<QString, StyleParams>>;

/// Holds the styles of ours from the first use on.
Registry& registry() {
    static Registry styles = BuiltInStyles();
    return styles;
}

Registry::iterator find(const QString& name) {
    return std::find_if(registry().begin(), registry().end(),
                        [&name](const auto& style) { return style.first == name; });
}

QString colorText(const QColor& color) {
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

QString sheetTemplate() {
    QFile file(QStringLiteral(":/tt/StyleTemplate.qss"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        throw std::runtime_error("The style sheet of the ribbon is missing.");
    return QString::fromUtf8(file.readAll());
}

void setText(QPalette& palette, const StyleParams& params, QPalette::ColorRole role,
             const QString& name) {
    palette.setColor(role, params.Color(name));
    palette.setColor(QPalette::Disabled, role, params.Color(QStringLiteral("DisabledText")));
}

} // namespace

QGradientStops StyleParams::Stops(const QString& name) const {
    const auto value = values_.constFind(name);
    if (value == values_.constEnd())
        throw std::runtime_error("Some property has no colors!");
    QGradientStops stops;
    if (const auto* color = std::get_if<QColor>(&*value))
        stops = {{0, *color}};
    else
        stops = std::get<QGradientStops>(*value);
    if (stops.isEmpty())
        throw std::runtime_error("Some property has no colors!");
    for (const QGradientStop& stop : std::as_const(stops))
        if (!stop.second.isValid())
            throw std::runtime_error("Unknown property type in style!");
    return stops;
}

QColor StyleParams::Color(const QString& name) const {
    return Stops(name).constFirst().second;
}

QString StyleParams::Text(const QString& name) const {
    const QGradientStops stops = Stops(name);
    if (stops.size() == 1)
        return colorText(stops.constFirst().second);
    QString text = QStringLiteral("qlineargradient(x1:0, y1:1, x2:0, y2:0");
    for (const QGradientStop& stop : stops)
        text += QStringLiteral(", stop:%1 %2").arg(stop.first).arg(colorText(stop.second));
    return text + ')';
}

QString StyleParams::Fill(const QString& sheetTemplate) const {
    static const QRegularExpression placeholder(QStringLiteral("%(\\w+)%"));
    QString sheet;
    qsizetype done = 0;
    for (const auto& match : placeholder.globalMatch(sheetTemplate)) {
        sheet += sheetTemplate.mid(done, match.capturedStart() - done) + Text(match.captured(1));
        done = match.capturedEnd();
    }
    return sheet + sheetTemplate.mid(done);
}

void RegisterStyle(const QString& name, const StyleParams& params) {
    if (find(name) != registry().end())
        throw std::runtime_error(name.toStdString() + " - style already registered!");
    registry().emplace_back(name, params);
}

QStringList StyleNames() {
    QStringList names;
    for (const auto& style : registry())
        names += style.first;
    return names;
}

const StyleParams& Style(const QString& name) {
    const auto style = find(name);
    if (style == registry().end())
        throw std::runtime_error(name.toStdString() + " - style is not registered!");
    return style->second;
}

QString StyleSheet(const QString& name) {
    return Style(name).Fill(sheetTemplate());
}

QPalette palette(const QString& name) {
    const StyleParams& params = Style(name);
    const auto color = [&params](const char* word) { return params.Color(QLatin1String(word)); };
    // Derives the shades of frames and bevels.
    QPalette palette(color("Button"), color("Window"));
    setText(palette, params, QPalette::WindowText, QStringLiteral("WindowText"));
    setText(palette, params, QPalette::Text, QStringLiteral("Text"));
    setText(palette, params, QPalette::ButtonText, QStringLiteral("ButtonText"));
    palette.setColor(QPalette::Base, color("Base"));
    palette.setColor(QPalette::AlternateBase, color("AlternateBase"));
    palette.setColor(QPalette::Highlight, color("Highlight"));
    palette.setColor(QPalette::HighlightedText, color("HighlightText"));
    palette.setColor(QPalette::Link, color("Link"));
    palette.setColor(QPalette::LinkVisited, color("LinkVisited"));
    palette.setColor(QPalette::ToolTipBase, color("ToolTip"));
    palette.setColor(QPalette::ToolTipText, color("ToolTipText"));
    setText(palette, params, QPalette::PlaceholderText, QStringLiteral("Placeholder"));
    // A selection that is out of use keeps its letters readable.
    palette.setColor(QPalette::Disabled, QPalette::Highlight, color("Border"));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, color("Text"));
    palette.setColor(QPalette::Disabled, QPalette::Base, color("Window"));
    return palette;
}

} // namespace tt

// SPDX-License-Identifier: GPL-3.0-or-later
// Icons in the rows of a view.
#pragma once

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>

/// Takes the colour of the text in selected rows, whose background may be that of the icon.
inline QIcon rowIcon(const QString& file) {
    QIcon icon(file);
    QPixmap selected(file);
    if (selected.isNull())
        return icon;
    QPainter painter(&selected);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(selected.rect(), QGuiApplication::palette().color(QPalette::HighlightedText));
    painter.end();
    icon.addPixmap(selected, QIcon::Selected);
    return icon;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// What the steps of a tour share.
#pragma once

#include <QString>
#include <QWidget>

#include <stdexcept>

/// Ends the tour with those words where the condition does not hold.
inline void require(bool condition, const QString& what) {
    if (!condition)
        throw std::runtime_error(what.toStdString());
}

/// The child of that type and object name; ends the tour where there is none.
template <typename Widget>
Widget* find(const QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(QLatin1String(name));
    require(found != nullptr, QStringLiteral("no widget %1").arg(QLatin1String(name)));
    return found;
}

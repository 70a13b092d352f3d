// SPDX-License-Identifier: GPL-3.0-or-later
// The JSON object that the file of a table style holds, and its values within their bounds. Files
// come from anywhere: nothing in them can do harm.
#pragma once

#include <QJsonObject>
#include <QString>

struct StyleFile {
    enum class State { Read, NotOpened, NotParsed };

    State state = State::NotOpened;
    QJsonObject object; ///< empty unless read
    QString fault;      ///< why it could not be parsed

    /// Files beyond 1 MB, devices and pipes are not opened.
    static StyleFile read(const QString& path);

    /// False for the older form, which has all of its keys at the top.
    bool isSectioned() const;
};

namespace stylevalues {

inline constexpr int mostDecimals = 15; ///< a double has no more

/// 0 to mostDecimals; what is no whole number gives the other one.
int decimals(const QJsonValue& value, int otherwise);
/// Empty, or one character that cannot be taken for a part of a number; anything else gives the
/// other one.
QString separator(const QJsonValue& value, const QString& otherwise);

} // namespace stylevalues

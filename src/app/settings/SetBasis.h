// SPDX-License-Identifier: GPL-3.0-or-later
// The objects that the settings file consists of, each able to write itself under its key.
#pragma once

#include <QJsonObject>
#include <QObject>

struct SettingsValues;

/// One object of the file.
class SetBasis : public QObject {
    Q_OBJECT

public:
    explicit SetBasis(const QString& objectKey) : key(objectKey) {}

    virtual QJsonObject toJson() const = 0;

    const QString key; ///< the object's name in the object around it
};

/// The place of a window on the screen, in pixels.
class SetPosition : public SetBasis {
    Q_OBJECT

public:
    enum state { Normal, Minimized, Maximized };
    Q_ENUM(state)

    SetPosition() : SetBasis(QStringLiteral("position")) {}
    QJsonObject toJson() const override;

    bool docked = false;
    int top = 0;
    int left = 0;
    int height = 0;
    int width = 0;
};

/// A top-level object, whose content the description of all keys tells.
class SetGroup : public SetBasis {
    Q_OBJECT

public:
    /// The values must live as long as this object.
    SetGroup(const QString& objectKey, const SettingsValues& values)
        : SetBasis(objectKey), values_(values) {}
    QJsonObject toJson() const override;

private:
    const SettingsValues& values_;
};

/// The whole file: every object under its key.
QJsonObject settingsTree(const SettingsValues& values);

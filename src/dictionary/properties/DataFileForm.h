// SPDX-License-Identifier: GPL-3.0-or-later
// A small form with the data file of an entity or variable, and whether it is there.
#pragma once

#include <QWidget>

class ElidedLabel;
class QCheckBox;
class TKelEntity;

class DataFileForm : public QWidget {
    Q_OBJECT

public:
    explicit DataFileForm(QWidget* parent = nullptr);

    QString path() const { return path_; }
    void setPath(const QString& path);

    /// How a dictionary names the file: below the folder of its data by the relative path, else by
    /// the whole. The entity is the engine's and may be null.
    static QString storedName(const QString& path, const TKelEntity* entity);

signals:
    void pathChanged(QString path); ///< the user chose another file

private:
    void browse();

    QString path_;
    ElidedLabel* shown_;
    QCheckBox* found_;
};

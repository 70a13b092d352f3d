// SPDX-License-Identifier: GPL-3.0-or-later
// A page of a dialog of properties. It shows a draft that the dialog owns, and edits that.
#pragma once

#include <QWidget>

class QFormLayout;

class BaseTab : public QWidget {
    Q_OBJECT

public:
    virtual QString title() const = 0;

protected:
    explicit BaseTab(QWidget* parent = nullptr);

    QFormLayout* form_; ///< captions above or beside their fields
};

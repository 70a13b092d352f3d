// SPDX-License-Identifier: GPL-3.0-or-later
// A check box that shows a fact: it cannot be changed, and stays as readable as the others.
#pragma once

#include <QCheckBox>

class ReadOnlyCheckBox : public QCheckBox {
    Q_OBJECT

public:
    explicit ReadOnlyCheckBox(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeReadableColours();
};

// SPDX-License-Identifier: GPL-3.0-or-later
// The completer of the code editor that shows colour schemes: it offers the reserved words.
#pragma once

#include <QCompleter>

class QKelxCompleter : public QCompleter {
    Q_OBJECT

public:
    explicit QKelxCompleter(QObject* parent = nullptr);
};

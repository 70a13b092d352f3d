// SPDX-License-Identifier: GPL-3.0-or-later
// The menu that makes and opens table styles, and writes the one that was saved into the program in
// front.
#pragma once

#include <QMenu>

#include <functional>

class TableStylesButtonMenu : public QMenu {
    Q_OBJECT

public:
    /// activeProgram: path of the program in front, empty where there is none. Its editors outlive
    /// the menu, and ask it as well.
    explicit TableStylesButtonMenu(std::function<QString()> activeProgram,
                                   QWidget* parent = nullptr);

public slots:
    void on_NewClick();
    void on_OpenClick();
    void onStyleSaved(const QString& stylePath);

private:
    void edit(const QString& path);

    std::function<QString()> activeProgram_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
// Buttons of a page that belong together, with a small title below them.
#pragma once

#include <QToolButton>

class QBoxLayout;
class QLabel;

namespace tt {

class CompactToolButton;

class Group : public QWidget {
    Q_OBJECT

public:
    /// Throws std::runtime_error where the parent is not inside a TabToolbar. Page::AddGroup() is
    /// the way to make one.
    Group(const QString& title, QWidget* parent);

    /// A large button, which carries the action's object name. The action's shortcut works on every
    /// page, also while the ribbon is minimised. The action must outlive the group.
    CompactToolButton* AddAction(QToolButton::ToolButtonPopupMode popupMode, QAction* action);
    void AddSeparator();
    /// Takes ownership. Widgets that follow one another share a column, as many as a group has
    /// rows.
    void AddWidget(QWidget* widget);

    /// A thin upright line.
    static QWidget* MakeSeparator(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void SizeTitle();

    QBoxLayout* row_;
    QBoxLayout* column_ = nullptr; ///< of small widgets, where the last thing added was one
    QLabel* title_;
    int rowCount_;
};

} // namespace tt

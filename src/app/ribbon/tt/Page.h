// SPDX-License-Identifier: GPL-3.0-or-later
// One page of the ribbon: a row of groups, which scrolls where the window is too narrow for it.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QScrollArea;
class QToolButton;

namespace tt {

class CompactToolButton;
class Group;

class Page : public QWidget {
    Q_OBJECT

public:
    /// Throws std::runtime_error where the parent is not inside a TabToolbar. TabToolbar::AddPage()
    /// is the way to make one.
    Page(int index, const QString& title, QWidget* parent);

    Group* AddGroup(const QString& title);
    /// Takes the page's tab out of the ribbon, or puts it back.
    void Hide();
    void Show();
    /// Shows or hides what the page holds, while its tab stays.
    void SetContentVisible(bool visible);
    void SetTitle(const QString& title); ///< for screen readers
    /// The first button that can be pressed; null where there is none.
    CompactToolButton* FirstButton() const;
    /// In pixels, what all groups take side by side.
    int ContentWidth() const;
    QSize minimumSizeHint() const override;

signals:
    void Hiding(int index);
    void Showing(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    QToolButton* MakeScrollButton(Qt::ArrowType arrow, int direction);
    void UpdateScrollButtons();
    void MoveFocus(int step);
    QList<CompactToolButton*> Buttons() const; ///< that can be pressed

    int index_;
    QWidget* content_;
    QScrollArea* area_ = nullptr;
    QHBoxLayout* groups_ = nullptr;
    QToolButton* back_ = nullptr;
    QToolButton* forward_ = nullptr;
};

} // namespace tt

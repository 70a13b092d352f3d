// SPDX-License-Identifier: GPL-3.0-or-later
// The table of variables with its filter above.
#pragma once

#include <QWidget>

#include <memory>

class KelVariablesTableView;
class QLabel;
class QLineEdit;
class TKpEntity;

/// Ctrl+F goes to the filter, Down from there to the table, Escape clears it.
class VariablesPane : public QWidget {
    Q_OBJECT

public:
    explicit VariablesPane(QWidget* parent = nullptr);

    /// Shows the entity of the mirror; null shows nothing. The filter stays only where the entity
    /// has the name of the one before.
    void setEntity(const std::shared_ptr<TKpEntity>& root, TKpEntity* entity);
    void clearFilter();
    void focusFilter();
    KelVariablesTableView* table() const { return table_; }

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool filterKey(int key);
    void goToTable();
    void showCount(int shown, int all);
    void retranslate();

    QLineEdit* filter_;
    QLabel* count_;
    KelVariablesTableView* table_;
    QString entityName_;
};

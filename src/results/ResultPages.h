// SPDX-License-Identifier: GPL-3.0-or-later
// The two pages that show a result table: as a grid under its facts, and as a report.
#pragma once

#include <QWidget>

class QFormLayout;
class QLabel;
class QScrollArea;
class QVBoxLayout;
class ResultGridModel;
class ResultReportModel;
class ResultTableView;
class TableBase;

/// What both pages are.
class ResultPage : public QWidget {
    Q_OBJECT

public:
    virtual void clear();
    virtual void showTable(const TableBase& table);
    void addNote(const QString& text); ///< above the shown table, below what stands there
    /// The words stand where the table would.
    void showWords(const QString& text);
    ResultTableView* view() const { return view_; }

signals:
    /// For the context menu of the cells, in the viewport of the view.
    void menuRequested(QPoint place);

protected:
    ResultPage(const QString& name, const QString& infoName, ResultTableView* view);

    QVBoxLayout* pageLayout() const { return layout_; }

private:
    ResultTableView* view_;
    QLabel* info_;
    QVBoxLayout* layout_;
};

class ResultListPage : public ResultPage {
    Q_OBJECT

public:
    ResultListPage();

    void clear() override;
    void showTable(const TableBase& table) override;
    void showFacts(const TableBase& table);

private:
    void addFact(const QString& label, const QString& value);
    void nameColumns(); ///< while their headers are out of sight
    void limitFacts();

    ResultGridModel* model_;
    QScrollArea* facts_;
    QFormLayout* form_;
};

class ResultReportPage : public ResultPage {
    Q_OBJECT

public:
    ResultReportPage();

    void clear() override;
    void showTable(const TableBase& table) override;

private:
    ResultReportModel* model_;
};

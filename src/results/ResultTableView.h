// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a result table of any size: rows of one height, columns as wide as a sample of their texts.
#pragma once

#include <QRect>
#include <QTableView>

class ResultModel;

class ResultTableView : public QTableView {
    Q_OBJECT

public:
    /// Takes the model for its own. rowHeight in pixels; more where the font needs it.
    ResultTableView(ResultModel* model, const QString& objectName, int rowHeight);

    /// Spans and widths anew, after the model has another table.
    void fit();
    /// White under any palette, with a first and a last column of that width, in pixels. Cells at
    /// the edges need no ground of their own, which would cover the frames of their neighbours.
    void setPaper(int margin);
    /// The rectangle around all that is selected; empty where nothing is.
    QRect selectedBounds() const;

signals:
    void itemSelectionChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    void fitColumns();

    ResultModel* model_;
    int margin_ = 0;
};

/// The height of rows that hold headers, in pixels.
inline constexpr int headerRowHeight = 30;

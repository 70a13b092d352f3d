// SPDX-License-Identifier: GPL-3.0-or-later
// The page that finds and replaces in the current editor.
#pragma once

#include <QDialog>

class FindDialog : public QDialog {
    Q_OBJECT

public:
    explicit FindDialog(QWidget* parent = nullptr);
    /// Puts the text into the query, if any, and the keys into its field.
    void begin(const QString& query);

signals:
    void startFinding(QString queryText, bool caseSensitive, bool wholeWords, bool replace);
    void startFinding(QString queryText, bool caseSensitive, bool wholeWords);
    void startAllFinding(QString queryText, bool caseSensitive, bool wholeWords);
    void startReplacing(QString what, QString with, bool caseSensitive, bool wholeWords);
    void startReplacingAll(QString what, QString with, bool caseSensitive, bool wholeWords);

public slots:
    void on_findNextButton_clicked();
    void on_findAllButton();
    void on_replaceOperation_initiated();
    void onFindResultReady(const QString& message);
};

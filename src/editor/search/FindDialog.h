// SPDX-License-Identifier: GPL-3.0-or-later
// The page that finds and replaces in the current editor.
#pragma once

#include <QDialog>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

/// A page of another window: Escape hides nothing, and asks that the keys go back to the text.
class FindDialog : public QDialog {
    Q_OBJECT

public:
    explicit FindDialog(QWidget* parent = nullptr);
    /// Puts the text into the query, if any, and the keys into its field. A text of several lines
    /// is left out, since none could be found.
    void begin(const QString& query);
    void beginReplacing(const QString& query); ///< the same, with the keys in the other field
    void reject() override;

signals:
    void startFinding(QString queryText, bool caseSensitive, bool wholeWords, bool replace);
    void startFinding(QString queryText, bool caseSensitive, bool wholeWords);
    void startAllFinding(QString queryText, bool caseSensitive, bool wholeWords);
    void startReplacing(QString what, QString with, bool caseSensitive, bool wholeWords);
    void startReplacingAll(QString what, QString with, bool caseSensitive, bool wholeWords);
    void editorWanted(); ///< the user is done here

public slots:
    void on_findNextButton_clicked();
    void on_findAllButton();
    void on_replaceOperation_initiated();
    void on_replaceAllOperation_initiated();
    void onFindResultReady(const QString& message);

protected:
    void changeEvent(QEvent* event) override;

private:
    void addFields(QGridLayout& grid);
    void addBoxes(QGridLayout& grid);
    void addButtons(QGridLayout& grid);
    void connectButtons();
    void retranslate();
    /// False, once the user has been told, where there is nothing to look for.
    bool beginSearch();

    QLabel* queryLabel_ = nullptr;
    QLabel* replacementLabel_ = nullptr;
    QLineEdit* query_ = nullptr;
    QLineEdit* replacement_ = nullptr;
    QCheckBox* matchCase_ = nullptr;
    QCheckBox* wholeWords_ = nullptr;
    QPushButton* findNext_ = nullptr;
    QPushButton* findAll_ = nullptr;
    QPushButton* replace_ = nullptr;
    QPushButton* replaceAll_ = nullptr;
    QLabel* message_ = nullptr;
};

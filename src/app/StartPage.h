// SPDX-License-Identifier: GPL-3.0-or-later
// What the empty work area shows: ways to begin, or what the open dictionary holds.
#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QPushButton;
class QStandardItemModel;
class QTableView;
class QVBoxLayout;
class TKpEntity;

class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

    /// Nothing is open: offers these files, the latest first.
    void showRecent(const QStringList& dictionaries);
    /// Copies what it shows of the dictionary.
    void showDictionary(const QString& title, const QString& path, TKpEntity& root);

signals:
    void openRequested();
    void recentRequested(QString path);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeBegin();
    QWidget* makeOverview();
    QPushButton* makeRecent(const QString& path);
    void retranslate();

    QStringList recent_;
    QWidget* begin_;
    QWidget* overview_;
    QLabel* greeting_ = nullptr;
    QLabel* hint_ = nullptr;
    QPushButton* open_ = nullptr;
    QLabel* recentHeading_ = nullptr;
    QVBoxLayout* recentList_ = nullptr;
    QLabel* title_ = nullptr;
    QLabel* path_ = nullptr;
    QLabel* advice_ = nullptr;
    QTableView* entities_ = nullptr;
    QStandardItemModel* model_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences: pages beside a list of icons. It holds no data; each page writes the store.
#pragma once

#include <QDialog>

class GeneralPage;
class KelSystem;
class QListWidget;
class QStackedWidget;

/// Made to stand in the work area: it never hides itself but asks its owner to close its window.
class ConfigDialog : public QDialog {
    Q_OBJECT

public:
    /// menuColors: the names of the ribbon's styles, in the order of the setting.
    ConfigDialog(KelSystem& system, const QStringList& menuColors, QWidget* parent = nullptr);

    void reject() override;

signals:
    void languageChanged(const QString& key); ///< its translator is installed
    void menuColorChanged(int style);
    void maxLastFilesChanged();
    void settingsReset();  ///< every setting may be another one now
    void closeRequested(); ///< Escape or Close

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeList();
    void layOut();
    void retranslate();
    void fitToFont();

    QListWidget* list_;
    QStackedWidget* pages_;
    GeneralPage* general_;
};

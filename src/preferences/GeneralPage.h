// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences of language, start and menus. Each control writes its setting at once.
#pragma once

#include <QWidget>

class KelSystem;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QSpinBox;

class GeneralPage : public QWidget {
    Q_OBJECT

public:
    /// menuColors: the names of the ribbon's styles, in the order of the setting.
    GeneralPage(KelSystem& system, const QStringList& menuColors, QWidget* parent = nullptr);

    /// Shows what the store holds, without changing it.
    void refresh();

signals:
    void languageChanged(const QString& key); ///< its translator is installed
    void menuColorChanged(int style);
    void maxLastFilesChanged();
    void settingsReset(); ///< every setting may be another one now

protected:
    void changeEvent(QEvent* event) override;

private:
    QGroupBox* makeLanguageGroup();
    QGroupBox* makeStartGroup();
    QGroupBox* makeMenuGroup(const QStringList& menuColors);
    void connectControls();
    void bind(QCheckBox* box, void (KelSystem::*setting)(bool));
    void changeLanguage(int index);
    void changeMenuColor(int style);
    void changeMaxLastFiles(int count);
    void resetSettings();
    void retranslate();

    KelSystem& system_;
    QGroupBox* languageGroup_ = nullptr;
    QGroupBox* startGroup_ = nullptr;
    QGroupBox* menuGroup_ = nullptr;
    QLabel* languageLabel_ = nullptr;
    QLabel* menuColorsLabel_ = nullptr;
    QLabel* maxLastFilesLabel_ = nullptr;
    QComboBox* cbLanguage_ = nullptr;
    QCheckBox* cbShowSplash_ = nullptr;
    QCheckBox* cbShowTipsTricks_ = nullptr;
    QCheckBox* cbOpenLastDirByStarting_ = nullptr;
    QComboBox* cbMenuColors_ = nullptr;
    QSpinBox* sbMaxLastFiles_ = nullptr;
    QPushButton* pbInitialSettings_ = nullptr;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/GeneralPage.h"

#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"
#include "preferences/Languages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

Q_LOGGING_CATEGORY(preferencesLog, "Preferences")

constexpr int fewestLastFiles = 1;
constexpr int mostLastFiles = 100;

template <class Control>
Control* named(const char* name) {
    auto* control = new Control;
    control->setObjectName(QLatin1String(name));
    return control;
}

QLabel* addRow(QFormLayout* form, QWidget* control) {
    auto* label = new QLabel;
    label->setBuddy(control);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows); // some languages need more room
    form->addRow(label, control);
    return label;
}

} // namespace

GeneralPage::GeneralPage(KelSystem& system, const QStringList& menuColors, QWidget* parent)
    : QWidget(parent), system_(system) {
    setObjectName(QStringLiteral("GeneralPage"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeLanguageGroup());
    column->addWidget(makeStartGroup());
    column->addWidget(makeMenuGroup(menuColors));
    pbInitialSettings_ = named<QPushButton>("pbInitialSettings");
    // Enter in a field must not press it.
    pbInitialSettings_->setAutoDefault(false);
    column->addWidget(pbInitialSettings_, 0, Qt::AlignLeft);
    column->addStretch();
    retranslate();
    refresh();
    connectControls();
}

QGroupBox* GeneralPage::makeLanguageGroup() {
    languageGroup_ = new QGroupBox;
    cbLanguage_ = named<QComboBox>("cbLanguage");
    for (const Language& language : languages())
        cbLanguage_->addItem(QIcon(language.flag), language.name, language.key);
    languageLabel_ = addRow(new QFormLayout(languageGroup_), cbLanguage_);
    return languageGroup_;
}

QGroupBox* GeneralPage::makeStartGroup() {
    startGroup_ = new QGroupBox;
    auto* column = new QVBoxLayout(startGroup_);
    column->addWidget(cbShowSplash_ = named<QCheckBox>("cbShowSplash"));
    column->addWidget(cbShowTipsTricks_ = named<QCheckBox>("cbShowTipsTricks"));
    column->addWidget(cbOpenLastDirByStarting_ = named<QCheckBox>("cbOpenLastDirByStarting"));
    return startGroup_;
}

QGroupBox* GeneralPage::makeMenuGroup(const QStringList& menuColors) {
    menuGroup_ = new QGroupBox;
    auto* form = new QFormLayout(menuGroup_);
    cbMenuColors_ = named<QComboBox>("cbMenuColors");
    cbMenuColors_->addItems(menuColors);
    menuColorsLabel_ = addRow(form, cbMenuColors_);
    sbMaxLastFiles_ = named<QSpinBox>("sbMaxLastFiles");
    sbMaxLastFiles_->setRange(fewestLastFiles, mostLastFiles);
    // The first digit of a number being typed is no number yet.
    sbMaxLastFiles_->setKeyboardTracking(false);
    maxLastFilesLabel_ = addRow(form, sbMaxLastFiles_);
    return menuGroup_;
}

void GeneralPage::refresh() {
    const QSignalBlocker language(cbLanguage_);
    const QSignalBlocker splash(cbShowSplash_);
    const QSignalBlocker tips(cbShowTipsTricks_);
    const QSignalBlocker last(cbOpenLastDirByStarting_);
    const QSignalBlocker colors(cbMenuColors_);
    const QSignalBlocker files(sbMaxLastFiles_);
    cbLanguage_->setCurrentIndex(std::max(0, cbLanguage_->findData(system_.language())));
    cbShowSplash_->setChecked(system_.showSplash());
    cbShowTipsTricks_->setChecked(system_.tipOfTheDay());
    cbOpenLastDirByStarting_->setChecked(system_.loadLast());
    const int style = system_.menuColor();
    cbMenuColors_->setCurrentIndex(style < cbMenuColors_->count() ? style : 0);
    sbMaxLastFiles_->setValue(system_.maxLastFiles());
}

void GeneralPage::connectControls() {
    connect(cbLanguage_, &QComboBox::currentIndexChanged, this, &GeneralPage::changeLanguage);
    bind(cbShowSplash_, &KelSystem::setShowSplash);
    bind(cbShowTipsTricks_, &KelSystem::setTipOfTheDay);
    bind(cbOpenLastDirByStarting_, &KelSystem::setLoadLast);
    connect(cbMenuColors_, &QComboBox::currentIndexChanged, this, &GeneralPage::changeMenuColor);
    connect(sbMaxLastFiles_, &QSpinBox::valueChanged, this, &GeneralPage::changeMaxLastFiles);
    connect(pbInitialSettings_, &QPushButton::clicked, this, &GeneralPage::resetSettings);
}

void GeneralPage::bind(QCheckBox* box, void (KelSystem::*setting)(bool)) {
    connect(box, &QCheckBox::toggled, this, [this, setting](bool checked) {
        (system_.*setting)(checked);
        system_.save();
    });
}

void GeneralPage::changeLanguage(int index) {
    const QString key = cbLanguage_->itemData(index).toString();
    qCDebug(preferencesLog).noquote() << "Changing language to " + cbLanguage_->itemText(index);
    system_.setLanguage(key);
    system_.writeValue(QStringLiteral("language"), key, QStringLiteral("Preferences"));
    system_.installTranslator(key);
    emit languageChanged(key);
    qCDebug(preferencesLog) << "Language changed!";
}

void GeneralPage::changeMenuColor(int style) {
    system_.setMenuColor(style);
    system_.save();
    emit menuColorChanged(style);
}

void GeneralPage::changeMaxLastFiles(int count) {
    system_.setMaxLastFiles(count);
    system_.save();
    emit maxLastFilesChanged();
}

void GeneralPage::resetSettings() {
    if (!askYesNo(tr("Initial Settings"),
                  tr("All preferences, the lists of recent files and the remembered folders go "
                     "back to their initial values. Do you want to continue?")))
        return;
    system_.resetToDefaults();
    system_.save();
    system_.installTranslator(system_.language());
    refresh();
    emit settingsReset();
}

void GeneralPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void GeneralPage::retranslate() {
    languageGroup_->setTitle(tr("Application Language"));
    languageLabel_->setText(tr("Select Language:"));
    startGroup_->setTitle(tr("Startup"));
    cbShowSplash_->setText(tr("Show splash form on startup"));
    cbShowTipsTricks_->setText(tr("Show Tips and Tricks form on startup"));
    cbOpenLastDirByStarting_->setText(tr("Open last dictionary on starting program"));
    menuGroup_->setTitle(tr("Menu"));
    menuColorsLabel_->setText(tr("Menu Colors:"));
    maxLastFilesLabel_->setText(tr("Maximum number of files in the button list"));
    pbInitialSettings_->setText(tr("Initial Settings"));
    pbInitialSettings_->setToolTip(tr("Put all settings back to those of a new installation"));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/ConfigDialog.h"

#include "app/widgets/RowIcon.h"
#include "preferences/GeneralPage.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QLoggingCategory>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace {

Q_LOGGING_CATEGORY(preferencesLog, "Preferences")

constexpr int widestPage = 90; // characters

} // namespace

ConfigDialog::ConfigDialog(KelSystem& system, const QStringList& menuColors, QWidget* parent)
    : QDialog(parent), list_(new QListWidget), pages_(new QStackedWidget),
      general_(new GeneralPage(system, menuColors)) {
    setObjectName(QStringLiteral("KelxPreferencesDialog"));
    pages_->addWidget(general_);
    makeList();
    layOut();
    connect(general_, &GeneralPage::languageChanged, this, &ConfigDialog::languageChanged);
    connect(general_, &GeneralPage::menuColorChanged, this, &ConfigDialog::menuColorChanged);
    connect(general_, &GeneralPage::maxLastFilesChanged, this, &ConfigDialog::maxLastFilesChanged);
    connect(general_, &GeneralPage::settingsReset, this, &ConfigDialog::settingsReset);
    retranslate();
}

void ConfigDialog::makeList() {
    list_->setObjectName(QStringLiteral("pageList"));
    list_->addItem(new QListWidgetItem(rowIcon(QStringLiteral(":/images/general.png")), QString()));
    const int side = 2 * style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    list_->setIconSize({side, side});
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(list_, &QListWidget::currentRowChanged, pages_, &QStackedWidget::setCurrentIndex);
    list_->setCurrentRow(0);
}

void ConfigDialog::layOut() {
    auto* row = new QHBoxLayout;
    row->addWidget(list_);
    row->addWidget(pages_, 1);
    row->addStretch(); // a wide work area must not pull the fields apart
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &ConfigDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addLayout(row, 1);
    column->addWidget(buttons);
}

void ConfigDialog::reject() {
    emit closeRequested();
}

/// Not the dialog's own, which would reject and then stay.
void ConfigDialog::closeEvent(QCloseEvent* event) {
    qCDebug(preferencesLog) << "Closing preferences";
    event->accept();
    qCDebug(preferencesLog) << "Closed preferences";
}

void ConfigDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitToFont();
    QDialog::changeEvent(event);
}

void ConfigDialog::retranslate() {
    setWindowTitle(tr("Kelx Preferences"));
    list_->setAccessibleName(tr("Pages"));
    list_->item(0)->setText(tr("General"));
    fitToFont();
}

void ConfigDialog::fitToFont() {
    pages_->setMaximumWidth(widestPage * fontMetrics().averageCharWidth());
    list_->setFixedWidth(list_->sizeHintForColumn(0) + 2 * list_->frameWidth() +
                         2 * fontMetrics().averageCharWidth());
}

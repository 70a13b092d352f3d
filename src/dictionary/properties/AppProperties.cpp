// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/AppProperties.h"

#include "app/messages/Messages.h"
#include "dictionary/properties/BaseTab.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

AppProperties::AppProperties(QWidget* parent) : QDialog(parent), tabs_(new QTabWidget) {
    tabs_->setObjectName(QStringLiteral("tabs"));
    // The dialog is as wide as its tabs.
    tabs_->setUsesScrollButtons(false);
    auto* buttons = new QDialogButtonBox;
    QPushButton* help = buttons->addButton(tr("Help"), QDialogButtonBox::HelpRole);
    QPushButton* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    help->setObjectName(QStringLiteral("bHelp"));
    close->setObjectName(QStringLiteral("bClose"));
    help->setAutoDefault(false);
    close->setAutoDefault(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs_, 1);
    layout->addWidget(buttons);
    connect(help, &QPushButton::clicked, this, &AppProperties::on_bHelp_clicked);
    connect(close, &QPushButton::clicked, this, &AppProperties::reject);
}

void AppProperties::addPage(BaseTab* page) {
    tabs_->addTab(page, page->title());
}

void AppProperties::reject() {
    if (isModified() && askYesNo(tr("Confirm"), question())) {
        if (!store())
            return;
        emit displayMsgStatusBar(tr("The changes were taken into the dictionary"));
    }
    emit closeAppProperties();
    QDialog::reject();
}

void AppProperties::on_bHelp_clicked() {
    showInformation(tr("EN CONSTRUCCION"));
}

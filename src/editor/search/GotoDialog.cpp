// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/search/GotoDialog.h"

#include "app/messages/Messages.h"
#include "editor/search/Mnemonic.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

#include <limits>

GotoDialog::GotoDialog(QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      label_(new QLabel(this)), line_(new QLineEdit(this)), go_(new QPushButton(this)),
      message_(new QLabel(this)) {
    setObjectName(QStringLiteral("gotoDialog"));
    line_->setObjectName(QStringLiteral("gotoField"));
    go_->setObjectName(QStringLiteral("gotoButton"));
    message_->setObjectName(QStringLiteral("gotoMessage"));
    label_->setBuddy(line_);
    line_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), line_));
    go_->setDefault(true);
    message_->setTextFormat(Qt::PlainText);
    auto* grid = new QGridLayout(this);
    grid->addWidget(label_, 0, 0);
    grid->addWidget(line_, 0, 1);
    grid->addWidget(go_, 0, 2);
    grid->addWidget(message_, 1, 0, 1, 3);
    grid->setRowStretch(2, 1);
    retranslate();
    connect(go_, &QPushButton::clicked, this, &GotoDialog::on_gotoButton_clicked);
    connect(line_, &QLineEdit::textChanged, message_, &QLabel::clear);
}

void GotoDialog::onGotoResultReady(const QString& message) {
    message_->setText(message);
    line_->selectAll();
    line_->setFocus();
}

void GotoDialog::on_gotoButton_clicked() {
    message_->clear();
    if (line_->text().isEmpty()) {
        showAbout(tr("Go"), tr("Must enter a line number."));
        line_->setFocus();
        return;
    }
    bool fits = false;
    const int line = line_->text().toInt(&fits);
    emit gotoLine(fits ? line : std::numeric_limits<int>::max());
}

void GotoDialog::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void GotoDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    message_->clear();
    line_->selectAll();
    line_->setFocus();
}

void GotoDialog::retranslate() {
    setWindowTitle(tr("Go To"));
    label_->setText(withMnemonic(tr("Line number: "), u'l'));
    go_->setText(withMnemonic(tr("Go"), u'g'));
    message_->clear();
}

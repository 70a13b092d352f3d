// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/search/FindDialog.h"

#include "app/messages/Messages.h"
#include "editor/search/Mnemonic.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

template <typename Widget>
Widget* addNamed(QGridLayout& grid, const char* name, int row, int column) {
    auto* widget = new Widget(grid.parentWidget());
    widget->setObjectName(QLatin1String(name));
    grid.addWidget(widget, row, column);
    return widget;
}

bool hasLineEnd(const QString& text) {
    return text.contains(u'\n') || text.contains(u'\r') || text.contains(QChar::ParagraphSeparator);
}

} // namespace

/// Made in the order in which Tab goes through them.
FindDialog::FindDialog(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("findDialog"));
    auto* grid = new QGridLayout(this);
    addFields(*grid);
    addBoxes(*grid);
    addButtons(*grid);
    message_ = new QLabel(this);
    message_->setObjectName(QStringLiteral("findMessage"));
    grid->addWidget(message_, 2, 1, 1, 4);
    message_->setTextFormat(Qt::PlainText);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->setRowStretch(3, 1);
    retranslate();
    connectButtons();
}

void FindDialog::begin(const QString& query) {
    if (!query.isEmpty() && !hasLineEnd(query))
        query_->setText(query);
    message_->clear();
    query_->selectAll();
    query_->setFocus(Qt::ShortcutFocusReason);
}

void FindDialog::beginReplacing(const QString& query) {
    begin(query);
    replacement_->selectAll();
    replacement_->setFocus(Qt::ShortcutFocusReason);
}

void FindDialog::reject() {
    emit editorWanted();
}

void FindDialog::on_findNextButton_clicked() {
    if (beginSearch())
        emit startFinding(query_->text(), matchCase_->isChecked(), wholeWords_->isChecked());
}

void FindDialog::on_findAllButton() {
    if (beginSearch())
        emit startAllFinding(query_->text(), matchCase_->isChecked(), wholeWords_->isChecked());
}

void FindDialog::on_replaceOperation_initiated() {
    if (beginSearch())
        emit startReplacing(query_->text(), replacement_->text(), matchCase_->isChecked(),
                            wholeWords_->isChecked());
}

void FindDialog::on_replaceAllOperation_initiated() {
    if (beginSearch())
        emit startReplacingAll(query_->text(), replacement_->text(), matchCase_->isChecked(),
                               wholeWords_->isChecked());
}

void FindDialog::onFindResultReady(const QString& message) {
    message_->setText(message);
}

void FindDialog::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void FindDialog::addFields(QGridLayout& grid) {
    queryLabel_ = addNamed<QLabel>(grid, "queryLabel", 0, 0);
    query_ = addNamed<QLineEdit>(grid, "queryField", 0, 1);
    queryLabel_->setBuddy(query_);
    replacementLabel_ = addNamed<QLabel>(grid, "replacementLabel", 1, 0);
    replacement_ = addNamed<QLineEdit>(grid, "replacementField", 1, 1);
    replacementLabel_->setBuddy(replacement_);
    query_->setClearButtonEnabled(true);
    replacement_->setClearButtonEnabled(true);
    grid.setColumnStretch(1, 1);
}

void FindDialog::addBoxes(QGridLayout& grid) {
    matchCase_ = addNamed<QCheckBox>(grid, "matchCaseBox", 0, 2);
    wholeWords_ = addNamed<QCheckBox>(grid, "wholeWordsBox", 1, 2);
}

void FindDialog::addButtons(QGridLayout& grid) {
    findNext_ = addNamed<QPushButton>(grid, "findNextButton", 0, 3);
    findAll_ = addNamed<QPushButton>(grid, "findAllButton", 0, 4);
    replace_ = addNamed<QPushButton>(grid, "replaceButton", 1, 3);
    replaceAll_ = addNamed<QPushButton>(grid, "replaceAllButton", 1, 4);
    findNext_->setDefault(true); // what Enter does in the fields
}

void FindDialog::connectButtons() {
    connect(findNext_, &QPushButton::clicked, this, &FindDialog::on_findNextButton_clicked);
    connect(findAll_, &QPushButton::clicked, this, &FindDialog::on_findAllButton);
    connect(replace_, &QPushButton::clicked, this, &FindDialog::on_replaceOperation_initiated);
    connect(replaceAll_, &QPushButton::clicked, this,
            &FindDialog::on_replaceAllOperation_initiated);
    connect(query_, &QLineEdit::textChanged, message_, &QLabel::clear);
}

void FindDialog::retranslate() {
    setWindowTitle(tr("Find"));
    queryLabel_->setText(withMnemonic(tr("Find what: "), u'w'));
    replacementLabel_->setText(withMnemonic(tr("Replace with: "), u'i'));
    matchCase_->setText(withMnemonic(tr("Match case"), u'm'));
    wholeWords_->setText(withMnemonic(tr("Whole words"), u'h'));
    findNext_->setText(withMnemonic(tr("Find next"), u'n'));
    findAll_->setText(withMnemonic(tr("Find all"), u'd'));
    replace_->setText(withMnemonic(tr("Replace"), u'r'));
    replaceAll_->setText(withMnemonic(tr("Replace all"), u'a'));
    message_->clear();
}

bool FindDialog::beginSearch() {
    message_->clear();
    if (!query_->text().isEmpty())
        return true;
    showAbout(tr("Empty Field"), tr("Please enter a query."));
    query_->setFocus();
    return false;
}

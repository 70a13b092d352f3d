// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/styles/TableStyleEditorDialog.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "results/styles/StylePages.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

QPushButton* makeButton(const char* name, const QString& text) {
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

} // namespace

TableStyleEditorDialog::TableStyleEditorDialog(const QString& path, QWidget* parent)
    : QDialog(parent), sectionList_(new QListWidget), pages_(new QStackedWidget) {
    setObjectName(QStringLiteral("TableStyleEditorDialog"));
    setAccessibleName(tr("Table Style Editor"));
    setWindowTitle(tr("New Table Style"));
    auto* body = new QHBoxLayout;
    body->addWidget(sectionList_);
    body->addWidget(pages_, 1);
    auto* column = new QVBoxLayout(this);
    load(path);
    makeSections();
    column->addLayout(body, 1);
    column->addWidget(makeButtons());
    saved_ = edited();
}

void TableStyleEditorDialog::load(const QString& path) {
    if (path.isEmpty())
        return;
    if (saved_.load(path))
        setFile(path);
    else
        addNote(tr("The file %1 cannot be read as a table style. What is saved here becomes a new "
                   "file.")
                    .arg(QDir::toNativeSeparators(path)));
    if (saved_.isOlderForm())
        addNote(tr("This file has settings of an older form, which do not show here. Once it is "
                   "saved, tables follow the settings below."));
}

void TableStyleEditorDialog::addNote(const QString& text) {
    auto* note = new QLabel(text);
    note->setObjectName(QStringLiteral("labelNote"));
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    layout()->addWidget(note);
}

void TableStyleEditorDialog::setFile(const QString& path) {
    path_ = path;
    setWindowTitle(tr("Table Style — %1").arg(QFileInfo(path).fileName()));
}

void TableStyleEditorDialog::addSection(const QString& title, QWidget* page, const char* name) {
    page->setObjectName(QLatin1String(name));
    sectionList_->addItem(title);
    pages_->addWidget(page);
}

void TableStyleEditorDialog::makeSections() {
    sectionList_->setObjectName(QStringLiteral("sectionList"));
    sectionList_->setAccessibleName(tr("Sections of the style"));
    pages_->setObjectName(QStringLiteral("stackedWidget"));
    general_ = new GeneralStylePage(saved_);
    oneVariable_ = new OneVariableStylePage(saved_);
    severalVariables_ = new SeveralVariablesStylePage(saved_);
    addSection(tr("General"), general_, "pageGeneral");
    addSection(tr("Frequency (1 Var)"), oneVariable_, "pageFrequency1Var");
    addSection(tr("Frequency (Multi Var)"), severalVariables_, "pageFrequencyMultiVar");
    const int frames = 4 * sectionList_->frameWidth();
    sectionList_->setFixedWidth(sectionList_->sizeHintForColumn(0) + frames +
                                fontMetrics().averageCharWidth());
    connect(sectionList_, &QListWidget::currentItemChanged, this,
            &TableStyleEditorDialog::onSectionChanged);
    sectionList_->setCurrentRow(0);
}

QWidget* TableStyleEditorDialog::makeButtons() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    QPushButton* save = makeButton("btnSave", tr("Save"));
    QPushButton* saveAs = makeButton("btnSaveAs", tr("Save As…"));
    QPushButton* cancel = makeButton("btnCancel", tr("Cancel"));
    save->setDefault(true);
    layout->setContentsMargins({});
    layout->addStretch();
    for (QPushButton* button : {save, saveAs, cancel})
        layout->addWidget(button);
    connect(save, &QPushButton::clicked, this, &TableStyleEditorDialog::onSave);
    connect(saveAs, &QPushButton::clicked, this, &TableStyleEditorDialog::onSaveAs);
    connect(cancel, &QPushButton::clicked, this, &TableStyleEditorDialog::reject);
    return row;
}

void TableStyleEditorDialog::onSectionChanged(QListWidgetItem* current,
                                              QListWidgetItem* /*previous*/) {
    if (current != nullptr)
        pages_->setCurrentIndex(sectionList_->row(current));
}

TableStyleData TableStyleEditorDialog::edited() const {
    TableStyleData style = saved_;
    general_->writeTo(style);
    oneVariable_->writeTo(style);
    severalVariables_->writeTo(style);
    return style;
}

void TableStyleEditorDialog::onSave() {
    if (path_.isEmpty())
        onSaveAs();
    else
        write(path_);
}

void TableStyleEditorDialog::onSaveAs() {
    const KelvoraFileDialog dialog(QStringLiteral("TABLE"), {}, tr("Save Table Style"));
    const QString path = dialog.saveFile(tr("Table Style (*.json);;All Files (*)"),
                                         QStringLiteral(".json"), QStringLiteral("tablestyle"));
    if (!path.isEmpty())
        write(path);
}

void TableStyleEditorDialog::write(const QString& path) {
    if (!edited().save(path)) {
        showError(tr("Save Error"),
                  tr("Could not write file:\n%1").arg(QDir::toNativeSeparators(path)));
        return;
    }
    setFile(path);
    emit styleSaved(path);
    accept();
}

void TableStyleEditorDialog::reject() {
    const bool changed = edited() != saved_;
    if (!changed || askYesNo(tr("Unsaved changes"),
                             tr("The changes to this table style are not saved. Do you want to "
                                "discard them?"),
                             tr("Discard"), tr("Keep Editing"), false))
        QDialog::reject();
}

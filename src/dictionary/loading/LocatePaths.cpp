// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/LocatePaths.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int pathWidth = 56; ///< in average characters

QFormLayout* formOf(const QDialog& dialog) {
    return static_cast<QFormLayout*>(dialog.layout());
}

} // namespace

LocatePaths::LocatePaths(const PathLocator::Item& item, int number, int total, QWidget* parent)
    : QDialog(parent), item_(item) {
    setObjectName(QStringLiteral("LocatePaths"));
    setWindowTitle(tr("Locate Paths: %1 of %2").arg(number).arg(total));
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(tr("Variable: "), addFact(QStringLiteral("variable"), item.name()));
    form->addRow(tr("Missing File: "), addFact(QStringLiteral("missingFile"), item.bareName()));
    form->addRow(tr("Missing Path: "),
                 addFact(QStringLiteral("missingPath"), QDir::toNativeSeparators(item.path())));
    addNewPath();
    addButtons();
    newPath_->setFocus();
}

QLineEdit* LocatePaths::addFact(const QString& name, const QString& value) {
    auto* line = new QLineEdit(value);
    line->setObjectName(name);
    line->setReadOnly(true);
    line->setFrame(false); // told, not asked
    QPalette palette = line->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    line->setPalette(palette);
    line->setToolTip(value);
    line->setCursorPosition(0);
    line->setMinimumWidth(pathWidth * fontMetrics().averageCharWidth());
    return line;
}

void LocatePaths::addNewPath() {
    newPath_ = new QLineEdit;
    newPath_->setObjectName(QStringLiteral("newPath"));
    auto* browse = new QToolButton;
    browse->setObjectName(QStringLiteral("browse"));
    browse->setIcon(QIcon(QStringLiteral(":/icons/res/icons/48px-Dictionary-open.png")));
    browse->setToolTip(tr("Select Variable Path"));
    browse->setAccessibleName(browse->toolTip());
    connect(browse, &QToolButton::clicked, this, &LocatePaths::onFindCliced);
    auto* row = new QHBoxLayout;
    row->addWidget(newPath_);
    row->addWidget(browse);
    auto* label = new QLabel(tr("New Path:"));
    label->setBuddy(newPath_);
    formOf(*this)->addRow(label, row);
}

void LocatePaths::addButtons() {
    auto* buttons = new QDialogButtonBox;
    relocate_ = buttons->addButton(tr("Relocate"), QDialogButtonBox::AcceptRole);
    relocate_->setObjectName(QStringLiteral("relocate"));
    relocate_->setEnabled(false);
    connect(newPath_, &QLineEdit::textChanged, relocate_,
            [this](const QString& path) { relocate_->setEnabled(!path.trimmed().isEmpty()); });
    connect(relocate_, &QPushButton::clicked, this, &LocatePaths::accept);
    QPushButton* no = buttons->addButton(tr("No"), QDialogButtonBox::NoRole);
    no->setObjectName(QStringLiteral("no"));
    no->setToolTip(tr("Leave this file missing and go on with the next"));
    connect(no, &QPushButton::clicked, this, [this] { done(Skipped); });
    QPushButton* cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setToolTip(tr("Stop looking for files; what was relocated stays"));
    connect(cancel, &QPushButton::clicked, this, &LocatePaths::reject);
    formOf(*this)->addRow(buttons);
}

QString LocatePaths::newPath() const {
    return QDir::fromNativeSeparators(newPath_->text().trimmed());
}

void LocatePaths::accept() {
    if (isUsable(newPath()))
        QDialog::accept();
}

bool LocatePaths::isUsable(const QString& path) const {
    if (!PathLocator::fits(item_, path)) {
        showError(tr("The missing and relocated files are not the same."));
        return false;
    }
    if (!QFileInfo(path).isFile()) {
        showError(tr("The file %1 was not found.").arg(QDir::toNativeSeparators(path)));
        return false;
    }
    return true;
}

void LocatePaths::onFindCliced() {
    const QString suffix = QFileInfo(item_.bareName()).suffix();
    const QString path =
        KelvoraFileDialog(QStringLiteral("DICTIONARY"), QString(), tr("Select Variable Path"))
            .openFile(suffix.isEmpty() ? QString() : tr("Files (*.%1)").arg(suffix));
    if (!path.isEmpty() && isUsable(path))
        newPath_->setText(QDir::toNativeSeparators(path));
}

bool locateMissing(QWidget* parent, TKelDictionary& dictionary, TKpEntity& root) {
    PathLocator locator(dictionary, root);
    const QList<PathLocator::Item>& items = locator.items();
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (!items[i].isMissing())
            continue; // found beside another one
        LocatePaths dialog(items[i], static_cast<int>(i) + 1, static_cast<int>(items.size()),
                           parent);
        const int answer = dialog.exec();
        if (answer == QDialog::Rejected)
            break;
        if (answer == QDialog::Accepted)
            locator.relocate(items[i], dialog.newPath());
    }
    if (locator.missingCount() == 0)
        showInformation(LocatePaths::tr("No errors found in the database"));
    return locator.isChanged();
}

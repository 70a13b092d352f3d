// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/UIInvoker.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

/// While a question is open: the arrow, since a load shows the wait cursor.
class Question {
public:
    explicit Question(bool& asking) : asking_(asking) {
        asking_ = true;
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~Question() {
        QApplication::restoreOverrideCursor();
        asking_ = false;
    }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

private:
    bool& asking_;
};

QIcon eyeIcon(bool visible) {
    return QIcon(visible ? QStringLiteral(":/icons/res/icons/48px-Eye-off.png")
                         : QStringLiteral(":/icons/res/icons/48px-Eye.png"));
}

QToolButton* makeEyeButton(QLineEdit* password) {
    auto* eye = new QToolButton;
    eye->setObjectName(QStringLiteral("showPassword"));
    eye->setCheckable(true);
    eye->setIconSize({24, 24});
    eye->setIcon(eyeIcon(false));
    eye->setToolTip(UIInvoker::tr("Show the password"));
    eye->setAccessibleName(eye->toolTip());
    QObject::connect(eye, &QToolButton::toggled, password, [eye, password](bool visible) {
        password->setEchoMode(visible ? QLineEdit::Normal : QLineEdit::Password);
        eye->setIcon(eyeIcon(visible));
    });
    return eye;
}

QLineEdit* addPasswordRow(QFormLayout* form) {
    auto* password = new QLineEdit;
    password->setObjectName(QStringLiteral("password"));
    password->setEchoMode(QLineEdit::Password);
    password->setPlaceholderText(UIInvoker::tr("Enter password") + QStringLiteral("..."));
    password->setMinimumWidth(32 * password->fontMetrics().averageCharWidth());
    auto* row = new QHBoxLayout;
    row->addWidget(password);
    row->addWidget(makeEyeButton(password));
    auto* label = new QLabel(UIInvoker::tr("Password"));
    label->setBuddy(password);
    label->setMinimumHeight(row->sizeHint().height()); // level with the taller button
    form->addRow(label, row);
    return password;
}

QLineEdit* fillPasswordDialog(QDialog& dialog, const QString& dbName) {
    dialog.setWindowTitle(UIInvoker::tr("Dictionary password"));
    auto* form = new QFormLayout(&dialog);
    auto* name = new QLineEdit(dbName);
    name->setEnabled(false);
    form->addRow(UIInvoker::tr("Dictionary"), name);
    QLineEdit* password = addPasswordRow(form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    password->setFocus();
    return password;
}

} // namespace

UIInvoker& UIInvoker::instance() {
    static UIInvoker invoker;
    return invoker;
}

QString UIInvoker::promptPassword(const QString& dbName) {
    if (refusing_)
        return {};
    const Question question(asking_);
    QDialog dialog(QApplication::activeWindow());
    const QLineEdit* password = fillPasswordDialog(dialog, dbName);
    return dialog.exec() == QDialog::Accepted ? password->text() : QString();
}

QString UIInvoker::pickDataDir(const QString& dbName) {
    if (refusing_)
        return {};
    const Question question(asking_);
    return QFileDialog::getExistingDirectory(nullptr, tr("Select data folder to") + ' ' + dbName,
                                             QString(), QFileDialog::ShowDirsOnly);
}

void UIInvoker::refuseQuestions() {
    refusing_ = true;
    if (QWidget* dialog = asking_ ? QApplication::activeModalWidget() : nullptr)
        dialog->close();
}

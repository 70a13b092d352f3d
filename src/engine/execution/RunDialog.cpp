// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/execution/RunDialog.h"

#include <QCoreApplication>
#include <QProgressBar>

#include <utility>

namespace {

constexpr int minimumTime = 400;      ///< milliseconds
constexpr int minimumCharacters = 50; ///< the width, so that the label can grow

QString translated(const char* text) {
    return QCoreApplication::translate("ProcessExecuter", text);
}

} // namespace

RunDialog::RunDialog(QWidget* parent) : QProgressDialog(parent), bar_(new QProgressBar) {
    bar_->setRange(0, 100);
    bar_->setObjectName(QStringLiteral("runProgressBar"));
    setBar(bar_);
    setWindowModality(Qt::ApplicationModal);
    setAutoClose(false);
    setAutoReset(false);
    setMinimumDuration(minimumTime);
    reset(); // the duration began to count
    connect(this, &QProgressDialog::canceled, this, [this] {
        if (const auto told = std::exchange(onCancel_, nullptr))
            told();
    });
}

void RunDialog::begin(std::function<void()> onCancel) {
    onCancel_ = std::move(onCancel);
    reset();
    setWindowTitle(translated(QT_TRANSLATE_NOOP("ProcessExecuter", "Running")));
    setMinimumWidth(minimumCharacters * fontMetrics().averageCharWidth());
    setLabelText(translated(QT_TRANSLATE_NOOP("ProcessExecuter", "Compiling...")));
    setCancelButtonText(translated(QT_TRANSLATE_NOOP("ProcessExecuter", "Cancel")));
    bar_->setAccessibleName(
        translated(QT_TRANSLATE_NOOP("ProcessExecuter", "Progress of the run")));
    bar_->setValue(0);
}

/// Past the base class's setValue(), which shows the window and processes events as it likes.
void RunDialog::tell(int percent, const QString& label) {
    bar_->setValue(percent);
    if (label != labelText())
        setLabelText(label);
}

void RunDialog::appear() {
    show();
    activateWindow();
}

void RunDialog::end() {
    onCancel_ = nullptr;
    reset();
    hide();
}

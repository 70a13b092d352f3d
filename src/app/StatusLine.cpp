// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StatusLine.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QStatusBar>

#include <limits>

namespace {

constexpr int messageTime = 2000; ///< milliseconds

/// Without a parent until the status bar takes it, or else it floats as a window; it never shows,
/// hides or resets by itself.
QProgressDialog* makeProgress(const QFontMetrics& metrics) {
    auto* progress = new QProgressDialog;
    progress->setObjectName(QStringLiteral("progress"));
    progress->setLabelText(QString());
    progress->setCancelButton(nullptr);
    progress->setAutoClose(false);
    progress->setAutoReset(false);
    progress->setMinimumDuration(std::numeric_limits<int>::max());
    progress->setFocusPolicy(Qt::NoFocus);
    auto* bar = new QProgressBar;
    bar->setTextVisible(false);
    progress->setBar(bar);
    progress->setRange(0, 100);
    progress->setFixedSize(18 * metrics.averageCharWidth(), metrics.height());
    return progress;
}

} // namespace

StatusLine::StatusLine(QStatusBar* bar)
    : bar_(bar), openFile_(new QLabel), progress_(makeProgress(bar->fontMetrics())) {
    bar->setObjectName(QStringLiteral("statusbar"));
    openFile_->setObjectName(QStringLiteral("dictionaryLabel"));
    openFile_->setTextFormat(Qt::PlainText);
    openFile_->setMargin(2);
    bar_->addPermanentWidget(openFile_);
    bar_->addPermanentWidget(progress_);
    progress_->hide();
    retranslate();
}

void StatusLine::show(const QString& text, bool busy) {
    bar_->clearMessage();
    if (busy != busy_) {
        if (busy)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
        busy_ = busy;
    }
    progress_->setRange(0, busy ? 0 : 100);
    progress_->setVisible(busy);
    bar_->showMessage(text, busy ? 0 : messageTime);
}

void StatusLine::showOpenFile(const QString& name, const QString& toolTip) {
    openFile_->setText(name);
    openFile_->setToolTip(toolTip);
    openFile_->setFrameStyle(name.isEmpty() ? 0 : QFrame::Panel | QFrame::Sunken);
}

void StatusLine::retranslate() {
    progress_->setAccessibleName(QCoreApplication::translate("StatusLine", "Progress"));
    openFile_->setAccessibleName(QCoreApplication::translate("StatusLine", "Open dictionary"));
}

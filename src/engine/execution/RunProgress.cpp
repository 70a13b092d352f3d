// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/execution/RunProgress.h"

#include "engine/execution/RunDialog.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

#include <array>
#include <utility>

namespace {

constexpr int eventsTime = 50; ///< milliseconds
constexpr int mostUntilEnd = 99;

/// The kind's window; it goes with the one that it stands in front of.
RunDialog* dialogOf(RunProgress::Kind kind, QWidget* parent) {
    static std::array<QPointer<RunDialog>, 2> dialogs;
    QPointer<RunDialog>& dialog = dialogs.at(static_cast<std::size_t>(kind));
    if (!dialog || dialog->parentWidget() != parent) {
        delete dialog.data();
        dialog = new RunDialog(parent);
        dialog->setObjectName(kind == RunProgress::Kind::Program
                                  ? QStringLiteral("runProgress")
                                  : QStringLiteral("programListProgress"));
    }
    return dialog;
}

} // namespace

/// Drops what the user presses while there is no window to take it: a key that is held down would
/// begin one run after the other.
class InputFilter : public QObject {
public:
    explicit InputFilter(const QWidget& dialog) : dialog_(&dialog) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return !dialog_ || !dialog_->isVisible();
        default:
            return false;
        }
    }

private:
    QPointer<const QWidget> dialog_;
};

RunProgress::RunProgress(Kind kind, QWidget* parent, std::function<void()> onCancel)
    : dialog_(dialogOf(kind, parent)), filter_(std::make_unique<InputFilter>(*dialog_)),
      onCancel_(std::move(onCancel)) {
    dialog_->begin([this] { cancel(); });
    sinceBegin_.start();
    sinceEvents_.start();
}

RunProgress::~RunProgress() {
    if (dialog_)
        dialog_->end();
    QCoreApplication::processEvents(); // those that still wait, while the filter is there
}

bool RunProgress::tell(int percent, const QString& label) {
    // The engine takes no answer to 100 any more: a wish to cancel must not be heard there.
    if (percent > mostUntilEnd || processing_)
        return cancelled_;
    if (dialog_ && !cancelled_)
        dialog_->tell(percent, label);
    if (sinceEvents_.hasExpired(eventsTime))
        processEvents();
    return cancelled_;
}

void RunProgress::processEvents() {
    const QScopedValueRollback<bool> guard(processing_, true);
    if (dialog_ && !dialog_->isVisible() && !cancelled_ &&
        sinceBegin_.hasExpired(dialog_->minimumDuration()))
        dialog_->appear();
    const bool shown = dialog_ && dialog_->isVisible();
    QCoreApplication::processEvents(shown ? QEventLoop::AllEvents
                                          : QEventLoop::ExcludeUserInputEvents);
    sinceEvents_.start();
}

void RunProgress::cancel() {
    if (std::exchange(cancelled_, true))
        return;
    if (dialog_)
        dialog_->end();
    if (onCancel_)
        onCancel_();
}

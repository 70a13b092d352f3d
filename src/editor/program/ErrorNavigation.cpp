// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ErrorNavigation.h"

#include "app/messages/Messages.h"
#include "editor/program/ErrorLines.h"
#include "editor/text/Editor.h"

#include <QCoreApplication>
#include <QListWidget>

namespace {

bool isSummary(const QListWidgetItem& item) {
    return item.listWidget() != nullptr && item.listWidget()->row(&item) == 0;
}

ErrorLineTarget targetOf(const QListWidgetItem& item) {
    return errorLineTarget(item.text(), item.data(noticeRole).toBool());
}

} // namespace

void goToErrorOf(const QListWidgetItem& item, Editor& editor) {
    showErrorOf(item, editor);
    const ErrorLineTarget target = targetOf(item);
    if (isSummary(item) || target.line > 0 || target.isNotice)
        return;
    showAbout(QCoreApplication::translate("ProcessProgramSPC", "Error de formato"),
              QCoreApplication::translate(
                  "ProcessProgramSPC",
                  "<b>Apparently the format of the error text received from the KelEngine does not "
                  "match the initially defined format, so it is not possible to navigate to the "
                  "line of code where the error occurs</b>"));
}

void showErrorOf(const QListWidgetItem& item, Editor& editor) {
    if (isSummary(item))
        editor.clearErrorLine();
    else if (const ErrorLineTarget target = targetOf(item); target.line > 0)
        editor.highlightErrorLine(target.line);
}

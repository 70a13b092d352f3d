// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultActions.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QToolBar>
#include <QToolButton>

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("ResultsManager", text);
}

QAction* make(QWidget* window, const char* name, const char* picture) {
    auto* action = new QAction(window);
    action->setObjectName(QLatin1String(name));
    action->setIcon(QIcon(":/icons/res/icons/48px-" + QLatin1String(picture) + ".png"));
    return action;
}

void tell(QAction* action, const QString& text, const QString& tip) {
    action->setText(text);
    action->setToolTip(tip);
}

} // namespace

ResultActions::ResultActions(QWidget* window)
    : csvLabelAsHeader(make(window, "actionCsvLabelAsHeader", "Results-csv")),
      csvNameAsHeader(make(window, "actionCsvNameAsHeader", "Results-csv")),
      json(make(window, "actionJson", "Results-json")),
      xlsx(make(window, "actionXlsx", "Results-xlsx")),
      xml(make(window, "actionXml", "Results-xml")), pdf(make(window, "actionPdf", "Results-pdf")),
      order(make(window, "actionOrder", "Results-options")),
      copy(make(window, "actionCopy", "Edit-copy")) {
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    order->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_O);
    order->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    order->setShortcutVisibleInContextMenu(true);
    window->addActions({copy, order});
}

void ResultActions::fill(QToolBar& bar) {
    for (QAction* action : {csvLabelAsHeader, csvNameAsHeader, json, xlsx, xml, pdf, order}) {
        bar.addAction(action);
        bar.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
    separator_ = bar.insertSeparator(order);
    showOptions(false);
    // Behind it stand the buttons that a narrow bar has no room for.
    if (auto* more = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
        more->setFocusPolicy(Qt::TabFocus);
}

void ResultActions::showOptions(bool fit) const {
    separator_->setVisible(fit);
    order->setVisible(fit);
}

void ResultActions::retranslate() const {
    tell(csvLabelAsHeader, translated(QT_TRANSLATE_NOOP("ResultsManager", "CSV (Label as header)")),
         translated(QT_TRANSLATE_NOOP("ResultsManager", "Export as CSV (Label as header)")));
    tell(csvNameAsHeader, translated(QT_TRANSLATE_NOOP("ResultsManager", "CSV (Name as header)")),
         translated(QT_TRANSLATE_NOOP("ResultsManager", "Export as CSV (Name as header)")));
    tell(json, translated(QT_TRANSLATE_NOOP("ResultsManager", "JSON")),
         translated(QT_TRANSLATE_NOOP("ResultsManager", "Export as JSON")));
    tell(xlsx, translated(QT_TRANSLATE_NOOP("ResultsManager", "XLSX")),
         translated(QT_TRANSLATE_NOOP("ResultsManager", "Export as XLSX")));
    tell(xml, translated(QT_TRANSLATE_NOOP("ResultsManager", "XML")),
         translated(QT_TRANSLATE_NOOP("ResultsManager", "Export as XML")));
    tell(pdf, translated(QT_TRANSLATE_NOOP("ResultsManager", "PDF")),
         translated(QT_TRANSLATE_NOOP("ResultsManager", "Export as PDF")));
    tell(order, translated(QT_TRANSLATE_NOOP("ResultsManager", "Options")),
         translated(QT_TRANSLATE_NOOP("ResultsManager", "View options")));
    tell(copy, translated(QT_TRANSLATE_NOOP("ResultsManager", "Copy")),
         translated(QT_TRANSLATE_NOOP("ResultsManager", "Copy the selected cells")));
}

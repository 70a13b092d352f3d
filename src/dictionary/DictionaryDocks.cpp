// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/DictionaryDocks.h"

#include "app/widgets/ClosableQDockedWidget.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace {

/// A dock whose title is translated again when the language changes.
class TitledDock : public ClosableQDockedWidget {
public:
    TitledDock(const QString& name, const char* title) : title_(title) {
        setObjectName(name);
        retranslate();
    }

protected:
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        ClosableQDockedWidget::changeEvent(event);
    }

private:
    void retranslate() {
        setWindowTitle(QCoreApplication::translate("TfrmDictionary", title_));
    }

    const char* title_;
};

/// A stored width from another screen must not push all else out of this one.
int sensibleWidth(const QWidget& dock, int width) {
    const int character = dock.fontMetrics().averageCharWidth();
    return std::clamp(width, 20 * character, 80 * character);
}

} // namespace

QString dictionaryDockName() {
    return QStringLiteral("Dictionary");
}

QString variablesDockName() {
    return QStringLiteral("Variables");
}

QDockWidget* makeDictionaryDock(int width) {
    auto* dock =
        new TitledDock(dictionaryDockName(), QT_TRANSLATE_NOOP("TfrmDictionary", "Dictionary"));
    dock->setMinimumWidth(sensibleWidth(*dock, width));
    return dock;
}

QDockWidget* makeVariablesDock(QSize size) {
    auto* dock =
        new TitledDock(variablesDockName(), QT_TRANSLATE_NOOP("TfrmDictionary", "Variables"));
    dock->setMinimumWidth(sensibleWidth(*dock, size.width()));
    // The tree closes the dictionary, this one only goes with it.
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    return dock;
}

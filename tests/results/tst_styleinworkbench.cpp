// SPDX-License-Identifier: GPL-3.0-or-later
// A table style named in the program in front, from the ribbon to the text in its window.
#include "app/Workbench.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/ribbon/tt/CompactToolButton.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "editor/program/ProcessProgramSPC.h"
#include "editor/text/Editor.h"
#include "results/styles/TableStyleEditorDialog.h"
#include "support/OwnSettings.h"

#include <QApplication>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QTest>

class TestStyleInWorkbench : public QObject {
    Q_OBJECT

    std::unique_ptr<Workbench> bench_;

    QString path(const QString& name) const { return bench_->folder() + '/' + name; }
    void write(const QString& name, const QByteArray& text) const {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray read(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    Editor& open(const char* entry, const QString& name) const {
        KelvoraFileDialog::answerNext(path(name));
        bench_->find<QAction>(entry)->trigger();
        QMdiSubWindow* frame = bench_->window().findChild<QMdiArea*>()->currentSubWindow();
        return *qobject_cast<ProcessProgramSPC*>(frame->widget())->currentEditor();
    }

    /// With the button of the ribbon, its menu and the dialog.
    void saveNewStyle() const {
        const QString style = path("style.json");
        auto* ribbon = bench_->find<tt::TabToolbar>("ribbon");
        ribbon->SetCurrentTab(2);
        auto* button = bench_->find<tt::CompactToolButton>("File-tablestyles");
        QTRY_VERIFY(button->isVisible() && button->isEnabled());
        QTest::ignoreMessage(QtDebugMsg, "Open Button - Table Styles - clicked - In Construction");
        QMenu* menu = button->defaultAction()->menu();
        menu->popup(button->mapToGlobal(QPoint()));
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        auto* dialog = bench_->window().findChild<TableStyleEditorDialog*>();
        QVERIFY(dialog != nullptr && dialog->isVisible());
        KelvoraFileDialog::answerNext(style);
        QTest::mouseClick(dialog->findChild<QPushButton*>("btnSave"), Qt::LeftButton);
        QVERIFY(QFile::exists(style));
        QTRY_VERIFY(bench_->window().findChild<TableStyleEditorDialog*>() == nullptr);
        bench_->activate();
    }

private slots:
    void initTestCase() { takeOwnSettings(); }
    void init() { bench_ = std::make_unique<Workbench>(); }
    void cleanup() { bench_.reset(); }

    void anOpenProgramFollowsItsFile() {
        write("p.spc", "DEFINE\nFREQ PERSON.SEX\n");
        const Editor& editor = open("openProgram", "p.spc");
        bench_->answer({Choice::Yes}); // reload
        saveNewStyle();
        const QString line = "    TABLESTYLE \"" + path("style.json") + "\"\n";
        QTRY_COMPARE(editor.toPlainText(), "DEFINE\n" + line + "FREQ PERSON.SEX\n");
        QVERIFY(!editor.document()->isModified());
        QCOMPARE(bench_->messages[0], "TABLESTYLE line inserted into:\n" + path("p.spc"));
    }

    void unsavedTextIsNotLost() {
        write("p.spc", "FREQ PERSON.SEX\n");
        Editor& editor = open("openProgram", "p.spc");
        QTest::keyClicks(&editor, "// typed ");
        const QString typed = editor.toPlainText();
        bench_->answer({Choice::No}); // keep
        saveNewStyle();
        QTRY_COMPARE(bench_->messages.size(), 2);
        QVERIFY(bench_->messages[1].contains("has changes that are not saved"));
        QCOMPARE(editor.toPlainText(), typed);
        QVERIFY(editor.document()->isModified());
        QVERIFY(read("p.spc").endsWith(".json\"\n\nFREQ PERSON.SEX\n"));
        editor.document()->setModified(false);
    }

    void otherWindowsAreNoPlaceForIt() {
        const QString none = "No program file is currently active.";
        saveNewStyle();
        QVERIFY(bench_->messages.takeFirst().contains(none));
        bench_->find<QAction>("newProgram")->trigger(); // it has no file yet
        saveNewStyle();
        QVERIFY(bench_->messages.takeFirst().contains(none));
        write("all.spc", "EXECUTE \"p.spc\"\n");
        open("openExecute", "all.spc");
        saveNewStyle();
        QVERIFY(bench_->messages.takeFirst().contains(none));
        QCOMPARE(read("all.spc"), "EXECUTE \"p.spc\"\n");
    }
};

QTEST_MAIN(TestStyleInWorkbench)
#include "tst_styleinworkbench.moc"

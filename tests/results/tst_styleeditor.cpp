// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of table styles and the menu that opens it, driven by keys and clicks, with real
// files.
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "results/styles/TableStyleEditorDialog.h"
#include "results/styles/TableStylesButtonMenu.h"
#include "support/OwnSettings.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

class TestStyleEditor : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QStringList messages_;
    QList<MessageKind> kinds_;
    Choice answer_ = Choice::No;
    std::unique_ptr<TableStyleEditorDialog> editor_;

    QString path(const QString& name) const { return folder_.filePath(name); }
    QString write(const QString& name, const QByteArray& text) const {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("no file");
        return path(name);
    }
    QByteArray read(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QJsonObject saved(const QString& name) const {
        return QJsonDocument::fromJson(read(name)).object();
    }

    TableStyleEditorDialog& edit(const QString& path = {}) {
        editor_ = std::make_unique<TableStyleEditorDialog>(path);
        editor_->show();
        editor_->activateWindow();
        (void)QTest::qWaitForWindowActive(editor_.get());
        return *editor_;
    }
    template <typename Control>
    Control* control(const char* name) const {
        return editor_->findChild<Control*>(QLatin1String(name));
    }
    void goTo(int section) const {
        auto* list = control<QListWidget>("sectionList");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < section; ++i)
            QTest::keyClick(list, Qt::Key_Down);
    }
    void retype(const char* name, const QString& text) const {
        control<QLineEdit>(name)->selectAll();
        QTest::keyClicks(control<QLineEdit>(name), text);
    }
    void click(const char* name) const {
        auto* button = control<QAbstractButton>(name);
        QVERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    QStringList take() {
        kinds_.clear();
        return std::exchange(messages_, {});
    }

    /// What the menu tells once a style is saved.
    QString told(const QString& program, const QString& style) {
        TableStylesButtonMenu menu([program] { return program; });
        menu.onStyleSaved(style);
        return take().join('|');
    }

    /// What the dialog that comes up over an action is like; it is left again.
    template <typename Dialog>
    QStringList seen(const std::function<void()>& action,
                     const std::function<QStringList(Dialog&)>& facts) {
        QStringList result;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || !dialog->isVisible())
                return;
            look.stop();
            result = facts(*dialog);
            dialog->reject();
        });
        look.start(10);
        action();
        return result;
    }
    static QStringList fileFacts(QFileDialog& dialog) {
        QStringList facts{dialog.windowTitle()};
        facts += dialog.nameFilters();
        if (auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
            facts += name->text();
        return facts;
    }

private slots:
    void initTestCase() { takeOwnSettings(); }

    void init() {
        answer_ = Choice::No;
        answerMessages([this](MessageKind kind, const QString& text) {
            kinds_ += kind;
            messages_ += text;
            return answer_;
        });
    }

    void cleanup() {
        answerMessages({});
        editor_.reset();
        take();
    }

    void everythingHasItsTextAndALabel() {
        edit();
        QCOMPARE(editor_->windowTitle(), "New Table Style");
        QMap<QString, QString> labels;
        for (const QLabel* label : editor_->findChildren<QLabel*>())
            if (label->buddy() != nullptr)
                labels.insert(label->buddy()->objectName(), label->text());
        QCOMPARE(labels,
                 (QMap<QString, QString>{{"leGenName", "Name:"},
                                         {"leGenLabel", "Label:"},
                                         {"spDecimals", "Decimals:"},
                                         {"cmbThousandSep", "Thousand separator:"},
                                         {"labelSample", "Sample:"},
                                         {"cmbFreqOrder", "Row order:"},
                                         {"cmbFreqMulti3VarLayout", "3-variable layout:"}}));
        QStringList texts;
        for (const char* name : {"chkShowPct", "chkShowCumul", "chkShowTotal", "chkShowNa",
                                 "chkShowMv", "chkShowNaMulti", "chkShowMvMulti"}) {
            QVERIFY2(control<QCheckBox>(name)->isChecked(), name);
            texts += control<QCheckBox>(name)->text();
        }
        QCOMPARE(texts, QStringList({"Show percentage column", "Show cumulative percentage column",
                                     "Show Total row", "Show N/A row", "Show MV row",
                                     "Show N/A rows/columns", "Show MV rows/columns"}));
        QStringList entries;
        for (const char* name : {"cmbThousandSep", "cmbFreqOrder", "cmbFreqMulti3VarLayout"}) {
            const auto* combo = control<QComboBox>(name);
            for (int i = 0; i < combo->count(); ++i)
                entries += combo->itemText(i) + '=' + combo->itemData(i).toString();
        }
        QCOMPARE(entries,
                 QStringList({"Comma  ( , )=,", "Period ( . )=.",
                              "Space  (   )= ", "None=", "Default (engine order)=default",
                              "Ascending=ascending", "Descending=descending", "Default=default",
                              "3-variable matrix by first variable=matrixByFirstVar"}));
        QCOMPARE(control<QLineEdit>("leGenName")->placeholderText(), "e.g. Census2024");
        QCOMPARE(control<QLineEdit>("leGenLabel")->placeholderText(), "Optional description");
        QCOMPARE(control<QSpinBox>("spDecimals")->text(), "2 decimal(s)");
        QCOMPARE(control<QPushButton>("btnSaveAs")->text(), u"Save As…"_qs);
    }

    void sectionsSwitchThePages() {
        edit();
        const auto* stack = editor_->findChild<QStackedWidget*>();
        const auto* list = control<QListWidget>("sectionList");
        const char* const pages[] = {"pageGeneral", "pageFrequency1Var", "pageFrequencyMultiVar"};
        const QStringList titles{"General", "Frequency (1 Var)", "Frequency (Multi Var)"};
        for (int section = 0; section < 3; ++section) {
            goTo(section);
            QCOMPARE(list->currentItem()->text(), titles[section]);
            QCOMPARE(stack->currentWidget()->objectName(), pages[section]);
        }
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(1)).center());
        QCOMPARE(stack->currentWidget()->objectName(), "pageFrequency1Var");
    }

    void aNewStyleIsTypedAndSaved() {
        QSignalSpy spy(&edit(), &TableStyleEditorDialog::styleSaved);
        retype("leGenName", "Census");
        retype("leGenLabel", "All of it");
        control<QSpinBox>("spDecimals")->setFocus();
        QTest::keyClick(control<QSpinBox>("spDecimals"), Qt::Key_Down);
        QTest::keyClick(control<QComboBox>("cmbThousandSep"), Qt::Key_P); // Period
        QCOMPARE(control<QLabel>("labelSample")->text(), "1.234.567\n12.345.7\n0.5");
        goTo(1);
        click("chkShowCumul");
        click("chkShowTotal");
        QTest::keyClick(control<QComboBox>("cmbFreqOrder"), Qt::Key_D);
        QTest::keyClick(control<QComboBox>("cmbFreqOrder"), Qt::Key_End);
        goTo(2);
        click("chkShowMvMulti");
        QTest::keyClick(control<QComboBox>("cmbFreqMulti3VarLayout"), Qt::Key_Down);
        KelvoraFileDialog::answerNext({}); // the user cancels
        click("btnSave");
        QVERIFY(editor_->isVisible());
        KelvoraFileDialog::answerNext(path("census"));
        click("btnSave");
        QVERIFY(!editor_->isVisible());
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy[0][0].toString(), path("census.json"));
        QCOMPARE(editor_->windowTitle(), u"Table Style — census.json"_qs);
        const QByteArray expected = R"({"version": "1.0",
            "general": {"name": "Census", "label": "All of it", "decimals": 1, "thousandSep": "."},
            "frequency1Var": {"showPercent": true, "showCumulPercent": false, "showTotal": false,
                              "showNa": true, "showMv": true, "rowsOrder": "descending"},
            "frequencyMultiVar": {"showNa": true, "showMv": false,
                                  "threeVarLayout": "matrixByFirstVar"}})";
        QCOMPARE(saved("census.json"), QJsonDocument::fromJson(expected).object());
        QVERIFY(messages_.isEmpty());
    }

    void aStyleIsChangedInItsFile() {
        write("s.json", R"({"general": {"name": "Old\nname", "thousandSep": "\u0027", "font": "x"},
                            "frequency1Var": {"rowsOrder": "byLabel", "showMv": false}})");
        edit(path("s.json"));
        QCOMPARE(editor_->windowTitle(), u"Table Style — s.json"_qs);
        QCOMPARE(control<QLabel>("labelNote"), nullptr);
        goTo(1);
        QVERIFY(!control<QCheckBox>("chkShowMv")->isChecked());
        click("chkShowPct");
        QTest::keyClick(editor_.get(), Qt::Key_Return); // Save
        QVERIFY(!editor_->isVisible());
        const QJsonObject general = saved("s.json")["general"].toObject();
        const QJsonObject one = saved("s.json")["frequency1Var"].toObject();
        QVERIFY(!one["showPercent"].toBool(true));
        // What has no entry here, or none that shows it whole, stays.
        QCOMPARE(general["name"].toString(), "Old\nname");
        QCOMPARE(general["thousandSep"].toString(), "'");
        QCOMPARE(general["font"].toString(), "x");
        QCOMPARE(one["rowsOrder"].toString(), "byLabel");
        edit(path("s.json"));
        KelvoraFileDialog::answerNext(path("copy.json"));
        click("btnSaveAs");
        QCOMPARE(saved("copy.json"), saved("s.json"));
    }

    void damagedFilesAreNotReplacedUnasked() {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("^TableStyleData: JSON parse error: "));
        edit(write("bad.json", "{ \"general\": "));
        QVERIFY(control<QLabel>("labelNote")->text().contains(path("bad.json")));
        KelvoraFileDialog::answerNext({});
        click("btnSave");
        QCOMPARE(read("bad.json"), "{ \"general\": ");
        edit(write("flat.json", R"({"hideNa": true})"));
        QVERIFY(control<QLabel>("labelNote")->isVisible());
        click("btnSave");
        QVERIFY(saved("flat.json")["hideNa"].toBool());
        QVERIFY(saved("flat.json").contains("general"));
    }

    void failedWritesAreTold() {
        QSignalSpy spy(&edit(), &TableStyleEditorDialog::styleSaved);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^TableStyleData: cannot write to"));
        KelvoraFileDialog::answerNext(path("none/a.json"));
        click("btnSaveAs");
        QCOMPARE(kinds_, QList<MessageKind>{MessageKind::Error});
        QCOMPARE(take(), QStringList("Could not write file:\n" + path("none/a.json")));
        QVERIFY(editor_->isVisible());
        QCOMPARE(spy.size(), 0);
    }

    void dialogsHaveTheirTitles() {
        answerMessages({});
        edit();
        const QStringList filters{"Table Style (*.json)", "All Files (*)"};
        QCOMPARE(seen<QFileDialog>([&] { click("btnSaveAs"); }, fileFacts),
                 QStringList("Save Table Style") + filters + QStringList("tablestyle"));
        TableStylesButtonMenu menu({});
        const auto open = [&] {
            menu.findChild<QAction*>(QStringLiteral("openTableStyle"))->trigger();
        };
        QCOMPARE(seen<QFileDialog>(open, fileFacts).mid(0, 3),
                 QStringList("Open Table Style") + filters);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^TableStyleData: cannot write to"));
        KelvoraFileDialog::answerNext(path("none/a.json"));
        const auto box =
            seen<QMessageBox>([&] { click("btnSaveAs"); },
                              [](QMessageBox& shown) {
                                  return QStringList{shown.windowTitle(), shown.text()};
                              });
        QCOMPARE(box, QStringList({"Save Error", "Could not write file:\n" + path("none/a.json")}));
    }

    void changesAreNotLostUnasked() {
        edit();
        click("btnCancel");
        QVERIFY(!editor_->isVisible());
        QVERIFY(messages_.isEmpty());
        edit();
        goTo(2);
        click("chkShowNaMulti");
        QTest::keyClick(editor_.get(), Qt::Key_Escape);
        QVERIFY(editor_->isVisible());
        QCOMPARE(kinds_, QList<MessageKind>{MessageKind::Question});
        editor_->close();
        QVERIFY(editor_->isVisible());
        QCOMPARE(take().size(), 2);
        answer_ = Choice::Yes;
        click("btnCancel");
        QVERIFY(!editor_->isVisible());
        take();
        edit();
        goTo(2);
        click("chkShowNaMulti");
        click("chkShowNaMulti"); // as it was
        click("btnCancel");
        QVERIFY(messages_.isEmpty());
    }

    void theMenuTellsWhereTheLineWent() {
        QCOMPARE(told({}, "/s.json"),
                 "Table style saved.\n\nNo program file is currently active.\nAdd this line inside "
                 "the DEFINE block of your .spc:\n\n    TABLESTYLE \"/s.json\"");
        const QString program = write("p.spc", "DEFINE\r\nFREQ P.SEX\r\n");
        QCOMPARE(told(program, "/s.json"), "TABLESTYLE line inserted into:\n" + program);
        QCOMPARE(read("p.spc"), "DEFINE\r\n    TABLESTYLE \"/s.json\"\r\nFREQ P.SEX\r\n");
        const QString manually = "Table style saved.\nCould not update program file.\nAdd this "
                                 "line manually inside the DEFINE block:\n\n    TABLESTYLE "
                                 "\"/%1.json\"";
        QCOMPARE(told(path("none.spc"), "/%1.json"), manually);
        QCOMPARE(told(write("latin.spc", "\xF1"), "/%1.json"), manually);
        QCOMPARE(read("latin.spc"), "\xF1");
    }

    void theMenuOpensTheEditorOnAFile() {
        QString program = write("p.spc", "TABLESTYLE \"old\"\n");
        const QString style = write("s.json", R"({"general": {"decimals": 7}})");
        QWidget window;
        window.show();
        auto menu = std::make_unique<TableStylesButtonMenu>([program] { return program; }, &window);
        const auto dialog = [&window] { return window.findChild<TableStyleEditorDialog*>(); };
        const auto press = [&menu](int entry) {
            menu->popup({});
            QTRY_VERIFY(menu->isVisible());
            for (int i = 0; i < entry; ++i)
                QTest::keyClick(menu.get(), Qt::Key_Down);
            QTest::keyClick(menu.get(), Qt::Key_Return);
        };
        KelvoraFileDialog::answerNext({}); // the user cancels
        press(2);
        QCOMPARE(dialog(), nullptr);
        KelvoraFileDialog::answerNext(style);
        press(2);
        QVERIFY(dialog()->isVisible() && dialog()->isModal());
        QCOMPARE(dialog()->findChild<QSpinBox*>("spDecimals")->value(), 7);
        // A ribbon that is built anew takes the menu along.
        menu.reset();
        QTest::mouseClick(dialog()->findChild<QPushButton*>("btnSave"), Qt::LeftButton);
        QCOMPARE(take(), QStringList("TABLESTYLE line inserted into:\n" + program));
        QCOMPARE(read("p.spc"), "    TABLESTYLE \"" + style.toUtf8() + "\"\n");
        QTRY_COMPARE(dialog(), nullptr);
        menu = std::make_unique<TableStylesButtonMenu>([] { return QString(); }, &window);
        press(1);
        QCOMPARE(dialog()->windowTitle(), "New Table Style");
        QTest::keyClick(dialog(), Qt::Key_Escape);
        QTRY_COMPARE(dialog(), nullptr);
    }
};

QTEST_MAIN(TestStyleEditor)
#include "tst_styleeditor.moc"

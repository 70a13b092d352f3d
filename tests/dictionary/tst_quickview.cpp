// SPDX-License-Identifier: GPL-3.0-or-later
// The quick view and the dialogs of properties on a small database.
#include "PropertiesFixture.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/DialogEntityProperties.h"
#include "dictionary/properties/InfoProperties.h"
#include "dictionary/properties/TabDialogVariableProperties.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

#include <memory>

class TestQuickView : public QObject {
    Q_OBJECT

    std::unique_ptr<PropertiesFixture> data_;

    /// What a reader sees in labels, in their order.
    static QStringList shown(const QWidget& window) {
        QStringList texts;
        for (const QLabel* label : window.findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty())
                texts += label->text();
        return texts;
    }

    static bool follows(const QStringList& texts, const QString& first, const QString& second) {
        const qsizetype at = texts.indexOf(first);
        return at >= 0 && texts.value(at + 1) == second;
    }

    static QStringList names(const QTreeWidgetItem* item) {
        QStringList result(item->text(0) + "=" + item->text(1));
        for (int i = 0; i < item->childCount(); ++i)
            result += names(item->child(i));
        return result;
    }

    static void press(QWidget& window, const char* name) {
        auto* button = window.findChild<QPushButton*>(QLatin1String(name));
        QVERIFY(button != nullptr);
        QTest::mouseClick(button, Qt::LeftButton);
    }

private slots:
    void initTestCase() { data_ = std::make_unique<PropertiesFixture>(); }
    void init() { data_->open(); }
    void cleanupTestCase() { data_.reset(); }

    void variableIsTold() {
        InfoProperties info;
        QCOMPARE(info.objectName(), "VarProperties");
        QCOMPARE(info.windowTitle(), "Quick View");
        TKpVariable& sex = *data_->variable("PERSON.SEX");
        sex.setTag(4);
        DictionaryEdit::setLabel(sex, "<b>Sex</b> & more");
        DictionaryEdit::setDocumentation(sex, R"(first#\#n<i>second</i>)");
        info.showVariable(sex);
        info.show();
        QCOMPARE(info.windowTitle(), "Variable: PERSON.SEX");
        const QStringList texts = shown(info);
        QVERIFY(texts.contains("Variable Properties"));
        QVERIFY(texts.contains("Variable Categories"));
        QVERIFY(follows(texts, "Name: ", "PERSON.SEX"));
        QVERIFY(follows(texts, "Label: ", "<b>Sex</b> & more"));
        QVERIFY(follows(texts, "Alias: ", "GENDER"));
        QVERIFY(follows(texts, "Tag: ", "4"));
        QVERIFY(follows(texts, "Type: ", "INTEGER"));
        QVERIFY(follows(texts, "Missing: ", "9"));
        QVERIFY(follows(texts, "NotApp: ", "-"));
        for (const QLabel* label : info.findChildren<QLabel*>())
            if (label->text().startsWith("<b>"))
                QCOMPARE(label->textFormat(), Qt::PlainText);
        const auto* table = info.findChild<QTableView*>("tableInfoCategories");
        QCOMPARE(table->model()->rowCount(), 4);
        QCOMPARE(table->model()->headerData(0, Qt::Horizontal).toString(), "Code");
        QCOMPARE(table->model()->headerData(1, Qt::Horizontal).toString(), "Label");
        QCOMPARE(table->model()->index(1, 1).data().toString(), "Female");
        QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
        const auto* documentation = info.findChild<QPlainTextEdit*>("teInfoVariableDocumentation");
        QCOMPARE(documentation->toPlainText(), "first\n<i>second</i>");
        QVERIFY(documentation->isReadOnly());
    }

    void unsetIsToldByADash() {
        InfoProperties info;
        TKpVariable& name = *data_->variable("DISTRICT.NAME");
        name.setTag(-1);
        info.showVariable(name);
        info.show();
        for (const char* caption : {"Tag: ", "NotApp: ", "Missing: "})
            QVERIFY(follows(shown(info), caption, "-"));
    }

    void editsAreShownAnew() {
        InfoProperties info;
        info.refresh(data_->root.get()); // nothing is shown yet
        QCOMPARE(info.windowTitle(), "Quick View");
        info.showVariable(*data_->variable("PERSON.SEX"));
        info.show();
        DictionaryEdit::setLabel(*data_->variable("PERSON.SEX"), "Gender");
        data_->rebuild();
        info.refresh(data_->root.get());
        QTRY_VERIFY(follows(shown(info), "Label: ", "Gender"));
        data_->variable("PERSON.SEX")->name = "OTHER";
        data_->entity("PERSON")->variables.first()->label = "Not this";
        info.refresh(data_->root.get());
        info.refresh(nullptr);
        QCOMPARE(info.windowTitle(), "Variable: PERSON.SEX");
        QTRY_VERIFY(follows(shown(info), "Label: ", "Gender"));
        info.showEntity(data_->root.get(), *data_->entity("DISTRICT"));
        DictionaryEdit::setLabel(*data_->entity("DISTRICT"), "Region");
        info.refresh(data_->root.get());
        QTRY_VERIFY(follows(shown(info), "2. DISTRICT: ", "( Region )"));
        data_->entity("DISTRICT")->name = "ELSEWHERE";
        info.refresh(data_->root.get());
        QCOMPARE(info.windowTitle(), "Entity: DISTRICT");
    }

    void entityTakesTheRoomThatItNeeds() {
        InfoProperties info;
        DictionaryEdit::setDocumentation(*data_->entity("DISTRICT"), "Told");
        DictionaryEdit::setDocumentation(*data_->entity("PERSON"), "");
        info.showEntity(data_->root.get(), *data_->entity("DISTRICT"));
        info.resize(400, 900);
        info.show();
        const auto* tree = info.findChild<QTreeWidget*>("treeElements");
        const auto* text = info.findChild<QPlainTextEdit*>("teInfoEntityDocumentation");
        const auto* caption = info.findChild<QLabel*>("lbEntityDocumentation");
        QVERIFY(text->isVisible() && caption->isVisible());
        const int rowHeight = tree->visualItemRect(tree->topLevelItem(0)).height();
        const auto spare = [&] {
            const auto* last = tree->topLevelItem(0);
            for (const auto* next = last; next != nullptr; next = tree->itemBelow(next))
                last = next;
            return tree->viewport()->height() - tree->visualItemRect(last).bottom() - 1;
        };
        QTRY_VERIFY(spare() >= 0 && spare() < rowHeight);
        tree->topLevelItem(0)->setExpanded(false);
        QTRY_VERIFY(spare() >= 0 && spare() < rowHeight);
        info.showEntity(data_->root.get(), *data_->entity("PERSON"));
        QVERIFY(!text->isVisible() && !caption->isVisible());
        QTRY_VERIFY(spare() >= 0 && spare() < rowHeight);
        QCOMPARE(tree->visualItemRect(tree->topLevelItem(0)).left(), 0);
    }

    void whatIsShownOutlivesTheDictionary() {
        InfoProperties info;
        info.showEntity(data_->root.get(), *data_->entity("DISTRICT"));
        info.show();
        data_->root.reset();
        data_->dictionary.reset();
        info.retranslate();
        QTRY_VERIFY(shown(info).contains("2. DISTRICT: "));
        QCOMPARE(info.windowTitle(), "Entity: DISTRICT");
        info.clear();
        QCOMPARE(info.windowTitle(), "Quick View");
        QVERIFY(shown(info).isEmpty());
    }

    void entityIsTold() {
        InfoProperties info;
        info.showEntity(data_->root.get(), *data_->entity("DISTRICT"));
        info.show();
        const QStringList district = shown(info);
        QVERIFY(follows(district, "1. COUNTRY", "2. DISTRICT: "));
        QVERIFY(follows(district, "2. DISTRICT: ", "( District )"));
        QVERIFY(follows(district, "Code Variable: ", "CODE"));
        QVERIFY(follows(district, "Label Variable: ", "NAME"));
        QVERIFY(district.contains("No automatic weight"));
        QVERIFY(follows(district, "Number of Elements: ", "2"));
        const auto* tree = info.findChild<QTreeWidget*>("treeElements");
        QCOMPARE(names(tree->topLevelItem(0)),
                 QStringList({"DISTRICT=2", "HOUSEHOLD=3", "PERSON=7"}));
        QCOMPARE(tree->headerItem()->text(1), "Number of Elements");
        info.showEntity(data_->root.get(), *data_->entity("HOUSEHOLD"));
        QTRY_VERIFY(shown(info).contains("Entity cannot be selected"));
        const QStringList household = shown(info);
        QVERIFY(household.contains("Entity has not Label Variable"));
        QVERIFY(household.contains("Automatic weight variable [HOUSEHOLD.WEIGHT]"));
        QVERIFY(!household.contains("2. DISTRICT"));
        data_->entity("PERSON")->isVirtual = true;
        info.showEntity(data_->root.get(), *data_->entity("PERSON"));
        QTRY_VERIFY(follows(shown(info), "Virtual Entity - Mother is ", "HOUSEHOLD"));
    }

    void quickViewFollowsTheLanguage() {
        InfoProperties info;
        info.showEntity(data_->root.get(), *data_->entity("DISTRICT"));
        info.show();
        Capitals capitals;
        QVERIFY(QCoreApplication::installTranslator(&capitals));
        QTRY_COMPARE(info.windowTitle(), "ENTITY: DISTRICT");
        QTRY_VERIFY(follows(shown(info), "CODE VARIABLE: ", "CODE"));
        QCOMPARE(info.findChild<QTreeWidget*>("treeElements")->headerItem()->text(0), "ENTITY");
        QCoreApplication::removeTranslator(&capitals);
        QTRY_VERIFY(follows(shown(info), "Code Variable: ", "CODE"));
    }

    void variableDialogEdits() {
        TKpVariable& age = *data_->variable("PERSON.AGE");
        TabDialogVariableProperties dialog(data_->root, age);
        QSignalSpy changed(&dialog, &TabDialogVariableProperties::variablechanged);
        QSignalSpy closed(&dialog, &AppProperties::closeAppProperties);
        dialog.show();
        QCOMPARE(dialog.windowTitle(), "Properties of PERSON.AGE");
        const auto* tabs = dialog.findChild<QTabWidget*>("tabs");
        QCOMPARE(tabs->tabText(1), "Thecnical specification");
        QCOMPARE(tabs->tabText(2), "Data Source");
        QCOMPARE(dialog.findChild<QComboBox*>("comboBoxType")->currentText(), "INTEGER");
        QCOMPARE(dialog.findChild<QSpinBox*>("spinBoxNotAplica")->value(), 999);
        QCOMPARE(dialog.findChild<QSpinBox*>("spinBoxSize")->value(), 3);
        QCOMPARE(dialog.findChild<QPlainTextEdit*>("teVarDocumentation")->toPlainText(),
                 "Completed years");
        press(dialog, "bHelp");
        QCOMPARE(data_->messages, QStringList("EN CONSTRUCCION"));
        auto* alias = dialog.findChild<QLineEdit*>("leVarAlias");
        QTest::keyClicks(alias, "SEX");
        data_->answer = Choice::Yes;
        press(dialog, "bClose");
        // The question and the refusal; the dialog stays.
        QCOMPARE(data_->messages.size(), 3);
        QCOMPARE(data_->messages[1], "Variable definition has been modified. Save changes?\n");
        QVERIFY(dialog.isVisible());
        QCOMPARE(closed.count(), 0);
        alias->clear();
        QTest::keyClicks(alias, "YEARS");
        const QString other = data_->variable("PERSON.SEX")->path;
        dialog.findChild<QTabWidget*>("tabs")->setCurrentIndex(2);
        KelvoraFileDialog::answerNext(other);
        press(dialog, "btnBrowse");
        press(dialog, "bClose");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(closed.count(), 1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(age.alias, "YEARS");
        QCOMPARE(age.path, other);
        QCOMPARE(age.fileName, "PERSON_SEX.kbf");
        QCOMPARE(DictionaryEdit::engineVariable(age)->fileName(), "PERSON_SEX.kbf");
    }

    void unchangedVariableDialogAsksNothing() {
        TabDialogVariableProperties dialog(data_->root, *data_->variable("PERSON.SEX"));
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QVERIFY(data_->messages.isEmpty());
    }

    void entityDialogEdits() {
        TKpEntity& person = *data_->entity("PERSON");
        person.extraText = "carried";
        DialogEntityProperties dialog(data_->root, person);
        QSignalSpy changed(&dialog, &DialogEntityProperties::entitychanged);
        dialog.show();
        auto* label = dialog.findChild<QLineEdit*>("leLabel");
        label->setText("People");
        data_->answer = Choice::No;
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(data_->messages,
                 QStringList("Entity definition has been modified. Save changes?"));
        QCOMPARE(person.label, "Person");
        dialog.show();
        data_->answer = Choice::Yes;
        dialog.close();
        QCOMPARE(person.label, "People");
        QCOMPARE(person.engineEntity->label(), "People");
        QCOMPARE(person.extraText, "carried");
        QCOMPARE(changed.count(), 1);
    }

    void missingFileIsTold() {
        QVERIFY(QFile::remove(data_->variable("PERSON.INCOME")->path));
        TabDialogVariableProperties dialog(data_->root, *data_->variable("PERSON.INCOME"));
        QVERIFY(!dialog.findChild<QCheckBox*>("cbFoundOnDisk")->isChecked());
        TabDialogVariableProperties there(data_->root, *data_->variable("PERSON.SEX"));
        QVERIFY(there.findChild<QCheckBox*>("cbFoundOnDisk")->isChecked());
    }
};

QTEST_MAIN(TestQuickView)
#include "tst_quickview.moc"

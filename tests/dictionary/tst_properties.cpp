// SPDX-License-Identifier: GPL-3.0-or-later
// The docks of properties as a user works in them, on a small database.
#include "PropertiesFixture.h"
#include "app/widgets/ElidedLabel.h"
#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/properties/TfrmProperties.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include <memory>

class TestProperties : public QObject {
    Q_OBJECT

    std::unique_ptr<PropertiesFixture> data_;
    std::unique_ptr<DockShell> shell_;
    std::unique_ptr<TfrmProperties> properties_;
    std::unique_ptr<QSignalSpy> varChanged_;
    std::unique_ptr<QSignalSpy> entChanged_;

    template <class Widget>
    Widget* find(const char* name) const {
        auto* widget = shell_->window()->findChild<Widget*>(QLatin1String(name));
        if (widget == nullptr)
            qFatal("no widget %s", name);
        return widget;
    }

    /// As a user does: selects what stands there and types.
    void type(const char* name, const QString& text) {
        auto* edit = find<QLineEdit>(name);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }

    void press(const char* name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    void enter(const char* name) { QTest::keyClick(find<QLineEdit>(name), Qt::Key_Return); }
    QString textOf(const char* name) const { return find<QLineEdit>(name)->text(); }

    QAbstractItemModel* categories() const { return find<QTableView>("tableCategories")->model(); }
    QString cell(int row, int column) const {
        return categories()->index(row, column).data().toString();
    }
    /// Opens the cell, which may be open already, and types over what it holds.
    QLineEdit* openCell(int row, int column, const QString& text) {
        auto* table = find<QTableView>("tableCategories");
        const QModelIndex cell = table->model()->index(row, column);
        table->setCurrentIndex(cell);
        if (!table->isPersistentEditorOpen(cell))
            table->edit(cell);
        for (auto* editor : table->viewport()->findChildren<QLineEdit*>()) {
            if (editor->isHidden())
                continue;
            editor->selectAll();
            QTest::keyClicks(editor, text);
            return editor;
        }
        qFatal("the cell does not open");
    }
    void typeCell(int row, int column, const QString& text) {
        QTest::keyClick(openCell(row, column, text), Qt::Key_Return);
        QTRY_COMPARE(cell(row, column), text.trimmed());
    }
    void selectRow(int row) {
        auto* table = find<QTableView>("tableCategories");
        table->setFocus();
        table->setCurrentIndex(table->model()->index(row, 0));
    }

    TKpVariable* sex() const { return data_->variable("PERSON.SEX"); }

private slots:
    void initTestCase() { data_ = std::make_unique<PropertiesFixture>(); }
    void cleanupTestCase() { data_.reset(); }

    void init() {
        data_->open();
        shell_ = std::make_unique<DockShell>();
        properties_ = std::make_unique<TfrmProperties>(*shell_);
        properties_->setRoot(data_->root);
        varChanged_ = std::make_unique<QSignalSpy>(properties_.get(), &TfrmProperties::varchanged);
        entChanged_ = std::make_unique<QSignalSpy>(properties_.get(), &TfrmProperties::entchanged);
        QVERIFY(properties_->showEntity(data_->entity("PERSON")));
        QVERIFY(properties_->showVariable(sex()));
        shell_->window()->show();
        QVERIFY(QTest::qWaitForWindowActive(shell_->window()));
    }

    void cleanup() {
        varChanged_.reset();
        entChanged_.reset();
        properties_.reset();
        shell_.reset();
    }

    void entityIsShown() {
        QVERIFY(properties_->showEntity(data_->entity("DISTRICT")));
        QDockWidget* dock = shell_->dock("Entity Properties");
        QCOMPARE(dock->windowTitle().remove("[*]"), "Entity Properties - DISTRICT");
        QCOMPARE(textOf("leLabel"), "District");
        QCOMPARE(textOf("leTag"), "");
        QCOMPARE(find<QComboBox>("cbxCodeVar")->currentText(), "CODE");
        QCOMPARE(find<QComboBox>("cbxCodeVar")->count(), 1);
        QCOMPARE(find<QComboBox>("cbxLabelVar")->currentText(), "NAME");
        QCOMPARE(find<QComboBox>("cbxWeightVar")->currentText(), "-");
        QVERIFY(find<QComboBox>("cbxCmpcodeVar")->count() == 1);
        QCOMPARE(find<QLabel>("lbGeoCodeValue")->text(), "00");
        QCOMPARE(find<QLabel>("lbTotalValue")->text(), "2");
        QVERIFY(find<QCheckBox>("cbSelectable")->isChecked());
        QVERIFY(find<QCheckBox>("cbOnDisk")->isChecked());
        QVERIFY(!find<QCheckBox>("cbVirtual")->isChecked());
        QVERIFY(!find<QCheckBox>("cbSensitive")->isChecked());
        QTest::mouseClick(find<QCheckBox>("cbSelectable"), Qt::LeftButton);
        QVERIFY(find<QCheckBox>("cbSelectable")->isChecked());
        QVERIFY(properties_->showEntity(data_->entity("HOUSEHOLD")));
        QCOMPARE(find<QComboBox>("cbxWeightVar")->currentText(), "HOUSEHOLD.WEIGHT");
        QVERIFY(properties_->showEntity(data_->entity("PERSON")));
        QCOMPARE(find<QLabel>("lbGeoCodeValue")->text(), "-"); // no code at all
        QCOMPARE(entChanged_->count(), 0);
        QVERIFY(data_->messages.isEmpty());
    }

    void variablesOfAnEntityAreNotChosen() {
        for (const char* name :
             {"cbxCodeVar", "cbxLabelVar", "cbxWeightVar", "cbxCmpcodeVar", "cbxSdcVar"}) {
            auto* combo = find<QComboBox>(name);
            QVERIFY(combo->isEnabled()); // readable, not grey
            QCOMPARE(combo->focusPolicy(), Qt::NoFocus);
            QTest::mouseClick(combo, Qt::LeftButton);
            QVERIFY(QApplication::activePopupWidget() == nullptr);
        }
        properties_->setRoot(nullptr);
        QCOMPARE(find<QComboBox>("cbxSdcVar")->count(), 0);
    }

    void negativeTagIsEdited() {
        DictionaryEdit::setTag(*sex(), -5);
        QVERIFY(properties_->showVariable(sex()));
        QCOMPARE(textOf("leVarTag"), "-5");
        type("leVarTag", "-7");
        press("btnSave");
        QCOMPARE(sex()->tag, -7);
        type("leVarTag", "");
        press("btnSave");
        QCOMPARE(sex()->tag, -1);
    }

    void longPathIsElidedAndToldWhole() {
        auto* file = find<ElidedLabel>("lbPointerValue");
        const QString path = data_->entity("PERSON")->fullPath;
        QCOMPARE(file->text(), path);
        QVERIFY(file->toolTip().contains("PERSON.kpt"));
        file->resize(60, file->height());
        QVERIFY(file->shownText().contains(QChar(0x2026)));
        QVERIFY(file->fontMetrics().horizontalAdvance(file->shownText()) <= 60);
        QVERIFY(file->minimumSizeHint().width() < 150);
    }

    void entityAliasIsStoredByReturn() {
        type("leAlias", "PEOPLE");
        QCOMPARE(data_->entity("PERSON")->alias, "");
        enter("leAlias");
        QCOMPARE(data_->entity("PERSON")->alias, "PEOPLE");
        QCOMPARE(data_->entity("PERSON")->engineEntity->alias(), "PEOPLE");
        QCOMPARE(entChanged_->count(), 1);
        QVERIFY(shell_->dock("Entity Properties")->isWindowModified());
        properties_->setChanged(false);
        QVERIFY(!shell_->dock("Entity Properties")->isWindowModified());
        enter("leAlias");
        QCOMPARE(entChanged_->count(), 1);
        type("leAlias", "");
        enter("leAlias");
        QCOMPARE(data_->entity("PERSON")->alias, "");
        QCOMPARE(entChanged_->count(), 2);
        QVERIFY(data_->messages.isEmpty());
    }

    void aliasCannotBeginWithADigit() {
        for (const char* edit : {"leAlias", "leVarAlias", "leVarGroup"}) {
            type(edit, "1-");
            QCOMPARE(textOf(edit), "");
            type(edit, "A1");
            QCOMPARE(textOf(edit), "A1");
        }
        type("leTag", "a1-2");
        QCOMPARE(textOf("leTag"), "12");
    }

    void refusedAliasIsToldOnce_data() {
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QString>("message");
        QTest::newRow("reserved") << "TABLE"
                                  << "The typed character string is a Kelvora reserved word";
        QTest::newRow("entity") << "district"
                                << "The typed character string already exists and it is the entity "
                                   "DISTRICT";
        QTest::newRow("alias") << "GENDER"
                               << "The typed character string already exists as a variable name: "
                                  "PERSON.SEX";
    }

    void refusedAliasIsToldOnce() {
        QFETCH(QString, alias);
        QFETCH(QString, message);
        QVERIFY(properties_->showVariable(data_->variable("PERSON.AGE")));
        DictionaryEdit::setAlias(*data_->variable("PERSON.AGE"), "YEARS");
        QVERIFY(properties_->showVariable(data_->variable("PERSON.AGE")));
        type("leVarAlias", alias);
        enter("leVarAlias");
        QCOMPARE(data_->messages, QStringList(message));
        QCOMPARE(textOf("leVarAlias"), "");
        QCOMPARE(data_->variable("PERSON.AGE")->alias, "YEARS");
        QCOMPARE(find<QLineEdit>("leVarAlias")->placeholderText(), "YEARS");
        // The empty edit is not a wish to have no alias.
        type("leVarLabel", "Years of age");
        press("btnSave");
        QCOMPARE(data_->variable("PERSON.AGE")->alias, "YEARS");
        QCOMPARE(data_->variable("PERSON.AGE")->label, "Years of age");
        type("leAlias", alias);
        enter("leAlias");
        QCOMPARE(data_->messages, QStringList({message, message}));
        QCOMPARE(data_->entity("PERSON")->alias, "");
        QCOMPARE(entChanged_->count(), 0);
    }

    void entityTextsAreStoredWhenLeft() {
        type("leLabel", "People");
        QCOMPARE(data_->entity("PERSON")->label, "Person");
        type("leTag", "12345");
        QCOMPARE(data_->entity("PERSON")->label, "People");
        enter("leTag");
        QCOMPARE(data_->entity("PERSON")->tag, 9999);
        QCOMPARE(textOf("leTag"), "9999");
        auto* documentation = find<QPlainTextEdit>("teDocumentation");
        find<QTabWidget>("tabs")->setCurrentIndex(1);
        documentation->setFocus();
        QTest::keyClicks(documentation, "one");
        QTest::keyClick(documentation, Qt::Key_Return);
        QTest::keyClicks(documentation, "two");
        // Another selection comes while the box still has the focus.
        QVERIFY(properties_->showEntity(data_->entity("DISTRICT")));
        QCOMPARE(data_->entity("PERSON")->documentation, R"(one#\#ntwo)");
        QCOMPARE(find<QPlainTextEdit>("teDocumentation")->toPlainText(), "");
        QVERIFY(properties_->showEntity(data_->entity("PERSON")));
        QCOMPARE(documentation->toPlainText(), "one\ntwo");
        QVERIFY(data_->messages.isEmpty());
        QCOMPARE(entChanged_->count(), 3);
    }

    void variableIsSaved() {
        QCOMPARE(shell_->dock("Variable Properties")->windowTitle().remove("[*]"),
                 "Variable Properties - PERSON.SEX");
        auto* save = find<QPushButton>("btnSave");
        QVERIFY(!save->isEnabled());
        type("leVarLabel", "Sex");
        type("leVarTag", "7");
        type("leVarGroup", "Basics");
        QTest::mouseClick(find<QCheckBox>("cbHidden"), Qt::LeftButton, Qt::NoModifier,
                          QPoint(8, find<QCheckBox>("cbHidden")->height() / 2));
        QCOMPARE(sex()->label, "Sex of the person");
        QCOMPARE(varChanged_->count(), 0);
        press("btnSave");
        QCOMPARE(varChanged_->count(), 1);
        QVERIFY(!save->isEnabled());
        data_->open(data_->save());
        QCOMPARE(sex()->label, "Sex");
        QCOMPARE(sex()->tag, 7);
        QCOMPARE(sex()->group, "Basics");
        QCOMPARE(sex()->hidden, true);
        QCOMPARE(sex()->alias, "GENDER");
        QCOMPARE(sex()->valueLabels->size(), 4);
        properties_->setRoot(data_->root);
    }

    void groupIsStoredByReturnAlone() {
        type("leVarLabel", "Sex");
        type("leVarGroup", "Basics");
        enter("leVarGroup");
        QCOMPARE(sex()->group, "Basics");
        QCOMPARE(sex()->label, "Sex of the person");
        QVERIFY(find<QPushButton>("btnSave")->isEnabled());
        QCOMPARE(varChanged_->count(), 1);
    }

    void technicalFactsAreShown() {
        const auto fact = [this](const char* name) { return find<QLabel>(name)->text(); };
        QCOMPARE(fact("lbVarTypeValue"), "INTEGER");
        QCOMPARE(fact("lbVarMissingValue"), "9");
        QCOMPARE(fact("lbVarNotAppValue"), ""); // it has none, which is not 0
        QVERIFY(fact("lbVarFileValue").endsWith("PERSON_SEX.kbf"));
        QVERIFY(find<QCheckBox>("cbVarOnDisk")->isChecked());
        QVERIFY(properties_->showVariable(data_->variable("PERSON.AGE")));
        QCOMPARE(fact("lbVarNotAppValue"), "999");
    }

    void categoriesAreEdited() {
        QCOMPARE(categories()->rowCount(), 4);
        press("btnAdd");
        QCOMPARE(categories()->rowCount(), 5);
        typeCell(4, 0, " 3 ");
        typeCell(4, 1, "Third");
        typeCell(0, 1, "Man");
        selectRow(1);
        press("btnRemove");
        QCOMPARE(sex()->valueLabels->size(), 4);
        press("btnSave");
        QCOMPARE(*sex()->valueLabels,
                 QList<ValueLabelElement>(
                     {{"1", "Man"}, {"9", "Not stated"}, {"10", "Other"}, {"3", "Third"}}));
        data_->open(data_->save());
        QCOMPARE(sex()->labelOf(std::string("3")), "Third");
        QCOMPARE(sex()->labelOf(std::string("2")), "");
        properties_->setRoot(data_->root);
    }

    void categoriesAreCopiedAndPasted() {
        QClipboard* clipboard = QGuiApplication::clipboard();
        press("btnCopy");
        QCOMPARE(clipboard->text(), "1\tMale\r\n2\tFemale\r\n9\tNot stated\r\n10\tOther\r\n");
        QVERIFY(properties_->showVariable(data_->variable("HOUSEHOLD.ROOMS")));
        press("btnPaste");
        QCOMPARE(categories()->rowCount(), 4);
        QCOMPARE(cell(3, 1), "Other");
        press("btnClear");
        press("btnCopy");
        QCOMPARE(clipboard->text(), "");
        clipboard->setText("5\tFive\nno tab\n6\tSix\tmore\n\n7 \t Seven\r\n");
        press("btnPaste");
        QCOMPARE(categories()->rowCount(), 2);
        QCOMPARE(cell(1, 0), "7");
        QCOMPARE(cell(1, 1), "Seven");
        QVERIFY(find<QLabel>("lbCategoryMessage")->isVisible());
        QVERIFY(find<QLabel>("lbCategoryMessage")->text().endsWith(": 2"));
    }

    void categoriesAreTakenBack() {
        selectRow(0);
        press("btnRemove");
        press("btnClear");
        QCOMPARE(categories()->rowCount(), 0);
        press("btnUndo");
        QCOMPARE(categories()->rowCount(), 3);
        auto* table = find<QTableView>("tableCategories");
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(categories()->rowCount(), 4);
        QVERIFY(!find<QPushButton>("btnUndo")->isEnabled());
        QVERIFY(!find<QPushButton>("btnSave")->isEnabled());
        // Nothing of one variable is taken back in another.
        press("btnClear");
        data_->answer = Choice::No;
        QVERIFY(properties_->showVariable(data_->variable("PERSON.AGE")));
        QVERIFY(!find<QPushButton>("btnUndo")->isEnabled());
        QCOMPARE(sex()->valueLabels->size(), 4);
    }

    void doubleCodesAreNotLost() {
        press("btnAdd");
        typeCell(4, 0, "9");
        typeCell(4, 1, "Unknown");
        const auto icon = categories()->index(4, 0).data(Qt::DecorationRole).value<QIcon>();
        QCOMPARE(icon.pixmap(16).toImage(),
                 QIcon(":/icons/res/icons/48px-Missing.png").pixmap(16).toImage());
        QVERIFY(!icon.pixmap(16).isNull());
        QVERIFY(!categories()->index(2, 0).data(Qt::DecorationRole).isNull());
        QVERIFY(categories()->index(1, 0).data(Qt::DecorationRole).isNull());
        type("leVarLabel", "Sex");
        press("btnSave");
        QCOMPARE(data_->messages, QStringList("The code 9 stands more than once in the table"));
        QCOMPARE(sex()->label, "Sex of the person");
        data_->answer = Choice::Yes;
        QVERIFY(!properties_->showVariable(data_->variable("PERSON.AGE")));
        QCOMPARE(textOf("leVarLabel"), "Sex");
        QVERIFY(!properties_->settlePending());
        typeCell(4, 0, "8");
        QVERIFY(categories()->index(2, 0).data(Qt::DecorationRole).isNull());
        QVERIFY(properties_->settlePending());
        QCOMPARE(sex()->valueLabels->size(), 5);
        press("btnAdd");
        typeCell(5, 1, "Without code");
        press("btnSave");
        QCOMPARE(data_->messages.last(), "The category \"Without code\" has no code");
        QCOMPARE(sex()->valueLabels->size(), 5);
    }

    void codesSortAsNumbers() {
        auto* table = find<QTableView>("tableCategories");
        table->sortByColumn(0, Qt::DescendingOrder);
        QCOMPARE(cell(0, 0), "10");
        QCOMPARE(cell(3, 0), "1");
        // What is clicked in the sorted table is what goes.
        selectRow(0);
        press("btnRemove");
        press("btnSave");
        QCOMPARE(sex()->labelOf(std::string("10")), "");
        QCOMPARE(sex()->labelOf(std::string("1")), "Male");
        press("btnClear");
        QGuiApplication::clipboard()->setText("nan\tc\n2\tb\nx\td\n10\tB\n1\ta\n");
        press("btnPaste");
        table->sortByColumn(0, Qt::AscendingOrder);
        QStringList codes;
        for (int row = 0; row < categories()->rowCount(); ++row)
            codes += cell(row, 0);
        QCOMPARE(codes, QStringList({"1", "2", "10", "nan", "x"}));
    }

    void unsavedEditsAreAskedAbout() {
        type("leVarLabel", "Sex");
        QVERIFY(properties_->hasPending());
        data_->answer = Choice::No;
        QVERIFY(properties_->showVariable(data_->variable("PERSON.AGE")));
        QCOMPARE(data_->messages,
                 QStringList("Variable definition has been modified. Save changes?\n"));
        QCOMPARE(sex()->label, "Sex of the person");
        QCOMPARE(textOf("leVarLabel"), "Age in years");
        type("leVarLabel", "Age");
        data_->answer = Choice::Yes;
        QVERIFY(properties_->showVariable(sex()));
        QCOMPARE(data_->variable("PERSON.AGE")->label, "Age");
        QCOMPARE(varChanged_->count(), 1);
        type("leAlias", "PEOPLE");
        data_->messages.clear();
        QVERIFY(properties_->showEntity(data_->entity("DISTRICT")));
        QCOMPARE(data_->messages,
                 QStringList("Entity definition has been modified. Save changes?"));
        QCOMPARE(data_->entity("PERSON")->alias, "PEOPLE");
        QVERIFY(properties_->settlePending());
        QCOMPARE(data_->messages.size(), 1);
    }

    void questionClosedWithoutAnAnswerLosesNothing() {
        type("leVarLabel", "Sex");
        type("leAlias", "PEOPLE");
        data_->answer = Choice::Cancel;
        QVERIFY(!properties_->showVariable(data_->variable("PERSON.AGE")));
        QVERIFY(!properties_->showEntity(data_->entity("DISTRICT")));
        QVERIFY(!properties_->settlePending());
        QVERIFY(properties_->hasPending());
        QCOMPARE(textOf("leVarLabel"), "Sex");
        QCOMPARE(textOf("leAlias"), "PEOPLE");
        QCOMPARE(sex()->label, "Sex of the person");
        QCOMPARE(data_->entity("PERSON")->alias, "");
        QCOMPARE(data_->messages.size(), 3);
    }

    void textInAnOpenCellIsNotForgotten() {
        openCell(0, 1, "Man");
        data_->answer = Choice::Yes;
        QVERIFY(properties_->settlePending());
        QCOMPARE(data_->messages.size(), 1);
        QCOMPARE(sex()->labelOf(std::string("1")), "Man");
    }

    void longTextsDoNotWidenTheDocks() {
        const int entityWidth = shell_->dock("Entity Properties")->minimumSizeHint().width();
        const int variableWidth = shell_->dock("Variable Properties")->minimumSizeHint().width();
        const QString longText(300, 'W');
        TKpEntity& person = *data_->entity("PERSON");
        person.refCode = person.weightVar = person.label = longText;
        person.fullPath = "/" + longText;
        person.selectable = true;
        person.variables.first()->size = 400;
        sex()->label = sex()->group = longText;
        sex()->path = "/" + longText;
        sex()->valueLabels = std::make_shared<QList<ValueLabelElement>>(
            QList<ValueLabelElement>{{longText, longText}, {longText, longText}});
        QVERIFY(properties_->showEntity(&person));
        QVERIFY(properties_->showVariable(sex()));
        QApplication::processEvents();
        QCOMPARE(shell_->dock("Entity Properties")->minimumSizeHint().width(), entityWidth);
        QCOMPARE(shell_->dock("Variable Properties")->minimumSizeHint().width(), variableWidth);
        auto* tabs = shell_->dock("Entity Properties")->findChild<QTabWidget*>("tabs");
        auto* page = qobject_cast<QScrollArea*>(tabs->widget(0));
        QVERIFY(page->widget()->minimumSizeHint().width() <= 260);
    }

    void captionsFollowTheLanguage() {
        Capitals capitals;
        QVERIFY(QCoreApplication::installTranslator(&capitals));
        QTRY_COMPARE(shell_->dock("Variable Properties")->windowTitle().remove("[*]"),
                     "VARIABLE PROPERTIES - PERSON.SEX");
        QCOMPARE(find<QPushButton>("btnPaste")->text(), "PASTE");
        QCOMPARE(find<QCheckBox>("cbSensitive")->text(), "SENSITIVEENTITY");
        QCOMPARE(categories()->headerData(0, Qt::Horizontal).toString(), "CODE");
        QCOMPARE(textOf("leVarLabel"), "Sex of the person");
        QCoreApplication::removeTranslator(&capitals);
        QTRY_COMPARE(find<QPushButton>("btnSave")->text(), "Save");
    }

    void docksThatOutliveTheirOwnerAreEmpty() {
        type("leLabel", "People");
        properties_.reset();
        QVERIFY(textOf("leLabel").isEmpty());
        QVERIFY(!find<QLineEdit>("leVarLabel")->isEnabled());
        QCOMPARE(data_->entity("PERSON")->label, "Person");
    }

    void rebuiltMirrorKeepsWhatWasTyped() {
        type("leVarLabel", "Sex");
        DictionaryEdit::setGroup(*sex(), "Other");
        const std::weak_ptr<TKpEntity> old = data_->root;
        data_->rebuild();
        properties_->setRoot(data_->root);
        QVERIFY(old.expired());
        QCOMPARE(textOf("leVarLabel"), "Sex");
        QCOMPARE(textOf("leVarGroup"), "Other");
        press("btnSave");
        QCOMPARE(sex()->label, "Sex");
        type("leLabel", "People");
        enter("leLabel");
        QCOMPARE(data_->entity("PERSON")->label, "People");
        properties_->setRoot(nullptr);
        QCOMPARE(textOf("leVarLabel"), "");
        QVERIFY(!properties_->hasPending());
        QVERIFY(data_->messages.isEmpty());
    }
};

QTEST_MAIN(TestProperties)
#include "tst_properties.moc"

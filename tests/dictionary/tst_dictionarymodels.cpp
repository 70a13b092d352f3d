// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/DictionaryBrowser.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "dictionary/views/EntityTreeModel.h"
#include "dictionary/views/ValueLabelModel.h"
#include "dictionary/views/VariableFilter.h"
#include "dictionary/views/VariableTableModel.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTreeView>

namespace {

TKpEntity* addEntity(TKpEntity* parent, const QString& name, int records) {
    auto* entity = new TKpEntity(nullptr);
    entity->name = name;
    entity->instanceCount = records;
    if (parent != nullptr)
        parent->children.append(entity);
    return entity;
}

TKpVariable* addVariable(TKpEntity* entity, const QString& name, const QString& label,
                         const QString& group) {
    auto* variable = new TKpVariable(entity);
    variable->name = name;
    variable->label = label;
    variable->group = group;
    variable->fullName = entity->name + '.' + name;
    variable->typeName = QStringLiteral("INTEGER");
    entity->variables.append(variable);
    return variable;
}

} // namespace

class TestDictionaryModels : public QObject {
    Q_OBJECT

    std::unique_ptr<TKpEntity> root_;
    TKpEntity* person_ = nullptr;

private slots:
    void init() {
        root_.reset(addEntity(nullptr, "COUNTRY", 1));
        TKpEntity* household = addEntity(root_.get(), "HOUSEHOLD", 3);
        person_ = addEntity(household, "PERSON", 7);
        addEntity(household, "EMIGRANT", 0);
        TKpVariable* sex = addVariable(person_, "SEX", "Sex", "Demography");
        sex->addValueLabel("1", "Male");
        sex->addValueLabel("2", "Female");
        sex->size = 1;
        sex->fileExists = true;
        addVariable(person_, "AGE", "Age in years", "Demography");
        addVariable(person_, "WAGE", "Income", "Work");
    }

    void entityTreeFollowsTheMirror() {
        EntityTreeModel model;
        const QAbstractItemModelTester tester(&model);
        QCOMPARE(model.rowCount(), 0);
        model.setRoot(root_.get());
        const QModelIndex household = model.index(0, 0, model.index(0, 0));
        QCOMPARE(household.data().toString(), "HOUSEHOLD");
        QCOMPARE(model.rowCount(household), 2);
        const QModelIndex person = model.index(0, 0, household);
        QCOMPARE(model.entityAt(person), person_);
        QCOMPARE(person.siblingAtColumn(EntityTreeModel::RecordsColumn).data().toString(), "7");
        QCOMPARE(person.parent(), household);
        QCOMPARE(model.indexOf(person_), person);
        QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "Records");
        model.setRoot(nullptr);
        QCOMPARE(model.rowCount(), 0);
    }

    void entityWithoutItsFileIsMarked() {
        person_->fileName = "PERSON.kpt";
        person_->fullPath = "/data/PERSON.kpt";
        EntityTreeModel model;
        model.setRoot(root_.get());
        const QModelIndex person = model.indexOf(person_);
        QCOMPARE(person.siblingAtColumn(EntityTreeModel::RecordsColumn).data().toString(), "");
        QVERIFY(person.data(Qt::ToolTipRole).toString().contains("/data/PERSON.kpt"));
        const auto image = [](const QModelIndex& index) {
            return index.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
        };
        QVERIFY(image(person) != image(person.parent()));
        person_->fileExists = true;
        QCOMPARE(person.siblingAtColumn(EntityTreeModel::RecordsColumn).data().toString(), "7");
    }

    void variableTableTellsEachColumn() {
        VariableTableModel model;
        const QAbstractItemModelTester tester(&model);
        model.setEntity(person_);
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells += model.index(0, column).data().toString();
        QCOMPARE(cells, QStringList({"SEX", "Sex", "INTEGER", "Demography", "1", "2", "Found"}));
        QCOMPARE(model.index(1, VariableTableModel::FileColumn).data().toString(), "Missing");
        QVERIFY(model.index(0, 0).data(Qt::ToolTipRole).toString().contains("PERSON.SEX"));
        QCOMPARE(model.variableAt(3), nullptr);
        QCOMPARE(model.variableAt(-1), nullptr);
    }

    void filterLooksAtNameLabelAndGroup_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("rows");
        QTest::newRow("none") << "" << 3;
        QTest::newRow("blanks") << "  " << 3;
        QTest::newRow("name, in any case") << "wAg" << 1;
        QTest::newRow("name of two") << "AGE" << 2;
        QTest::newRow("label") << "years" << 1;
        QTest::newRow("group") << "demo" << 2;
        QTest::newRow("type does not count") << "INTEGER" << 0;
        QTest::newRow("no pattern") << ".*" << 0;
    }

    void filterLooksAtNameLabelAndGroup() {
        QFETCH(QString, text);
        QFETCH(int, rows);
        VariableTableModel model;
        model.setEntity(person_);
        VariableFilter filter;
        filter.setSourceModel(&model);
        filter.setText(text);
        QCOMPARE(filter.rowCount(), rows);
    }

    void valueLabelsAreCopied() {
        ValueLabelModel model;
        const QAbstractItemModelTester tester(&model);
        model.setVariable(person_->variables[0]);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.index(1, 0).data().toString(), "2");
        QCOMPARE(model.index(1, 1).data().toString(), "Female");
        model.setVariable(person_->variables[1]);
        QCOMPARE(model.rowCount(), 0);
    }

    void browserFollowsTheSelection() {
        DictionaryBrowser browser;
        auto* tree = browser.findChild<QTreeView*>("entityTree");
        auto* table = browser.findChild<QTableView*>("variableTable");
        auto* labels = browser.findChild<QTableView*>("valueLabelTable");
        auto* filter = browser.findChild<QLineEdit*>("variableFilter");
        QVERIFY(browser.currentVariable() == nullptr);
        browser.setRoot(root_.get());
        QCOMPARE(tree->currentIndex().data().toString(), "PERSON"); // the first with variables
        QCOMPARE(table->model()->rowCount(), 3);
        const QModelIndex country = tree->model()->index(0, 0);
        tree->setCurrentIndex(country);
        QCOMPARE(table->model()->rowCount(), 0);
        QVERIFY(browser.currentVariable() == nullptr);
        tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0, country)));
        QCOMPARE(browser.currentVariable()->fullName, "PERSON.SEX");
        QCOMPARE(labels->model()->rowCount(), 2);
        QTest::keyClicks(filter, "wage");
        QCOMPARE(table->model()->rowCount(), 1);
        QCOMPARE(browser.findChild<QLabel*>("variableCount")->text(), "1 of 3");
        table->setCurrentIndex(table->model()->index(0, 0));
        QCOMPARE(browser.currentVariable()->fullName, "PERSON.WAGE");
        QCOMPARE(labels->model()->rowCount(), 0);
        browser.setRoot(nullptr);
        QVERIFY(browser.currentVariable() == nullptr);
        QCOMPARE(table->model()->rowCount(), 0);
    }
};

QTEST_MAIN(TestDictionaryModels)
#include "tst_dictionarymodels.moc"

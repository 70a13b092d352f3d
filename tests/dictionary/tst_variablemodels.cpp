// SPDX-License-Identifier: GPL-3.0-or-later
// The models of the dictionary's views, the rules of names and the drag format, without a window.
#include "MadeMirror.h"
#include "SaidMessages.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/MirrorBuilder.h"
#include "dictionary/views/DictionaryTreeModel.h"
#include "dictionary/views/DraggedItems.h"
#include "dictionary/views/VariableDiccionaryModel.h"
#include "dictionary/views/VariablesDictionaryProxyModel.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "support/SmallDatabase.h"

#include <QAbstractItemModelTester>
#include <QDataStream>
#include <QIcon>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

using Model = VariableDiccionaryModel;

QStringList column(const QAbstractItemModel& model, int column) {
    QStringList cells;
    for (int row = 0; row < model.rowCount(); ++row)
        cells += model.index(row, column).data().toString();
    return cells;
}

QStringList texts(const QMimeData& data) {
    QDataStream stream(data.data("application/vnd.text.list"));
    QStringList texts;
    while (!stream.atEnd()) {
        QString text;
        stream >> text;
        texts += text;
    }
    return texts;
}

} // namespace

class TestVariableModels : public QObject {
    Q_OBJECT

    std::unique_ptr<MadeMirror> made_;
    std::unique_ptr<Model> model_;

    bool set(TKpVariable* variable, int column, const QString& text) {
        return model_->setData(model_->index(model_->rowOf(variable), column), text, Qt::EditRole);
    }

private slots:
    void init() {
        made_ = std::make_unique<MadeMirror>();
        model_ = std::make_unique<Model>(nullptr, made_->person, made_->root);
    }

    void entityTreeFollowsTheMirror() {
        DictionaryTreeModel model;
        const QAbstractItemModelTester tester(&model);
        QCOMPARE(model.rowCount(), 0);
        model.setRoot(made_->root);
        QCOMPARE(model.columnCount(), 1);
        QCOMPARE(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Entity");
        const QModelIndex country = model.index(0, 0);
        const QModelIndex household = model.index(0, 0, country);
        QCOMPARE(model.rowCount(household), 2);
        const QModelIndex emigrant = model.index(1, 0, household);
        QCOMPARE(emigrant.data().toString(), "EMIGRANT");
        QCOMPARE(emigrant.parent(), household);
        QVERIFY(!country.parent().isValid());
        QCOMPARE(model.indexOf("EMIGRANT"), emigrant);
        QVERIFY(!model.indexOf("emigrant").isValid());
        QCOMPARE(int(model.flags(emigrant) & ~Qt::ItemNeverHasChildren), 37);
        const QString tip = model.indexOf("PERSON").data(Qt::ToolTipRole).toString();
        QVERIFY2(tip.contains("Person") && tip.contains(QLocale().toString(1234)), qPrintable(tip));
        made_->emigrant->fileName = "e.kpt";
        made_->emigrant->fullPath = "/data/<b>e.kpt";
        const QString missing = emigrant.data(Qt::ToolTipRole).toString();
        QVERIFY2(missing.contains("File not found: /data/&lt;b&gt;e.kpt"), qPrintable(missing));
    }

    void treeKeepsAMirrorThatIsRebuilt() {
        DictionaryTreeModel model;
        model.setRoot(made_->root);
        made_.reset(); // nobody else holds the tree any more
        QCOMPARE(model.indexOf("PERSON").parent().data().toString(), "HOUSEHOLD");
    }

    void tableShowsFiveColumns() {
        const QAbstractItemModelTester tester(model_.get());
        QStringList titles;
        for (int section = 0; section < model_->columnCount(); ++section)
            titles += model_->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
        QCOMPARE(titles, QStringList({"Name", "Alias", "Group", "Label", "Tag"}));
        QStringList sex;
        for (int section = 0; section < model_->columnCount(); ++section)
            sex += model_->index(0, section).data(Qt::EditRole).toString();
        QCOMPARE(sex, QStringList({"SEX", "GENDER", "Demography", "Sex", "0001"}));
        QCOMPARE(column(*model_, Model::TagColumn),
                 QStringList({"0001", "0010", "", "0002", "9999"}));
        made_->wage->tag = -5; // -1 alone is none
        QCOMPARE(model_->index(2, Model::TagColumn).data().toString(), "-005");
        QCOMPARE(Model(nullptr, made_->person, made_->root, 2).index(0, 4).data().toString(), "01");
        const int base = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        QCOMPARE(int(model_->flags(model_->index(0, 0)) & ~Qt::ItemNeverHasChildren), base | 14);
    }

    void iconTellsTheKind_data() {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("local");
        QTest::addColumn<QString>("icon");
        QTest::newRow("integer") << " integer "
                                 << "A" << false << "48px-Variable-integer";
        QTest::newRow("real") << "REAL"
                              << "A" << false << "48px-Variable-decimal";
        QTest::newRow("bool") << "BOOL"
                              << "A" << false << "48px-Variable-bool";
        QTest::newRow("boolean") << "BOOLEAN"
                                 << "A" << false << "48px-Variable-bool";
        QTest::newRow("none") << "NONE"
                              << "A" << false << "48px-Project-preferences";
        QTest::newRow("made") << "INTEGER"
                              << "A" << true << "48px-Project-save";
        QTest::newRow("code") << "STRING"
                              << "C" << false << "48px-Entity-code";
        QTest::newRow("number as code") << "INTEGER"
                                        << "C" << false << "48px-Variable-integer";
        QTest::newRow("label") << "STRING"
                               << "L" << false << "48px-Entity-label";
        QTest::newRow("weight") << "STRING"
                                << "PERSON.W" << false << "48px-Entity-weight";
        QTest::newRow("text") << "STRING"
                              << "W" << false << "48px-Variable-string";
        QTest::newRow("nameless") << "STRING"
                                  << "" << false << "48px-Variable-string";
    }

    void iconTellsTheKind() {
        QFETCH(QString, type);
        QFETCH(QString, name);
        QFETCH(bool, local);
        QFETCH(QString, icon);
        TKpVariable variable(static_cast<TKelEntity*>(nullptr));
        variable.typeName = type;
        variable.name = name;
        variable.local = local;
        if (!name.isEmpty()) {
            made_->person->refCode = "C";
            made_->person->refLabel = "L";
            made_->person->weightVar = "PERSON.W";
        }
        QCOMPARE(Model::iconName(variable, made_->person), ":/icons/res/icons/" + icon + ".png");
    }

    void refusedTexts_data() {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        const QString start = "The typed character string ";
        const int name = Model::NameColumn;
        const int alias = Model::AliasColumn;
        const int group = Model::GroupColumn;
        QTest::newRow("empty name") << name << "" << start + "is empty";
        QTest::newRow("reserved") << alias << "freq" << start + "is a Kelvora reserved word";
        QTest::newRow("blank") << group << "Two words" << start + "contains blanks";
        QTest::newRow("blank first, then accents") << alias << "á b" << start + "contains blanks";
        QTest::newRow("tab at the end") << alias << "AB\t" << start + "contains blanks";
        QTest::newRow("accent") << alias << QStringLiteral("Niño")
                                << start + "contains invalid characters, such as accents or "
                                           "special symbols";
        QTest::newRow("51 characters")
            << alias << QString(51, 'A')
            << start + "has a length greater than 50: " + QString(51, 'A');
        QTest::newRow("long and blank")
            << alias << QString(51, 'A') + " B" << start + "contains blanks";
        // The two messages are the other way round: so users know them.
        QTest::newRow("alias of a variable")
            << name << "gender" << start + "already exists as a variable name: PERSON.SEX";
        QTest::newRow("name of a variable")
            << name << "Sex" << start + "already exists as variable alias of PERSON.SEX";
        QTest::newRow("variable of another entity")
            << alias << "ROOMS" << start + "already exists as variable alias of HOUSEHOLD.ROOMS";
        QTest::newRow("entity") << alias << "person"
                                << start + "already exists and it is the entity PERSON";
        QTest::newRow("alias of an entity")
            << alias << "hh" << start + "already exists as entity alias of HOUSEHOLD";
        QTest::newRow("group like a variable")
            << group << "AGE" << start + "already exists as variable alias of PERSON.AGE";
    }

    void refusedTexts() {
        QFETCH(int, column);
        QFETCH(QString, text);
        QFETCH(QString, message);
        SaidMessages said;
        const QSignalSpy changed(model_.get(), &Model::dataChanged);
        const QModelIndex cell = model_->index(model_->rowOf(made_->made), column);
        const QString before = cell.data().toString();
        QVERIFY(!model_->setData(cell, text, Qt::EditRole));
        QCOMPARE(said.texts, QStringList(message));
        QCOMPARE(said.kinds.first(),
                 text.isEmpty() ? MessageKind::Information : MessageKind::Error);
        QCOMPARE(cell.data().toString(), before);
        QCOMPARE(changed.count(), 0);
    }

    void acceptedTexts() {
        SaidMessages said;
        QSignalSpy changed(model_.get(), &Model::dataChanged);
        QVERIFY(set(made_->made, Model::NameColumn, "new")); // its own name in another case
        QCOMPARE(made_->made->fullName, "PERSON.new");
        QVERIFY(set(made_->made, Model::NameColumn, "N_2-b"));
        QVERIFY(set(made_->made, Model::AliasColumn, QString(50, 'A')));
        QVERIFY(set(made_->made, Model::AliasColumn, ""));
        QVERIFY(set(made_->made, Model::GroupColumn, "Demography")); // others' group
        QVERIFY(set(made_->made, Model::GroupColumn, ""));
        QVERIFY(set(made_->sex, Model::AliasColumn, "Gender")); // its own alias
        QVERIFY(set(made_->age, Model::AliasColumn, "age"));    // its own name
        QVERIFY(set(made_->sex, Model::LabelColumn, QStringLiteral("Género: freq, 100 %")));
        QCOMPARE(changed.count(), 9);
        QVERIFY(set(made_->sex, Model::AliasColumn, "Gender")); // nothing new
        QCOMPARE(changed.count(), 9);
        QCOMPARE(said.take(), QStringList());
        QCOMPARE(made_->sex->label, QStringLiteral("Género: freq, 100 %"));
        QVERIFY(!model_->setData(model_->index(0, 3), "x", Qt::DisplayRole));
        QVERIFY(!model_->setData({}, "x", Qt::EditRole));
    }

    void onlyLocalVariablesChangeTheirName() {
        SaidMessages said;
        QVERIFY(!set(made_->sex, Model::NameColumn, "SEX2"));
        QCOMPARE(said.take(),
                 QStringList("The variable could not be renamed, it is not a local variable"));
        QCOMPARE(made_->sex->name, "SEX");
    }

    void tagsAreBounded_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("stored");
        QTest::addColumn<int>("tag");
        QTest::newRow("plain") << "7" << true << 7;
        QTest::newRow("zeros") << "0042" << true << 42;
        QTest::newRow("largest") << "9999" << true << 9999;
        QTest::newRow("larger") << "10000" << true << 9999;
        QTest::newRow("huge") << "999999999999" << true << 9999;
        QTest::newRow("negative") << "-5" << true << -5;
        QTest::newRow("nothing") << "" << true << -1;
        QTest::newRow("word") << "abc" << false << 1;
    }

    void tagsAreBounded() {
        QFETCH(QString, text);
        QFETCH(bool, stored);
        QFETCH(int, tag);
        QCOMPARE(set(made_->sex, Model::TagColumn, text), stored);
        QCOMPARE(made_->sex->tag, tag);
    }

    void entityAliasFollowsTheSameRules() {
        TKpEntity& person = *made_->person;
        const auto code = [&](const char* text) {
            return Validate::checkAlias(made_->root.get(), person, text).code;
        };
        QCOMPARE(code(""), int(Validate::Fine));
        QCOMPARE(code("Person"), int(Validate::Fine));
        QCOMPARE(code("HH"), int(Validate::IsEntityAlias));
        QCOMPARE(code("HOUSEHOLD"), int(Validate::IsEntityName));
        QCOMPARE(code("GENDER"), int(Validate::IsVariableName));
        QCOMPARE(code("A B"), int(Validate::Blanks));
        person.alias = "P";
        QCOMPARE(code("p"), int(Validate::Fine));
    }

    void editsReachTheEngine() {
        kel::init(std::make_shared<TKelConfigImpl>());
        {
            QTemporaryDir folder;
            writeSmallDatabase(folder.path());
            const auto dictionary =
                kel::readDictionary(folder.filePath("small.kxdb").toStdString(), nullptr, true);
            const auto root = buildMirror(*dictionary);
            dictionary->setDirty(false);
            Model model(nullptr, DictionaryUtil().findEntity(root.get(), "PERSON"), root);
            QVERIFY(model.setData(model.index(1, Model::LabelColumn), "Years", Qt::EditRole));
            QVERIFY(model.setData(model.index(1, Model::TagColumn), "12", Qt::EditRole));
            QVERIFY(dictionary->isDirty());
            const TKelVariable* age = dictionary->findEntity("PERSON")->variables()[1];
            QCOMPARE(age->label(), "Years");
            QCOMPARE(age->tag(), 12);
        }
        kel::destroy();
    }

    void filterLooksAtEveryColumn_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("names");
        const QStringList all{"SEX", "AGE", "WAGE", "CODE", "NEW"};
        QTest::newRow("none") << "" << all;
        QTest::newRow("blanks") << "   " << all;
        QTest::newRow("name") << " wag " << QStringList{"WAGE"};
        QTest::newRow("alias") << "Gend" << QStringList{"SEX"};
        QTest::newRow("group") << "work" << QStringList{"WAGE", "NEW"};
        QTest::newRow("label") << "of the" << QStringList{"CODE"};
        QTest::newRow("tag") << "0010" << QStringList{"AGE"};
        QTest::newRow("not over two cells") << "AGE\nDEMO" << QStringList{};
        QTest::newRow("either") << "sex|years" << QStringList{"SEX", "AGE"};
        QTest::newRow("start of a cell") << "^age" << QStringList{"AGE"};
        QTest::newRow("end of a cell") << "graphy$" << QStringList{"SEX", "AGE"};
        QTest::newRow("any empty cell") << "^$" << QStringList{"AGE", "WAGE", "CODE", "NEW"};
        QTest::newRow("bracket as such") << "\\(net" << QStringList{"WAGE"};
        QTest::newRow("no expression") << "(net" << QStringList{};
        QTest::newRow("nor this") << "*" << QStringList{};
    }

    void filterLooksAtEveryColumn() {
        QFETCH(QString, text);
        QFETCH(QStringList, names);
        VariablesDictionaryProxyModel proxy;
        const QAbstractItemModelTester tester(&proxy);
        proxy.setSourceModel(model_.get());
        proxy.setFilterText(text);
        QCOMPARE(column(proxy, 0), names);
        proxy.setFilterText("");
        QCOMPARE(proxy.rowCount(), 5);
    }

    void editedCellsAreFilteredAndSortedAnew() {
        VariablesDictionaryProxyModel proxy;
        proxy.setSourceModel(model_.get());
        proxy.setFilterText("demography");
        proxy.sort(Model::LabelColumn, Qt::AscendingOrder);
        QCOMPARE(column(proxy, 0), QStringList({"AGE", "SEX"}));
        QVERIFY(set(made_->age, Model::LabelColumn, "Years"));
        QCOMPARE(column(proxy, 0), QStringList({"SEX", "AGE"}));
        QVERIFY(set(made_->sex, Model::GroupColumn, "Other"));
        QCOMPARE(column(proxy, 0), QStringList({"AGE"}));
        QVERIFY(set(made_->wage, Model::GroupColumn, "Demography"));
        QCOMPARE(column(proxy, 0), QStringList({"WAGE", "AGE"}));
        model_->setEntity(made_->household);
        QCOMPARE(proxy.rowCount(), 0);
        proxy.setFilterText("");
        QCOMPARE(column(proxy, 0), QStringList({"ROOMS"}));
    }

    void numbersSortByValue() {
        const QStringList labels{"10", "9", "x", "", " 8", "-1", "9A", "007", "Árbol", "apple"};
        made_->root = std::shared_ptr<TKpEntity>(addEntity(nullptr, "ROOT", 1));
        for (const QString& label : labels)
            addVariable(made_->root.get(), "V", label, "", label, -1);
        model_->setRoot(made_->root);
        model_->setEntity(made_->root.get());
        VariablesDictionaryProxyModel proxy;
        proxy.setSourceModel(model_.get());
        proxy.sort(Model::LabelColumn, Qt::AscendingOrder);
        QCOMPARE(column(proxy, Model::LabelColumn).mid(0, 6),
                 QStringList({"", "-1", "007", " 8", "9", "10"}));
        proxy.sort(Model::LabelColumn, Qt::DescendingOrder);
        QCOMPARE(column(proxy, Model::LabelColumn).mid(4),
                 QStringList({"10", "9", " 8", "007", "-1", ""}));
        // Of an alias only the word at its start counts: none here, so it leads the texts.
        proxy.sort(Model::AliasColumn, Qt::AscendingOrder);
        QCOMPARE(column(proxy, Model::AliasColumn)[6], QStringLiteral("Árbol"));
    }

    void textsSortAsTheLanguageDoes_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("C") << "C";
        QTest::newRow("Spanish") << "es_ES";
        QTest::newRow("French") << "fr_FR";
        QTest::newRow("English") << "en_US";
    }

    void textsSortAsTheLanguageDoes() {
        QFETCH(QString, language);
        const QLocale before;
        QStringList labels{"ñandú",  "nata",    "obra", "Zebra", "zebra", "cote",
                           "coté",   "côte",    "côté", "a b",   "a-b",   "ab",
                           "Straße", "strasse", "_x",   "x y",   "X",     "x"};
        auto root = std::shared_ptr<TKpEntity>(addEntity(nullptr, "ROOT", 1));
        for (const QString& label : labels)
            addVariable(root.get(), "V", "", "", label, -1);
        model_->setRoot(root);
        model_->setEntity(root.get());
        VariablesDictionaryProxyModel proxy;
        proxy.setSourceModel(model_.get());
        proxy.sort(Model::LabelColumn, Qt::AscendingOrder); // in the language before
        QLocale::setDefault(QLocale(language));
        proxy.sort(Model::LabelColumn, Qt::AscendingOrder);
        std::stable_sort(labels.begin(), labels.end(), [](const QString& a, const QString& b) {
            return QString::localeAwareCompare(a, b) < 0;
        });
        QCOMPARE(column(proxy, Model::LabelColumn), labels);
        QLocale::setDefault(before);
    }

    void dragOfVariablesKeepsOrderOfKeys() {
        made_->sex->label = QStringLiteral("\"Sex\"\\\n€ ") + QString::fromUtf8("\U0001F469");
        made_->sex->addValueLabel("1", "Male");
        made_->sex->ranges = std::make_shared<QList<TKelRange>>();
        made_->sex->ranges->append(TKelRange{4, 1, 2.5});
        made_->sex->size = 1;
        const std::unique_ptr<QMimeData> data(
            model_->mimeData({model_->index(0, 0), model_->index(0, 3), model_->index(3, 0)}));
        const QStringList items = texts(*data);
        QCOMPARE(items.size(), 2); // a row once
        QStringList keys;
        static const QRegularExpression key("[{,]\"([A-Za-z]+)\":");
        // CODE's lists are empty: those of SEX have objects with keys of their own.
        for (auto match = key.globalMatch(items[1]); match.hasNext();)
            keys += match.next().captured(1);
        QCOMPARE(keys,
                 QStringList({"entity", "name", "label", "group", "alias", "tag", "fullName",
                              "type", "size", "path", "local", "position", "decimals", "missing",
                              "notapp", "level", "range", "categoria", "documentation"}));
        QJsonParseError error;
        const QJsonObject sex = QJsonDocument::fromJson(items[0].toUtf8(), &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(sex["label"].toString(), made_->sex->label);
        QCOMPARE(sex["fullName"].toString(), "PERSON.SEX");
        QCOMPARE(sex["level"].toInt(), 3);
        QCOMPARE(sex["range"][0]["max"].toDouble(), 2.5);
        QCOMPARE(data->text(), "PERSON.SEX, PERSON.CODE");
        QVERIFY(!model_->canDropMimeData(data.get(), Qt::CopyAction, 0, 0, {}));
        const QList<DraggedItem> read = readDraggedItems(data.get());
        QCOMPARE(read.size(), 2);
        QVERIFY(!read[0].isEntity);
        QCOMPARE(read[0].entity, "PERSON");
        QCOMPARE(read[0].label, made_->sex->label);
        QCOMPARE(read[0].valueLabels, QList<ValueLabelElement>({{"1", "Male"}}));
        QCOMPARE(read[1].tag, 2);
    }

    void dragOfAnEntityIsMarked() {
        DictionaryTreeModel model;
        model.setRoot(made_->root);
        const std::unique_ptr<QMimeData> data(model.mimeData({model.indexOf("PERSON")}));
        QCOMPARE(texts(*data),
                 QStringList("{\"name\":\"PERSON\",\"fullName\":\"PERSON\",\"level\":3,"
                             "\"label\":\"Person\",\"entity\":\"*Tree*\"}"));
        const QList<DraggedItem> read = readDraggedItems(data.get());
        QCOMPARE(read.size(), 1);
        QVERIFY(read[0].isEntity);
        QCOMPARE(read[0].entity, "PERSON");
    }

    void dragFollowsWhatIsShown() {
        VariablesDictionaryProxyModel proxy;
        proxy.setSourceModel(model_.get());
        proxy.sort(Model::NameColumn, Qt::AscendingOrder);
        QModelIndexList indexes; // as a selection hands them over: not row by row
        for (int column = 0; column < 5; ++column)
            for (int row = 3; row >= 0; --row)
                indexes += proxy.index(row, column);
        const std::unique_ptr<QMimeData> data(proxy.mimeData(indexes));
        QCOMPARE(data->text(), "PERSON.AGE, PERSON.CODE, PERSON.NEW, PERSON.SEX");
    }

    void foreignDragsGiveNothing() {
        QMimeData data;
        QVERIFY(readDraggedItems(nullptr).isEmpty());
        QVERIFY(readDraggedItems(&data).isEmpty());
        data.setData(draggedItemsType(), "\x7f\xff\xff\xf0garbage");
        QVERIFY(readDraggedItems(&data).isEmpty());
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << QString("no json") << QString("[1]") << QString("{\"name\":7}")
               << QString("{\"entity\":\"P\",\"name\":\"A\",\"tag\":\"x\",\"categoria\":5}");
        bytes += QByteArray::fromHex("0000000800410042"); // cut off
        data.setData(draggedItemsType(), bytes);
        const QList<DraggedItem> read = readDraggedItems(&data);
        QCOMPARE(read.size(), 1);
        QCOMPARE(read[0].name, "A");
        QCOMPARE(read[0].tag, -1);
    }
};

QTEST_MAIN(TestVariableModels)
#include "tst_variablemodels.moc"

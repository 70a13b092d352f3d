// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/MirrorBuilder.h"
#include "dictionary/mirror/PathResolver.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "support/SmallDatabase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <clocale>

class TestMirror : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    std::shared_ptr<TKelDictionary> dictionary_;
    std::shared_ptr<TKpEntity> root_;
    DictionaryUtil util_;

    void open(const QString& file) {
        root_.reset();
        dictionary_ = kel::readDictionary(folder_.filePath(file).toStdString(), nullptr, true);
        root_ = buildMirror(*dictionary_);
        QVERIFY(root_);
    }

    TKpVariable* variable(const QString& fullName) const {
        for (TKpVariable* variable : util_.allVariables(root_.get()))
            if (variable->fullName == fullName)
                return variable;
        return nullptr;
    }

private slots:
    void initTestCase() {
        kel::init(std::make_shared<TKelConfigImpl>());
        writeSmallDatabase(folder_.path());
    }

    void init() { open(QStringLiteral("small.kxdb")); }

    void cleanupTestCase() {
        root_.reset();
        dictionary_.reset();
        kel::destroy();
    }

    void entitiesAreCopied() {
        QCOMPARE(util_.names(root_.get()),
                 QStringList({"COUNTRY", "DISTRICT", "HOUSEHOLD", "PERSON"}));
        QCOMPARE(util_.engineNames(dictionary_->root().get()), util_.names(root_.get()));
        const TKpEntity* district = util_.findEntity(root_.get(), "DISTRICT");
        QCOMPARE(district->level, 2);
        QCOMPARE(district->label, "District");
        QCOMPARE(district->parentName, "COUNTRY");
        QCOMPARE(district->instanceCount, 2);
        QVERIFY(district->selectable);
        QCOMPARE(district->refCode, "CODE");
        QCOMPARE(district->refLabel, "NAME");
        QCOMPARE(district->fullPath, folder_.filePath("DISTRICT.kpt"));
        QVERIFY(district->fileExists);
        QVERIFY(!district->sensitive);
        QCOMPARE(root_->level, 1);
        QCOMPARE(root_->instanceCount, 1);
        QVERIFY(root_->parentName.isEmpty());
        const TKpEntity* person = util_.findEntity(root_.get(), "PERSON");
        QCOMPARE(person->level, 4);
        QCOMPARE(person->instanceCount, 7);
        QVERIFY(person->sensitive);
        QCOMPARE(util_.findEntity(root_.get(), "HOUSEHOLD")->weightVar, "HOUSEHOLD.WEIGHT");
    }

    void questionsGoToTheEngine() {
        TKpEntity* district = util_.findEntity(root_.get(), "DISTRICT");
        TKpEntity* person = util_.findEntity(root_.get(), "PERSON");
        QVERIFY(person->isMyAncestor(district, false));
        QVERIFY(person->isMyAncestor(district->engineEntity, false));
        QVERIFY(!district->isMyAncestor(person, false));
        QVERIFY(!person->isMyAncestor(person, false));
        QVERIFY(district->isSameBranch(person));
        const auto areas = root_->childAreaCodes("", "DISTRICT");
        QCOMPARE(areas.size(), size_t(2));
        QCOMPARE(areas[1].code, "02");
        QCOMPARE(areas[1].label, "South");
        bool persons = false;
        for (const EntityAreaCount& count : district->areaEntityCounts("01"))
            if (count.entity == "PERSON") {
                persons = true;
                QCOMPARE(count.count, 5);
            }
        QVERIFY(persons);
        QVERIFY(district->cmpCodeVar() != nullptr);
        QVERIFY(!district->isReadOnly());
        TKpEntity alone(nullptr);
        QVERIFY(alone.cmpCodeVar() == nullptr);
        QVERIFY(alone.childAreaCodes("01", "PERSON").empty());
        QVERIFY(!alone.isMyAncestor(district, true));
        QVERIFY(!person->isSameBranch(&alone));
        QVERIFY(!person->isMyAncestor(nullptr, true));
    }

    void variablesAreCopied() {
        const TKpVariable* sex = variable("PERSON.SEX");
        QVERIFY(sex != nullptr);
        QCOMPARE(sex->name, "SEX");
        QCOMPARE(sex->alias, "GENDER");
        QCOMPARE(sex->label, "Sex of the person");
        QCOMPARE(sex->group, "Demography");
        QCOMPARE(sex->typeName, "INTEGER");
        QCOMPARE(sex->entityName, "PERSON");
        QCOMPARE(sex->owner->name, "PERSON");
        QCOMPARE(sex->size, 1);
        QCOMPARE(sex->missing, 9);
        QCOMPARE(sex->notApp, 0);
        QCOMPARE(sex->tag, -1);
        QCOMPARE(sex->local, false);
        QCOMPARE(sex->path, folder_.filePath("PERSON_SEX.kbf"));
        QVERIFY(sex->fileExists);
        const TKpVariable* age = variable("PERSON.AGE");
        QVERIFY(age->alias.isEmpty());
        QCOMPARE(age->notApp, 999);
        QCOMPARE(age->missing, 0);
        QCOMPARE(age->documentation, "Completed years");
        QCOMPARE(age->position, 1);
        QCOMPARE(variable("PERSON.INCOME")->typeName, "REAL");
        QCOMPARE(variable("PERSON.INCOME")->decimals, 2);
        QCOMPARE(variable("DISTRICT.CODE")->typeName, "STRING");
    }

    void valueLabelsOfIntegersAreSorted() {
        QStringList values;
        for (const ValueLabelElement& element : *variable("PERSON.SEX")->valueLabels)
            values += element.value;
        QCOMPARE(values, QStringList({"1", "2", "9", "10"}));
    }

    void labelOfTakesEveryKindOfValue() {
        TKpVariable* sex = variable("PERSON.SEX");
        QCOMPARE(sex->labelOf(std::string("2")), "Female");
        QCOMPARE(sex->labelOf(TKelVariant(std::int64_t(10))), "Other");
        QCOMPARE(sex->labelOf(TKelVariant(std::string("9"))), "Not stated");
        QCOMPARE(sex->labelOf(std::string("7")), "");
        QCOMPARE(sex->labelOf(std::string("02")), "");
        TKpVariable* income = variable("PERSON.INCOME");
        const char* before = std::setlocale(LC_NUMERIC, nullptr);
        const std::string kept = before != nullptr ? before : "C";
        std::setlocale(LC_NUMERIC, "de_DE.UTF-8"); // where installed, a comma would show
        QCOMPARE(income->labelOf(TKelVariant(2.5)), "Two and a half");
        QCOMPARE(income->labelOf(TKelVariant(10.0)), ""); // "10.000000" is not "10"
        std::setlocale(LC_NUMERIC, kept.c_str());
        QCOMPARE(TKpVariable(nullptr).labelOf(std::string("1")), "");
    }

    void ownValueLabelsAndSharedCopies() {
        TKpVariable variable(static_cast<TKelEntity*>(nullptr));
        QVERIFY(!variable.valueLabels);
        QVERIFY(variable.addValueLabel("b", "B"));
        variable.setValueLabels({{"2", "two"}, {"1", "one"}});
        QCOMPARE(variable.valueLabels->size(), 2);
        QCOMPARE(variable.valueLabels->at(0).value, "1");
        const TKpVariable copy(variable);
        variable.addValueLabel("3", "three");
        QCOMPARE(copy.valueLabels->size(), 3);
        variable.setSize(12);
        variable.setTag(4);
        QCOMPARE(variable.size, 12);
        QCOMPARE(variable.tag, 4);
    }

    void walksOverTheTree() {
        QCOMPARE(util_.findEntity(root_.get(), "HOUSEHOLD")->name, "HOUSEHOLD");
        // Nothing matches: the last one visited, which the caller must compare.
        QCOMPARE(util_.findEntity(root_.get(), "household")->name, "PERSON");
        QCOMPARE(util_.findEntity(nullptr, "PERSON"), nullptr);
        TKelEntity* engineRoot = dictionary_->root().get();
        QCOMPARE(util_.findEngineEntity(engineRoot, "DISTRICT")->name(), "DISTRICT");
        QCOMPARE(util_.findEngineEntity(engineRoot, "NONE")->name(), "PERSON");
        QCOMPARE(util_.entities(root_.get()).size(), 4);
        const auto selectable = util_.selectableEntities(root_.get());
        QCOMPARE(selectable.size(), 1);
        QCOMPARE(selectable[0]->name, "DISTRICT");
        QStringList path;
        for (const TKpEntity* entity :
             util_.pathToRoot(root_.get(), util_.findEntity(root_.get(), "HOUSEHOLD")))
            path += entity->name;
        QCOMPARE(path, QStringList({"COUNTRY", "DISTRICT", "HOUSEHOLD"}));
        QCOMPARE(util_.allVariables(root_.get()).size(), 8);
        QCOMPARE(util_.variableNames(*util_.findEngineEntity(engineRoot, "HOUSEHOLD")),
                 QStringList({"ROOMS", "HOUSEHOLD.ROOMS", "WEIGHT", "HOUSEHOLD.WEIGHT"}));
        QCOMPARE(util_.groups(*util_.findEntity(root_.get(), "PERSON")),
                 QStringList({"Demography", "Work"}));
    }

    void codeSizeNeedsASelectableEntityWithVariables() {
        QCOMPARE(util_.codeSize(*util_.findEntity(root_.get(), "DISTRICT")), 2);
        QCOMPARE(util_.codeSize(*util_.findEntity(root_.get(), "PERSON")), 0);
        TKpEntity empty(nullptr);
        empty.setSelectable(true);
        QCOMPARE(util_.codeSize(empty), 0);
    }

    void missingFileIsMarked() {
        QVERIFY(QFile::rename(folder_.filePath("PERSON_AGE.kbf"), folder_.filePath("away")));
        open(QStringLiteral("small.kxdb"));
        QVERIFY(!variable("PERSON.AGE")->fileExists);
        QVERIFY(variable("PERSON.SEX")->fileExists);
        QVERIFY(QFile::rename(folder_.filePath("away"), folder_.filePath("PERSON_AGE.kbf")));
    }

    void bothFormsGiveTheSameMirror() {
        open(QStringLiteral("small.dicx"));
        QCOMPARE(util_.names(root_.get()),
                 QStringList({"COUNTRY", "DISTRICT", "HOUSEHOLD", "PERSON"}));
        QCOMPARE(variable("PERSON.SEX")->typeName, "INTEGER");
        QCOMPARE(variable("PERSON.SEX")->valueLabels->size(), 4);
        QCOMPARE(util_.findEntity(root_.get(), "PERSON")->instanceCount, 7);
    }

    void pathsAreResolved_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");
        QTest::newRow("plain") << "sex.kbf"
                               << "/data/census/dic/sex.kbf";
        QTest::newRow("below") << "person/sex.kbf"
                               << "/data/census/dic/person/sex.kbf";
        QTest::newRow("up one") << "../sex.kbf"
                                << "/data/census/sex.kbf";
        QTest::newRow("up two") << "../../x/sex.kbf"
                                << "/data/x/sex.kbf";
        QTest::newRow("beyond the root") << "../../../../../sex.kbf"
                                         << "/sex.kbf";
        QTest::newRow("backslashes") << "..\\person\\sex.kbf"
                                     << "/data/census/person/sex.kbf";
        QTest::newRow("absolute") << "/elsewhere/sex.kbf"
                                  << "/elsewhere/sex.kbf";
    }

    void pathsAreResolved() {
        QFETCH(QString, name);
        QFETCH(QString, path);
        QCOMPARE(resolvePath(name, QStringLiteral("/data/census/dic")), path);
    }
};

QTEST_GUILESS_MAIN(TestMirror)
#include "tst_mirror.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/DictionarySaver.h"
#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "support/SmallDatabase.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

TfrmProject& project() {
    return TfrmProject::instance();
}

TKpEntity* entity(const QString& name) {
    return DictionaryUtil().findEntity(project().root(), name);
}

TKpVariable* variable(const QString& fullName) {
    for (TKpVariable* candidate : DictionaryUtil().allVariables(project().root()))
        if (candidate->fullName == fullName)
            return candidate;
    return nullptr;
}

DictionaryKind kindOf(const QString& path) {
    return path.endsWith(".dicx") ? DictionaryKind::Dicx : DictionaryKind::Kxdb;
}

std::shared_ptr<TKelSession> run(const std::string& program) {
    auto session = kel::makeDefaultSession(project().dictionary());
    session->executeText(program, nullptr);
    return session;
}

/// What the engine makes of a program with one table, or its fault.
QString tableOf(const std::string& program) {
    try {
        return QString::fromStdString(run(program)->outputs().front()->asJson());
    } catch (const std::runtime_error& fault) {
        return QString::fromStdString(fault.what());
    }
}

QString frequencies() {
    return tableOf("FREQ PERSON.SEX"); // weighted by the household
}

/// The element that a path of names leads to, the first of each name.
QDomElement element(const QString& file, const QStringList& names) {
    QDomDocument document;
    document.setContent(contentOf(file));
    QDomElement at = document.documentElement();
    for (const QString& name : names)
        at = at.firstChildElement(name);
    return at;
}

QDomElement variableElement(const QString& file, const QString& name) {
    QDomDocument document;
    document.setContent(contentOf(file));
    const QDomNodeList all = document.elementsByTagName("variable");
    for (int i = 0; i < all.size(); ++i)
        if (all.at(i).firstChildElement("name").text() == name)
            return all.at(i).toElement();
    return {};
}

QStringList childNames(const QDomElement& parent) {
    QStringList names;
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        names += e.tagName();
    return names;
}

} // namespace

class TestSaving : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> folder_;

    QString path(const QString& name) const { return folder_->filePath(name); }

    void open(const QString& name) const { reloadDictionary(path(name), kindOf(name)); }

    void write(const QString& name, const QByteArray& content) const {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /// Writes the small database with these variables before those of PERSON.
    void addToPerson(const QString& name, const QByteArray& variables) const {
        open("small.kxdb");
        DictionaryUtil().writeDicx(path(name), *project().dictionary(), *project().root());
        QByteArray xml = contentOf(path(name));
        xml.insert(xml.indexOf("<variable>", xml.indexOf("<name>PERSON</name>")), variables);
        write(name, xml);
    }

private slots:
    void initTestCase() { kel::init(std::make_shared<TKelConfigImpl>()); }

    void init() {
        project().close();
        folder_ = std::make_unique<QTemporaryDir>();
        writeSmallDatabase(folder_->path());
    }

    void cleanupTestCase() {
        project().close();
        kel::destroy();
    }

    void writtenFormKeepsEverything() {
        open("small.kxdb");
        QVERIFY(frequencies().contains("2.5"));
        project().dictionary()->root()->findEntity("PERSON", true)->setSensitive(5);
        DictionaryEdit::setTag(*entity("PERSON"), 7);
        DictionaryEdit::setTag(*variable("PERSON.AGE"), 12);
        DictionaryEdit::setHidden(*variable("PERSON.AGE"), true);
        DictionaryEdit::setLabel(*variable("PERSON.SEX"), "Sexo <\"&'> ñ \U0001F600");
        const QString before = frequencies();
        DictionaryUtil().writeDicx(path("out.dicx"), *project().dictionary(), *project().root());
        open("out.dicx");
        QCOMPARE(frequencies(), before);
        QCOMPARE(entity("PERSON")->tag, 7);
        QCOMPARE(entity("PERSON")->engineEntity->sensitive(), 5);
        QCOMPARE(entity("DISTRICT")->tag, -1);
        QVERIFY(entity("DISTRICT")->selectable);
        QCOMPARE(entity("DISTRICT")->refCode, "CODE");
        QCOMPARE(entity("DISTRICT")->refLabel, "NAME");
        QCOMPARE(entity("HOUSEHOLD")->weightVar, "HOUSEHOLD.WEIGHT");
        const TKpVariable* age = variable("PERSON.AGE");
        QCOMPARE(age->tag, 12);
        QVERIFY(age->hidden);
        QCOMPARE(age->documentation, "Completed years");
        QCOMPARE(age->notapp(), 999.0);
        QVERIFY(!age->TKelVariable::missing().has_value());
        const TKpVariable* sex = variable("PERSON.SEX");
        QCOMPARE(sex->label, "Sexo <\"&'> ñ \U0001F600");
        QCOMPARE(sex->alias, "GENDER");
        QCOMPARE(sex->group, "Demography");
        QCOMPARE(sex->typeName, "INTEGER");
        QCOMPARE(sex->TKelVariable::missing(), 9.0);
        QVERIFY(!sex->notapp().has_value());
        QCOMPARE(sex->valueLabels->size(), 4);
        QCOMPARE(sex->valueLabels->first(), (ValueLabelElement{"1", "Male"}));
        const TKpVariable* income = variable("PERSON.INCOME");
        QCOMPARE(income->TKelVariable::sensitive(), 3);
        QCOMPARE(income->TKelVariable::decimals(), 2);
        QVERIFY(project().allPathsFound());
    }

    void elementsStandInTheToldOrder() {
        open("small.kxdb");
        DictionaryUtil().writeDicx(path("out.dicx"), *project().dictionary(), *project().root());
        const QString out = path("out.dicx");
        QVERIFY(contentOf(out).startsWith("<?xml version=\"1.0\""));
        QCOMPARE(element(out, {}).tagName(), "kelDictionary_XML");
        QCOMPARE(childNames(element(out, {"general"})),
                 QStringList({"typeType", "name", "label", "author", "created", "updated",
                              "version", "security"}));
        QCOMPARE(childNames(element(out, {"general", "version"})),
                 QStringList({"major", "minor", "revision", "construction"}));
        QCOMPARE(element(out, {"general", "version", "major"}).text(), "7");
        QVERIFY(element(out, {"general", "security"}).text().isEmpty());
        QCOMPARE(childNames(element(out, {"root", "entity"})),
                 QStringList({"name", "alias", "label", "selectable", "refCode", "refLabel",
                              "filename", "variable", "variable", "variable", "entity"}));
        const QDomElement age = variableElement(out, "AGE");
        QCOMPARE(childNames(age),
                 QStringList({"name", "label", "group", "fieldSize", "range", "notappl", "missing",
                              "documentation", "tag", "valueLabels", "datasetID", "filename",
                              "varDicChoice"}));
        QCOMPARE(age.firstChildElement("notappl").text(), "999");
        QCOMPARE(age.firstChildElement("missing").text(), "");
        QCOMPARE(childNames(age.firstChildElement("range")),
                 QStringList({"rangeItemType", "rangeMin", "rangeMax"}));
        QCOMPARE(age.firstChildElement("range").text(), "409999");
        QCOMPARE(childNames(age.firstChildElement("varDicChoice")),
                 QStringList({"datasetType", "datasetSize"}));
        const QDomElement code = variableElement(out, "CODE");
        QCOMPARE(code.firstChildElement("varType").text(), "STRING");
        QVERIFY(code.firstChildElement("notappl").isNull());
        QVERIFY(variableElement(out, "SEX").firstChildElement("varType").isNull());
    }

    void codesKeepTheirExactValue() {
        open("small.kxdb");
        variable("PERSON.INCOME")->setNotapp(0.1);
        variable("PERSON.INCOME")->setMissing(-1234567890.125);
        DictionaryUtil().writeDicx(path("out.dicx"), *project().dictionary(), *project().root());
        open("out.dicx");
        QCOMPARE(*variable("PERSON.INCOME")->notapp(), 0.1);
        QCOMPARE(*variable("PERSON.INCOME")->TKelVariable::missing(), -1234567890.125);
    }

    void illegalCharactersDoNotSpoilTheFile() {
        open("small.dicx");
        QString label = "a";
        for (const char16_t c : {0x0, 0x1, 0xB, 0x1F, 0xD800, 0xFFFE})
            label += QChar(c);
        DictionaryEdit::setLabel(*variable("PERSON.SEX"), label + "z");
        DictionarySaver(project()).save();
        open("small.dicx");
        QCOMPARE(variable("PERSON.SEX")->label.size(), label.size() + 1);
        QVERIFY(variable("PERSON.SEX")->label.startsWith('a'));
        QVERIFY(variable("PERSON.SEX")->label.endsWith('z'));
        QCOMPARE(variable("PERSON.AGE")->label, "Age in years");
    }

    void virtualEntityStaysVirtual() {
        open("small.kxdb");
        QByteArray xml;
        DictionaryUtil().writeDicx(path("virtual.dicx"), *project().dictionary(),
                                   *project().root());
        xml = contentOf(path("virtual.dicx"));
        const qsizetype end = xml.lastIndexOf("</entity>");
        xml.insert(
            xml.lastIndexOf("</entity>", end - 1),
            "<entity><name>KIDS</name><isVirtual>true</isVirtual><hidden>true</hidden></entity>");
        write("virtual.dicx", xml);
        open("virtual.dicx");
        QVERIFY(entity("KIDS")->isVirtual);
        DictionarySaver(project()).save();
        open("virtual.dicx");
        QCOMPARE(entity("KIDS")->name, "KIDS");
        QVERIFY(entity("KIDS")->isVirtual);
        QVERIFY(entity("KIDS")->engineEntity->hidden());
        QVERIFY(!entity("PERSON")->engineEntity->hidden());
        QCOMPARE(entity("KIDS")->engineEntity->fileName(), "");
    }

    void plainValuesKeepTheirForm_data() {
        QTest::addColumn<QByteArray>("varType");
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("typeName");
        const QByteArray integers("\1\0\2\0\1\0\1\0\2\0\2\0\2\0", 14);
        const QByteArray bytes("\1\0\1\1\0\0\0", 7);
        QByteArray doubles;
        for (const double value : {1, 2, 1, 1, 2, 2, 2})
            doubles.append(reinterpret_cast<const char*>(&value), sizeof value);
        using B = QByteArray;
        QTest::newRow("integers") << B("INTEGER") << B("INT") << integers << "INTEGER";
        QTest::newRow("integers in doubles") << B("INTEGER") << B("DBL") << doubles << "INTEGER";
        QTest::newRow("reals in bytes") << B("REAL") << B("BYTE") << bytes << "REAL";
        QTest::newRow("truth in bytes") << B("BOOL") << B("BYTE") << bytes << "BOOLEAN";
    }

    // Nothing but the dictionary tells how a file of plain values is to be read.
    void plainValuesKeepTheirForm() {
        QFETCH(QByteArray, varType);
        QFETCH(QByteArray, form);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, typeName);
        addToPerson("plain.dicx", "<variable><name>ROOM</name><varType>" + varType +
                                      "</varType><filename>room.bin</filename><varDicChoice>"
                                      "<datasetType>" +
                                      form + "</datasetType><datasetSize>" +
                                      QByteArray::number(bytes.size() / 7) +
                                      "</datasetSize></varDicChoice></variable>");
        write("room.bin", bytes);
        open("plain.dicx");
        QCOMPARE(variable("PERSON.ROOM")->typeName, typeName);
        const auto rooms = [] { return tableOf("FREQ PERSON.ROOM"); };
        const QString before = rooms();
        DictionarySaver(project()).save();
        QVERIFY(QFile::remove(path("room.bin.desc")));
        open("plain.dicx");
        QCOMPARE(variable("PERSON.ROOM")->typeName, typeName);
        QVERIFY(variable("PERSON.ROOM")->ranges->isEmpty());
        QCOMPARE(rooms(), before);
        QVERIFY2(before.startsWith("{"), qPrintable(before));
    }

    void zeroIsNoCodeWhereOthersPutItForNone() {
        open("small.kxdb");
        variable("PERSON.INCOME")->setNotapp(0);
        variable("PERSON.INCOME")->setMissing(0);
        DictionaryUtil().writeDicx(path("out.dicx"), *project().dictionary(), *project().root());
        open("out.dicx");
        QCOMPARE(variable("PERSON.INCOME")->notapp(), 0.0);
        QCOMPARE(variable("PERSON.INCOME")->TKelVariable::missing(), 0.0);
        write("foreign.dicx", contentOf(path("out.dicx")).replace(">0.0<", ">0<"));
        open("foreign.dicx");
        QVERIFY(!variable("PERSON.INCOME")->notapp().has_value());
        QVERIFY(!variable("PERSON.INCOME")->TKelVariable::missing().has_value());
        QCOMPARE(variable("PERSON.SEX")->TKelVariable::missing(), 9.0);
    }

    void savedVariableStaysLocal() {
        open("small.dicx");
        run("DEFINE PERSON.ADULT AS PERSON.AGE >= 18 TYPE INTEGER SAVE \"adult.kbf\"");
        rebuildMirror();
        QVERIFY(variable("PERSON.ADULT") != nullptr && variable("PERSON.ADULT")->local);
        QVERIFY(!variable("PERSON.AGE")->local);
        DictionarySaver(project()).save();
        open("small.dicx");
        QVERIFY(variable("PERSON.ADULT")->local);
        QVERIFY(!variable("PERSON.AGE")->local);
    }

    void editIsSavedInPlace_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("binary") << "small.kxdb";
        QTest::newRow("xml") << "small.dicx";
    }

    void editIsSavedInPlace() {
        QFETCH(QString, name);
        open(name);
        DictionaryEdit::setLabel(*variable("PERSON.AGE"), "Edad");
        QVERIFY(project().dictionary()->isDirty());
        DictionarySaver(project()).save();
        QVERIFY(!project().dictionary()->isDirty());
        open(name);
        QCOMPARE(variable("PERSON.AGE")->label, "Edad");
    }

    // A legacy project counts as XML, but its dictionary may be binary.
    void binaryFileNeverBecomesXml() {
        reloadDictionary(path("small.kxdb"), DictionaryKind::LegacyProject);
        DictionaryEdit::setLabel(*variable("PERSON.AGE"), "Edad");
        DictionarySaver(project()).save();
        QVERIFY(!contentOf(path("small.kxdb")).contains("kelDictionary_XML"));
        open("small.kxdb");
        QCOMPARE(variable("PERSON.AGE")->label, "Edad");
    }

    void failedSaveLosesNothing_data() { editIsSavedInPlace_data(); }

    void failedSaveLosesNothing() {
        QFETCH(QString, name);
        open(name);
        DictionaryEdit::setLabel(*variable("PERSON.AGE"), "Edad");
        const QByteArray before = contentOf(path(name));
        const QString there = path("none/there.") + name.section('.', -1);
        QVERIFY_THROWS_EXCEPTION(std::exception, DictionarySaver(project()).saveAs(there));
        QVERIFY_THROWS_EXCEPTION(std::exception,
                                 saveDictionaryFile(project().dictionaryKind(), there, project()));
        QVERIFY(project().dictionary()->isDirty());
        QCOMPARE(contentOf(path(name)), before);
        QCOMPARE(variable("PERSON.AGE")->fileName, "PERSON_AGE.kbf");
        QCOMPARE(project().dictionary()->dataPath(), folder_->path().toStdString());
        DictionarySaver(project()).save();
        open(name);
        QCOMPARE(variable("PERSON.AGE")->label, "Edad");
        QVERIFY(project().allPathsFound());
    }

    void savedElsewhereItFindsItsData_data() {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<DictionaryKind>("kind");
        QTest::addColumn<DictionaryKind>("newKind");
        using K = DictionaryKind;
        QTest::newRow("dicx") << "small.dicx"
                              << "a/b/new.dicx" << K::Dicx << K::Dicx;
        QTest::newRow("legacy") << "small.dicx"
                                << "a/b/new.dicx" << K::LegacyProject << K::LegacyProject;
        QTest::newRow("kxdb") << "small.kxdb"
                              << "a/b/new.kxdb" << K::Kxdb << K::Kxdb;
        QTest::newRow("project") << "small.kxdb"
                                 << "a/b/new.kxdb" << K::Project << K::Kxdb;
        QTest::newRow("same folder") << "small.kxdb"
                                     << "new.kxdb" << K::Kxdb << K::Kxdb;
    }

    void savedElsewhereItFindsItsData() {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(DictionaryKind, kind);
        QFETCH(DictionaryKind, newKind);
        QVERIFY(QDir(folder_->path()).mkpath("a/b"));
        const QByteArray old = contentOf(path(from));
        reloadDictionary(path(from), kind);
        DictionaryEdit::setLabel(*variable("PERSON.AGE"), "Edad");
        const QString before = frequencies();
        DictionarySaver saver(project());
        QVERIFY(to.endsWith(DictionarySaver::suffixFor(kind)));
        QCOMPARE(saver.saveAs(path(to)), newKind);
        const LoadedDictionary reopened = saver.reopen(path(to), newKind);
        QCOMPARE(reopened.missing, QStringList());
        QVERIFY(reopened.clean);
        QCOMPARE(project().dictionaryPath(), path(to));
        QCOMPARE(project().dictionaryKind(), newKind);
        QVERIFY(!project().dictionary()->isDirty());
        QCOMPARE(frequencies(), before);
        QCOMPARE(contentOf(path(from)), old); // the old file is as it was
        DictionaryEdit::setAlias(*variable("PERSON.AGE"), "EDAD");
        saver.save();
        open(to); // anew, from what was written
        QVERIFY(project().allPathsFound());
        QCOMPARE(variable("PERSON.AGE")->label, "Edad");
        QCOMPARE(variable("PERSON.AGE")->alias, "EDAD");
        QCOMPARE(frequencies(), before);
    }

    // A dictionary that moves together with the folder beside it must keep working.
    void movedNamesAreRelative() {
        QVERIFY(QDir(folder_->path()).mkpath("a"));
        open("small.dicx");
        DictionarySaver(project()).saveAs(path("a/new.dicx"));
        QCOMPARE(variableElement(path("a/new.dicx"), "AGE").firstChildElement("filename").text(),
                 "../PERSON_AGE.kbf");
        QCOMPARE(variable("PERSON.AGE")->fileName, "PERSON_AGE.kbf"); // the old one is still open
        QVERIFY(!project().dictionary()->isDirty());
    }
};

QTEST_GUILESS_MAIN(TestSaving)
#include "tst_saving.moc"

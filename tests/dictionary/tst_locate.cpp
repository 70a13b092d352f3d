// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "dictionary/loading/DictionarySaver.h"
#include "dictionary/loading/LocatePaths.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "support/ModalAnswer.h"
#include "support/SmallDatabase.h"

#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

namespace {

TfrmProject& project() {
    return TfrmProject::instance();
}

QAbstractButton* button(const QDialog& dialog, const char* name) {
    return dialog.findChild<QAbstractButton*>(name);
}

void click(const QDialog& dialog, const char* name) {
    QTest::mouseClick(button(dialog, name), Qt::LeftButton);
}

QLineEdit* line(const QDialog& dialog, const char* name) {
    return dialog.findChild<QLineEdit*>(name);
}

} // namespace

class TestLocate : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> folder_;
    QStringList shown_;
    QStringList titles_;

    QString path(const QString& name) const { return folder_->filePath(name); }

    void moveAway(const QStringList& names) const {
        QVERIFY(QDir(folder_->path()).mkpath("moved"));
        for (const QString& name : names)
            QVERIFY(QFile::rename(path(name), path("moved/" + name)));
    }

    /// Answers as many dialogs as there are actions, one after the other.
    void answer(const QList<std::function<void(QDialog&)>>& actions) {
        if (actions.isEmpty())
            return;
        answerNextDialog([this, actions](QDialog& dialog) {
            titles_ += dialog.windowTitle();
            answer(actions.mid(1));
            actions.first()(dialog);
        });
    }

    bool locate() { return locateMissing(nullptr, *project().dictionary(), *project().root()); }

private slots:
    void initTestCase() { kel::init(std::make_shared<TKelConfigImpl>()); }

    void init() {
        project().close();
        shown_.clear();
        titles_.clear();
        folder_ = std::make_unique<QTemporaryDir>();
        writeSmallDatabase(folder_->path());
        answerMessages([this](MessageKind, const QString& text) {
            shown_ += text;
            return Choice::Cancel;
        });
    }

    void cleanup() { answerMessages({}); }

    void cleanupTestCase() {
        project().close();
        kel::destroy();
    }

    void nothingMissingIsSaid() {
        reloadDictionary(path("small.kxdb"), DictionaryKind::Kxdb);
        QVERIFY(!locate());
        QCOMPARE(shown_, QStringList("No errors found in the database"));
        QVERIFY(!project().dictionary()->isDirty());
    }

    // A place in a text, or nothing yet: there is no file to look for.
    void whatNamesNoFileIsNotMissing() {
        QFile file(path("small.dicx"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray xml = file.readAll();
        xml.insert(xml.indexOf("<variable>"), "<variable><name>BARE</name></variable>");
        file.seek(0);
        file.write(xml);
        file.close();
        const LoadedDictionary open = reloadDictionary(path("small.dicx"), DictionaryKind::Dicx);
        const auto& variables = project().root()->children[0]->variables;
        QCOMPARE(variables[0]->name, "BARE");
        QCOMPARE(open.missing, QStringList());
        QVERIFY(project().allPathsFound());
        QVERIFY(!locate());
        QCOMPARE(shown_, QStringList("No errors found in the database"));
        QVERIFY(QFile::remove(path("PERSON_AGE.kbf")));
        QCOMPARE(rebuildMirror().missing, QStringList("PERSON.AGE"));
    }

    void oneFileBringsItsNeighbours() {
        moveAway({"DISTRICT.kpt", "PERSON_AGE.kbf", "PERSON_SEX.kbf"});
        const LoadedDictionary open = reloadDictionary(path("small.kxdb"), DictionaryKind::Kxdb);
        QCOMPARE(open.missing.size(), 3);
        QVERIFY(!project().allPathsFound());
        answer({[this](QDialog& dialog) {
            QCOMPARE(line(dialog, "variable")->text(), "DISTRICT");
            QCOMPARE(line(dialog, "missingFile")->text(), "DISTRICT.kpt");
            QCOMPARE(line(dialog, "missingPath")->text(), path("DISTRICT.kpt"));
            QVERIFY(!button(dialog, "relocate")->isEnabled());
            const QSize size(48, 48); // the program's own picture, not the platform's
            QCOMPARE(button(dialog, "browse")->icon().pixmap(size).toImage(),
                     QIcon(":/icons/res/icons/48px-Dictionary-open.png").pixmap(size).toImage());
            KelvoraFileDialog::answerNext(path("moved/DISTRICT.kpt"));
            click(dialog, "browse");
            QCOMPARE(line(dialog, "newPath")->text(), path("moved/DISTRICT.kpt"));
            click(dialog, "relocate");
        }});
        QVERIFY(locate());
        QCOMPARE(titles_, QStringList("Locate Paths: 1 of 3"));
        QCOMPARE(shown_, QStringList("No errors found in the database"));
        QVERIFY(project().dictionary()->isDirty());
        QCOMPARE(project().dictionary()->root()->findEntity("DISTRICT", true)->fileName(),
                 "moved/DISTRICT.kpt");
        DictionarySaver(project()).save();
        QCOMPARE(reloadDictionary(path("small.kxdb"), DictionaryKind::Kxdb).missing, QStringList());
    }

    void anotherFileIsRefused() {
        moveAway({"PERSON_AGE.kbf"});
        reloadDictionary(path("small.kxdb"), DictionaryKind::Kxdb);
        const QString refusal = "The missing and relocated files are not the same.";
        answer({[&](QDialog& dialog) {
            KelvoraFileDialog::answerNext(path("PERSON_SEX.kbf"));
            click(dialog, "browse");
            QCOMPARE(shown_, QStringList(refusal));
            QVERIFY(line(dialog, "newPath")->text().isEmpty());
            QTest::keyClicks(line(dialog, "newPath"), path("PERSON_SEX.kbf"));
            click(dialog, "relocate");
            QCOMPARE(shown_, QStringList({refusal, refusal}));
            QVERIFY(dialog.isVisible());
            line(dialog, "newPath")->setText(path("nowhere/PERSON_AGE.kbf"));
            click(dialog, "relocate");
            QCOMPARE(shown_.size(), 3);
            QVERIFY(shown_[2].contains("nowhere"));
            QVERIFY(dialog.isVisible());
            dialog.reject();
        }});
        QVERIFY(!locate());
        QCOMPARE(shown_.size(), 3); // still missing: no good news
        QVERIFY(!project().dictionary()->isDirty());
    }

    void noGoesOnAndCancelEnds() {
        moveAway({"DISTRICT_CODE.kbf", "DISTRICT_NAME.kbf", "PERSON_AGE.kbf", "PERSON_SEX.kbf"});
        QVERIFY(QDir(folder_->path()).mkpath("apart"));
        QVERIFY(QFile::rename(path("moved/DISTRICT_NAME.kbf"), path("apart/DISTRICT_NAME.kbf")));
        reloadDictionary(path("small.kxdb"), DictionaryKind::Kxdb);
        answer({[](QDialog& dialog) { click(dialog, "no"); },
                [this](QDialog& dialog) {
                    QTest::keyClicks(line(dialog, "newPath"), path("apart/DISTRICT_NAME.kbf"));
                    QTest::keyClick(line(dialog, "newPath"), Qt::Key_Return);
                },
                [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }});
        QVERIFY(locate());
        QCOMPARE(titles_, QStringList({"Locate Paths: 1 of 4", "Locate Paths: 2 of 4",
                                       "Locate Paths: 3 of 4"}));
        QCOMPARE(shown_, QStringList());
        const PathLocator rest(*project().dictionary(), *project().root());
        QCOMPARE(rest.missingCount(), 3); // what was relocated before Cancel stays
        QVERIFY(project().dictionary()->isDirty());
    }

    void aThousandFilesComeWithOne() {
        auto dictionary = kel::readDictionary(path("small.kxdb").toStdString(), nullptr, true);
        TKpEntity root(nullptr);
        root.name = "ROOT";
        QVERIFY(QDir(folder_->path()).mkpath("moved"));
        for (int i = 0; i < 1000; ++i) {
            auto* variable = new TKpVariable(&root);
            variable->name = "V" + QString::number(i);
            variable->fileName = "old\\" + variable->name + ".KBF";
            variable->owner = &root;
            root.variables += variable;
            QFile file(path("moved/" + variable->name + ".kbf"));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QElapsedTimer timer;
        timer.start();
        PathLocator locator(*dictionary, root);
        QCOMPARE(locator.missingCount(), 1000);
        QVERIFY(locator.relocate(locator.items()[500], path("moved/V500.kbf")));
        QCOMPARE(locator.missingCount(), 0);
        QCOMPARE(root.variables[0]->fileName, "moved/V0.kbf");
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_MAIN(TestLocate)
#include "tst_locate.moc"

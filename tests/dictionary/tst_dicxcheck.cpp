// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/messages/Messages.h"
#include "dictionary/loading/XmlDicxDictionary.h"
#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

namespace {

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray document(const QByteArray& root) {
    return "<?xml version=\"1.0\"?><kelDictionary_XML><general><name>A</name></general>"
           "<lookup><ident>x</ident></lookup>" +
           root + "</kelDictionary_XML>";
}

QByteArray variable(const QByteArray& name, const QByteArray& file) {
    return "<variable><name>" + name + "</name><filename>" + file + "</filename></variable>";
}

} // namespace

class TestDicxCheck : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QUrl schema_;
    QStringList shown_; ///< every message, in order
    QList<Choice> answers_;

    QString path(const QString& name) const { return folder_.filePath(name); }

    bool check(const QByteArray& content) {
        write(path("census.dicx"), content);
        return XmlDicxDictionary(nullptr, schema_, path("census.dicx")).check();
    }

private slots:
    void initTestCase() {
        schema_ = QUrl::fromLocalFile(path("schema.xsd"));
        write(path("schema.xsd"), "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"/>");
        write(path("here.kbf"), "x");
        QVERIFY(QDir(folder_.path()).mkpath("sub"));
        write(path("sub/deep.kbf"), "x");
    }

    void init() {
        shown_.clear();
        answers_.clear();
        answerMessages([this](MessageKind kind, const QString& text) {
            shown_ += text;
            return kind == MessageKind::Question && !answers_.isEmpty() ? answers_.takeFirst()
                                                                        : Choice::Cancel;
        });
    }

    void cleanup() { answerMessages({}); }

    void presentFilesPassWithoutAWord() {
        const QByteArray root = "<root><name>TOP</name>" + variable("V", "here.kbf") +
                                "<entity><name>E</name><filename>.\\sub\\deep.kbf</filename>" +
                                variable("W", "sub/../here.kbf") + "</entity></root>";
        QVERIFY(check(document(root)));
        QCOMPARE(shown_, QStringList());
    }

    void missingFileIsAskedFor() {
        answers_ = {Choice::No};
        QVERIFY(
            !check(document("<root><name>TOP</name>" + variable("AGE", "lost.kbf") + "</root>")));
        QCOMPARE(shown_.size(), 2);
        QCOMPARE(shown_[0], "Variable [AGE]\nFile [lost.kbf] not found\nDo you want to located?");
        QCOMPARE(shown_[1], "Error opening dictionary [" + path("census.dicx") + "]");
    }

    // The answer for the last item is that of the whole check.
    void lastItemDecides() {
        answers_ = {Choice::No};
        QVERIFY(check(document("<root><name>TOP</name>" + variable("A", "lost.kbf") +
                               variable("B", "here.kbf") + "</root>")));
        QCOMPARE(shown_.size(), 1);
    }

    void yesAndCancelEndTheCheck() {
        const QByteArray two = document("<root><name>TOP</name>" + variable("A", "lost.kbf") +
                                        variable("B", "gone.kbf") + "</root>");
        answers_ = {Choice::Yes};
        QVERIFY(!check(two));
        QCOMPARE(shown_.size(), 2);
        QCOMPARE(shown_[1], "The files relocation for *.dicx files is not yet supported in KelX");
        shown_.clear();
        answers_ = {Choice::Cancel};
        QVERIFY(!check(two));
        QCOMPARE(shown_.size(), 1);
    }

    void entityAsksBeforeItsVariablesAndOnce() {
        answers_ = {Choice::No, Choice::No, Choice::No, Choice::No};
        const QByteArray root =
            "<root><name>TOP</name>" + variable("A", "a.kbf") + variable("AA", "a.kbf") +
            "<entity>" + variable("B", "b.kbf") + "<name>E</name><filename>e.kpt</filename>" +
            "<entity><name>F</name></entity>" + variable("LATE", "late.kbf") + "</entity></root>";
        QVERIFY(check(document(root))); // F names no file, and is the last
        QCOMPARE(shown_.size(), 3);
        QVERIFY(shown_[0].startsWith("Variable [A] (and 1 more)\nFile [a.kbf]"));
        QVERIFY(shown_[1].startsWith("Entity [E]\nFile [e.kpt]"));
        QVERIFY(shown_[2].startsWith("Variable [B]\nFile [b.kbf]"));
    }

    void sharedFileTellsHowManyItemsLackIt() {
        QByteArray root = "<root><name>TOP</name>";
        for (int i = 0; i < 20; ++i)
            root += variable("V" + QByteArray::number(i), i % 4 == 0 ? "here.kbf" : "lost.kbf") +
                    variable("W" + QByteArray::number(i), i == 7 ? "own.kbf" : "here.kbf");
        answers_ = {Choice::No, Choice::No};
        QVERIFY(check(document(root + "</root>")));
        QCOMPARE(shown_.size(), 2);
        QCOMPARE(shown_[0], "Variable [V1] (and 14 more)\nFile [lost.kbf] not found\n"
                            "Do you want to located?");
        QVERIFY(shown_[1].startsWith("Variable [W7]\nFile [own.kbf]"));
    }

    void oneAnswerCanStandForTheRest() {
        QByteArray root = "<root><name>TOP</name>";
        for (int i = 0; i < 1000; ++i)
            root += variable("V" + QByteArray::number(i), "f" + QByteArray::number(i) + ".kbf");
        answerMessages({});
        answerNextDialog([](QDialog& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            QVERIFY(box != nullptr && box->checkBox() != nullptr);
            QTest::mouseClick(box->checkBox(), Qt::LeftButton, {}, {5, 5});
            QVERIFY(box->checkBox()->isChecked());
            answerNextDialog([](QDialog& last) {
                QVERIFY(static_cast<QMessageBox&>(last).text().startsWith(
                    "Error opening dictionary ["));
                last.accept();
            });
            QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
        });
        QVERIFY(!check(document(root + "</root>")));
    }

    void hostileFilesFailQuietly_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("binary") << QByteArray("\x7f\x45LF\0\0\1\2\xff\xfe", 10);
        QTest::newRow("cut off") << document("<root>").chopped(30);
        QTest::newRow("crossed") << QByteArray("<a><b></a></b>");
        QByteArray bomb = "<!DOCTYPE a [<!ENTITY x0 \"boom\">";
        for (int i = 1; i < 40; ++i) {
            const QByteArray from = "&x" + QByteArray::number(i - 1) + ";";
            bomb += "<!ENTITY x" + QByteArray::number(i) + " \"" + from + from + "\">";
        }
        QTest::newRow("entity bomb") << bomb + "]><a>&x39;</a>";
        QTest::newRow("a million levels, not closed") << QByteArray("<a>").repeated(1000000);
    }

    void hostileFilesFailQuietly() {
        QFETCH(QByteArray, content);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!check(content));
        QVERIFY2(timer.elapsed() < 10000, "the check must not hang");
        QCOMPARE(shown_, QStringList());
    }

    void deepNestingCostsNoStack() {
        const QByteArray root = "<root><name>T</name>" +
                                QByteArray("<entity><name>E</name>").repeated(300000) +
                                QByteArray("</entity>").repeated(300000) + "</root>";
        QVERIFY(check(document(root))); // no file is named; the engine refuses the rest
        QCOMPARE(shown_, QStringList());
    }

    void whatCannotBeOpenedIsTold() {
        QVERIFY(QDir(folder_.path()).mkpath("folder.dicx"));
        for (const char* name : {"folder.dicx", "none.dicx"}) {
            shown_.clear();
            QVERIFY(!XmlDicxDictionary(nullptr, schema_, path(name)).check());
            QCOMPARE(shown_, QStringList("Error by opening the dictionary file"));
        }
    }

    void nothingIsValidWithoutASchema() {
        write(path("fine.xml"), "<a/>");
        QFile file(path("fine.xml"));
        QVERIFY(!XmlSchemaValidator(schema_).validate(&file, {})); // not open
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.seek(2));
        QVERIFY(XmlSchemaValidator(schema_).validate(&file, {}));
        QCOMPARE(file.pos(), 0);
        QVERIFY(!XmlSchemaValidator(QUrl("qrc:/none.xsd")).validate(&file, {}));
        write(path("broken.xsd"), "<xs:schema>");
        QVERIFY(!XmlSchemaValidator(QUrl::fromLocalFile(path("broken.xsd"))).validate(&file, {}));
    }
};

QTEST_MAIN(TestDicxCheck)
#include "tst_dicxcheck.moc"

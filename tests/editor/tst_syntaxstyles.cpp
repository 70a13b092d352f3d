// SPDX-License-Identifier: GPL-3.0-or-later
// Colour schemes: how their files are read, and whether text can be read in those that we bring.
#include "editor/language/QSyntaxStyle.h"
#include "editor/language/SyntaxStyles.h"
#include "support/Contrast.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

QString contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString lastMessage;

void keepMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
    lastMessage = text;
}

} // namespace

class TestSyntaxStyles : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    QString write(const QString& name, const QByteArray& bytes) {
        QFile file(folder_.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write");
        file.write(bytes);
        return file.fileName();
    }

private slots:
    void attributesBecomeFormats() {
        QSyntaxStyle style;
        QVERIFY(style.load("<style-scheme version='1.0' name='Mine'>"
                           "<style name='Text' foreground='#123' background='steelblue'/>"
                           "<style name='Keyword' foreground='#ff0000' bold='true' italic='true'/>"
                           "<style name='Number' bold='1' italic='false' foreground='no "
                           "colour'/></style-scheme>"));
        QCOMPARE(style.name(), "Mine");
        QCOMPARE(style.getFormat("Text").foreground(), QBrush(QColor(0x11, 0x22, 0x33)));
        QCOMPARE(style.getFormat("Text").background(), QBrush(QColor("steelblue")));
        QCOMPARE(style.getFormat("Keyword").fontWeight(), 700);
        QVERIFY(style.getFormat("Keyword").fontItalic());
        QVERIFY(!style.getFormat("Keyword").hasProperty(QTextFormat::BackgroundBrush));
        QVERIFY(style.getFormat("Number").isEmpty());
        QVERIFY(style.getFormat("text").isEmpty());
    }

    void underlines_data() {
        QTest::addColumn<int>("style");
        int number = 0;
        for (const char* word :
             {"NoUnderline", "SingleUnderline", "DashUnderline", "DotLine", "DashDotLine",
              "DashDotDotLine", "WaveUnderline", "SpellCheckUnderline"})
            QTest::newRow(word) << number++;
    }

    void underlines() {
        QFETCH(int, style);
        lastMessage.clear();
        const auto before = qInstallMessageHandler(keepMessage);
        QSyntaxStyle scheme;
        const QString word = QTest::currentDataTag();
        scheme.load("<style-scheme><style name='A' underlineColor='#ff0000' underlineStyle='" +
                    word + "'/></style-scheme>");
        qInstallMessageHandler(before);
        QCOMPARE(int(scheme.getFormat("A").underlineStyle()), style);
        QVERIFY(!scheme.getFormat("A").hasProperty(QTextFormat::TextUnderlineColor));
        QCOMPARE(lastMessage, style == 0 ? "Unknown underline value " + word : QString());
    }

    void laterElementsReplaceEarlierOnes() {
        QSyntaxStyle style;
        QVERIFY(style.load("<all><style-scheme name='First'>"
                           "<style name='A' bold='true' foreground='#010101'/>"
                           "<style name='A' italic='true'/></style-scheme>"
                           "<style-scheme version='1.0'/></all>"));
        QCOMPARE(style.name(), "First");
        QVERIFY(style.getFormat("A").fontItalic());
        QVERIFY(!style.getFormat("A").hasProperty(QTextFormat::FontWeight));
    }

    void faultsStopTheReading() {
        QSyntaxStyle style;
        QVERIFY(
            !style.load("<style-scheme name='Torn'><style name='A' bold='true'/><style name='B"));
        QVERIFY(!style.isLoaded());
        QCOMPARE(style.name(), "Torn");
        QVERIFY(style.getFormat("A").fontWeight() == 700);
        QVERIFY(!QSyntaxStyle().load(QString()));
        QVERIFY(!QSyntaxStyle().load("no markup at all"));
        const QString whole = contents(":/default_style.xml").trimmed();
        QVERIFY(QSyntaxStyle().load(whole));
        for (qsizetype length = 0; length < whole.size(); length += 7)
            QVERIFY(!QSyntaxStyle().load(whole.left(length)));
    }

    void entitiesThatGrowAreRefused() {
        QString text = "<!DOCTYPE s [<!ENTITY a 'aaaaaaaaaaaaaaaa'>";
        for (char c = 'b'; c < 'l'; ++c)
            text += QStringLiteral("<!ENTITY %1 '").arg(QChar(c)) +
                    QStringLiteral("&%1;").arg(QChar(c - 1)).repeated(16) + "'>";
        text += "]><style-scheme name='&k;'/>";
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!QSyntaxStyle().load(text));
        QVERIFY(timer.elapsed() < 2000);
        QVERIFY(!QSyntaxStyle().load(QString("<a>").repeated(200000)));
    }

    void listHoldsTheSchemesInTheirOrder() {
        QStringList names;
        for (const auto& [name, style] : syntaxStyles()) {
            names += name;
            QVERIFY(style->isLoaded());
        }
        QCOMPARE(names,
                 QStringList({"Default", "Dracula", "VisualStudio", "VSCode Dark+ (Blue Keywords)",
                              "VSCode Dark+ (Purple Keywords)", "qDarkSky", "SublimeMaterialLight",
                              "SublimeMaterial"}));
        QCOMPARE(&syntaxStyles(), &syntaxStyles());
        QCOMPARE(syntaxStyle(0), QSyntaxStyle::defaultStyle());
        QCOMPARE(syntaxStyle(5)->name(), "qDarkSky");
        QCOMPARE(syntaxStyle(-1), QSyntaxStyle::defaultStyle());
        QCOMPARE(syntaxStyle(8), QSyntaxStyle::defaultStyle());
    }

    void filesThatCannotBeReadAreLeftOut() {
        const QString good = write("good.xml", "<style-scheme name='Good'/>");
        const QString torn = write("torn.xml", "<style-scheme name='Torn'>");
        const SyntaxStyleList list =
            readSyntaxStyles({folder_.filePath("missing.xml"), good, torn, good});
        QCOMPARE(list.size(), 3);
        QCOMPARE(list[0].second, QSyntaxStyle::defaultStyle());
        const std::unique_ptr<QSyntaxStyle> first(list[1].second);
        const std::unique_ptr<QSyntaxStyle> second(list[2].second);
        QCOMPARE(list[1].first, "Good");
        QCOMPARE(list[2].first, "Good");
        QVERIFY(first != second);
    }

    void textIsReadable_data() {
        QTest::addColumn<int>("index");
        for (qsizetype i = 0; i < syntaxStyles().size(); ++i)
            QTest::newRow(qPrintable(syntaxStyles()[i].first)) << int(i);
    }

    void textIsReadable() {
        QFETCH(int, index);
        const QSyntaxStyle& style = *syntaxStyle(index);
        const QColor ground = style.getFormat("Text").background().color();
        for (const char* back : {"Text", "CurrentLine", "Selection", "Parentheses"})
            for (const char* front :
                 {"Text", "Keyword", "Number", "String", "Comment", "LineNumber",
                  "CurrentLineNumber", "Type", "Function", "Operator"}) {
                const QTextCharFormat text = style.getFormat(front);
                const QTextCharFormat behind = style.getFormat(back);
                QVERIFY2(text.hasProperty(QTextFormat::ForegroundBrush), front);
                QVERIFY2(behind.hasProperty(QTextFormat::BackgroundBrush), back);
                const double value =
                    contrast(text.foreground().color(), behind.background().color());
                QVERIFY2(value >= 4.5,
                         qPrintable(QString("%1 on %2: %3").arg(front, back).arg(value)));
            }
        const QTextCharFormat bracket = style.getFormat("Parentheses");
        QVERIFY(contrast(bracket.foreground().color(), bracket.background().color()) >= 4.5);
        for (const char* mark : {"CurrentLine", "Selection", "Parentheses", "Occurrences"})
            QVERIFY2(contrast(style.getFormat(mark).background().color(), ground) > 1.05, mark);
    }

    void schemesDiffer() {
        QStringList seen;
        for (const auto& [name, style] : syntaxStyles()) {
            QStringList colours;
            for (const char* part : {"Text", "Keyword", "Number", "String", "Comment"})
                colours += style->getFormat(part).foreground().color().name();
            QCOMPARE(QSet<QString>(colours.begin(), colours.end()).size(), 5);
            QVERIFY2(!seen.contains(colours.join(u' ')), qPrintable(name));
            seen += colours.join(u' ');
        }
    }

    void widgetsTakeTheColours() {
        QPlainTextEdit edit;
        applyStyleColors(edit, *syntaxStyle(5));
        const QTextCharFormat text = syntaxStyle(5)->getFormat("Text");
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(edit.palette().color(group, QPalette::Text), text.foreground().color());
            QCOMPARE(edit.palette().color(group, QPalette::Base), text.background().color());
            QCOMPARE(edit.palette().color(group, QPalette::Highlight),
                     syntaxStyle(5)->getFormat("Selection").background().color());
        }
        const QPalette before = edit.palette();
        applyStyleColors(edit, QSyntaxStyle());
        QCOMPARE(edit.palette().color(QPalette::Base), before.color(QPalette::Base));
    }
};

QTEST_MAIN(TestSyntaxStyles)
#include "tst_syntaxstyles.moc"

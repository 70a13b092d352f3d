// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of the command language against a plain reading of their rules, one expression after
// the other, and what the completers offer.
#include "editor/language/KelvoraCompleter.h"
#include "editor/language/KelxScanner.h"
#include "editor/language/QKelxCompleter.h"
#include "editor/language/QKelxHighlighter.h"
#include "editor/language/QSyntaxStyle.h"
#include "editor/language/QUtils.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPlainTextDocumentLayout>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

namespace {

/// A letter for each character: K, N, S, C, or "." for plain text.
class PlainRules {
public:
    PlainRules() {
        for (const QString& word : QUtils::reservedWords())
            rules_.append({QRegularExpression("\\b" + word + "\\b",
                                              QRegularExpression::CaseInsensitiveOption),
                           u'K'});
        rules_.append({QRegularExpression(NumberFinder::expression()), u'N'});
        rules_.append({QRegularExpression("\"[^\n\"]*\""), u'S'});
        rules_.append({QRegularExpression("//[^\n]*"), u'C'});
    }

    QString line(const QString& text, bool& inComment) const {
        QString map(text.size(), u'.');
        for (const auto& [expression, letter] : rules_)
            for (const QRegularExpressionMatch& match : expression.globalMatch(text))
                fill(map, match.capturedStart(), match.capturedLength(), letter);
        static const QRegularExpression opening("/\\*");
        static const QRegularExpression closing("\\*/");
        qsizetype start = inComment ? 0 : text.indexOf(opening);
        inComment = false;
        while (start >= 0) {
            QRegularExpressionMatch match;
            const qsizetype end = text.indexOf(closing, start, &match);
            inComment = end < 0;
            const qsizetype length =
                inComment ? text.size() - start : end - start + match.capturedLength();
            fill(map, start, length, u'C');
            start = inComment ? -1 : text.indexOf(opening, start + length);
        }
        return map;
    }

    QStringList document(const QString& text) const {
        QStringList maps;
        bool inComment = false;
        for (const QString& part : text.split(u'\n'))
            maps += line(part, inComment);
        return maps;
    }

private:
    static void fill(QString& map, qsizetype start, qsizetype length, QChar letter) {
        map.replace(start, length, QString(length, letter));
    }

    QList<QPair<QRegularExpression, QChar>> rules_;
};

const PlainRules& plainRules() {
    static const PlainRules rules;
    return rules;
}

/// Tells the tokens by their colours.
QSyntaxStyle& plainStyle() {
    static QSyntaxStyle style;
    if (!style.isLoaded())
        style.load("<style-scheme name='Plain'>"
                   "<style name='Keyword' foreground='#000001' bold='true'/>"
                   "<style name='Number' foreground='#000002'/>"
                   "<style name='String' foreground='#000003'/>"
                   "<style name='Comment' foreground='#000004'/></style-scheme>");
    return style;
}

QString mapOf(const QTextBlock& block) {
    QString map(block.length() - 1, u'.');
    for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
        const QChar letter = u".KNSC"[range.format.foreground().color().blue()];
        const bool bold = range.format.fontWeight() == QFont::Bold;
        map.replace(range.start, range.length,
                    QString(range.length, bold == (letter == u'K') ? letter : QChar(u'?')));
    }
    return map;
}

/// A document with its highlighter.
struct Coloured {
    QTextDocument document;
    QKelxHighlighter highlighter{&document};

    Coloured() {
        document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
        highlighter.setSyntaxStyle(&plainStyle());
    }
    explicit Coloured(const QString& text) : Coloured() { document.setPlainText(text); }

    QStringList maps() const {
        QStringList result;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            result += mapOf(block);
        return result;
    }
    bool firstLineIs(QChar letter) const { return mapOf(document.begin()).startsWith(letter); }
};

/// Lines that tempt every rule.
QString randomLine(QRandomGenerator& random, int pieces) {
    static const QStringList parts{
        "freq",   "FREQ",       "Define", "by",  "as",     "PERSON.SEX", "table",   "\"",   "\"a\"",
        "/*",     "*/",         "//",     "/",   "*",      "12",         "1e5",     "0x1F", ".5",
        "5.",     "1'000",      "08",     "0b1", "abc1",   "_by",        "by_",     "é",    "ñfreq",
        "freqñ",  "\U0001F600", "'",      "-",   "+",      "1e+",        "0x1p-3f", "10ul", " ",
        " ",      " ",          "\t",     ",",   "(",      ")",          "=",       "1:9",  "..",
        "\"by\"", "if",         "x",      "0",   "12.5.1", "title",      "varlabel"};
    QString line;
    for (int i = 0; i < pieces; ++i)
        line += parts[random.bounded(int(parts.size()))];
    return line;
}

QString randomText(QRandomGenerator& random, int lines) {
    QStringList text;
    for (int i = 0; i < lines; ++i)
        text += randomLine(random, random.bounded(12));
    return text.join(u'\n');
}

/// Program text without anything that opens a comment.
QString calmText(int lines) {
    QStringList text;
    for (int i = 0; i < lines; ++i)
        text += "  recode PERSON.AGE (1 : " + QString::number(i) + " = 2) \"A label\"";
    return text.join(u'\n');
}

/// Not within a character of two halves.
int anyPosition(const QTextDocument& document, QRandomGenerator& random) {
    const int at = random.bounded(document.characterCount());
    return document.characterAt(at).isLowSurrogate() ? at + 1 : at;
}

/// Editing as a user does: typing, deleting, line ends, undoing.
void editAnywhere(QTextDocument& document, QRandomGenerator& random) {
    QTextCursor cursor(&document);
    cursor.setPosition(anyPosition(document, random));
    switch (random.bounded(6)) {
    case 0:
        cursor.insertText("\n");
        return;
    case 1:
        cursor.setPosition(anyPosition(document, random), QTextCursor::KeepAnchor);
        if (cursor.selectionEnd() - cursor.selectionStart() < 200)
            cursor.removeSelectedText();
        return;
    case 2:
        document.undo();
        return;
    case 3:
        cursor.insertText(random.bounded(2) == 0 ? "/*" : "*/");
        return;
    default:
        cursor.insertText(randomLine(random, 3));
    }
}

QStringList linesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n')
                                          : QStringList();
}

QStringList offered(QCompleter& completer, const QString& prefix) {
    completer.setCompletionPrefix(prefix);
    QStringList words;
    for (int row = 0; row < completer.completionModel()->rowCount(); ++row)
        words += completer.completionModel()->index(row, 0).data().toString();
    return words;
}

} // namespace

class TestLanguage : public QObject {
    Q_OBJECT

private slots:
    void lineIsColoured_data();
    void lineIsColoured();
    void commentsGoOnOverLines();
    void randomTextsFollowTheRules();
    void randomEditsFollowTheRules();
    void numbersAreThoseOfTheExpression();
    void hostileLinesTakeNoTime_data();
    void hostileLinesTakeNoTime();
    void largeTextIsColouredWhenIdle();
    void commentOpenedAboveALargeText();
    void editsWhileColoursAreDue();
    void newStyleReachesWhatIsInViewFirst();
    void documentMayGoWhileColoursAreDue();
    void missingStyleNamesLeaveTextPlain();
    void reservedWordsAreTheEngines();
    void completersOfferReservedWords();
    void completerTakesOtherWords();
    void completerReadsAFile();
    void resourcesOfVocabulary();
};

void TestLanguage::lineIsColoured_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("map");
    const auto row = [](const char* line, const char* map) {
        QTest::newRow(line) << QString::fromUtf8(line) << QString::fromUtf8(map);
    };
    row("DEFINE define Define defined", "KKKKKK KKKKKK KKKKKK .......");
    row("abc1 1e5 0x1F .5", ".... NNN NNNN NN");
    row("\"a by b\" by", "SSSSSSSS KK");
    row("by \"open", "KK .....");
    row("x \"a//b\" by", ". SSCCCCCCC");
    row("\"/*\" by", "SCCCCCC");
    row("/*/ by", "CCC KK");
    row("/* a */ by /* c", "CCCCCCC KK CCCC");
    row("// by /* 1 */ 2", "CCCCCCCCCCCCCCC");
    row("PERSON.BY=1,2", ".......KK.N.N");
    row("byé éby b\u00fdby by_ 7_ 7by", "KK. .KK ..KK ... .. ...");
    row("a\u017f \u017fas cla\u017f\u017f", ".. .KK .....");
}

void TestLanguage::lineIsColoured() {
    QFETCH(QString, line);
    QFETCH(QString, map);
    Coloured text(line);
    QString plain = mapOf(text.document.begin());
    for (qsizetype i = 0; i < plain.size(); ++i)
        if (line[i] == u' ' && plain[i] == u'.')
            plain[i] = u' ';
    QCOMPARE(plain, map);
}

void TestLanguage::commentsGoOnOverLines() {
    Coloured text("by /* by\nby\n\nby */ by\nby");
    QCOMPARE(text.maps(), QStringList({"KK.CCCCC", "CC", "", "CCCCC.KK", "KK"}));
    QTextCursor(text.document.findBlockByNumber(1)).insertText("*/ ");
    QCOMPARE(text.maps(), QStringList({"KK.CCCCC", "CC.KK", "", "KK....KK", "KK"}));
    text.document.undo();
    QTextCursor(&text.document).insertText("by // ");
    QCOMPARE(text.maps(), QStringList({"KK.CCCCCCCCCCC", "CC", "", "CCCCC.KK", "KK"}));
}

void TestLanguage::randomTextsFollowTheRules() {
    for (unsigned seed = 1; seed <= 15; ++seed) {
        QRandomGenerator random(seed);
        const QString source = randomText(random, 60) + '\n' + randomLine(random, 3000);
        Coloured text(source);
        QTRY_VERIFY(text.highlighter.isFinished());
        const QStringList maps = text.maps();
        const QStringList wanted = plainRules().document(source);
        QCOMPARE(maps.size(), wanted.size());
        for (qsizetype i = 0; i < maps.size(); ++i) {
            const QStringList told{QString::number(seed), source.section(u'\n', i, i), maps[i],
                                   wanted[i]};
            QVERIFY2(maps[i] == wanted[i], qPrintable(told.join(u'\n')));
        }
    }
}

void TestLanguage::randomEditsFollowTheRules() {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        QRandomGenerator random(seed);
        Coloured text(randomText(random, 40));
        for (int i = 0; i < 150; ++i) {
            editAnywhere(text.document, random);
            if (i % 10 == 0)
                QCOMPARE(text.maps(), plainRules().document(text.document.toPlainText()));
            if (i % 30 == 0)
                QCoreApplication::processEvents();
        }
    }
}

void TestLanguage::numbersAreThoseOfTheExpression() {
    const QString alphabet = QStringLiteral("0011889aefxpbBul'.+- _Vé\t");
    const QRegularExpression expression(NumberFinder::expression());
    QVERIFY(expression.isValid());
    NumberFinder finder;
    QRandomGenerator random(11);
    int seen = 0;
    for (int round = 0; round < 60000; ++round) {
        QString line;
        for (int i = random.bounded(14); i >= 0; --i)
            line += alphabet[random.bounded(int(alphabet.size()))];
        QList<QPair<qsizetype, qsizetype>> wanted;
        for (const QRegularExpressionMatch& match : expression.globalMatch(line))
            wanted.append({match.capturedStart(), match.capturedLength()});
        QList<QPair<qsizetype, qsizetype>> found;
        finder.find(line, [&](qsizetype start, qsizetype length) {
            found.append({start, length});
        });
        QVERIFY2(found == wanted, qPrintable(line));
        seen += int(wanted.size());
    }
    QVERIFY(seen > 20000);
}

void TestLanguage::hostileLinesTakeNoTime_data() {
    QTest::addColumn<QString>("piece");
    for (const char* piece : {"1", "08'", "1'", "0'8'", "0x1p", "1e+", ".1", "1.", "\"", "/*", "*/",
                              "/", "ſas", "by ", "a", "0x1f'1f.", "1'1.1e5'", "08'08 ", "'0"})
        QTest::newRow(piece) << QString::fromUtf8(piece);
}

void TestLanguage::hostileLinesTakeNoTime() {
    QFETCH(QString, piece);
    KelxScanner scanner(QUtils::reservedWords());
    const QString line = piece.repeated(1000000 / piece.size()) + 'x';
    bool inComment = false;
    QElapsedTimer timer;
    timer.start();
    scanner.scan(line, inComment);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
}

void TestLanguage::largeTextIsColouredWhenIdle() {
    const QString source = calmText(8000);
    Coloured text(source);
    QVERIFY(text.firstLineIs(u'.')); // two blanks
    QCOMPARE(mapOf(text.document.begin()), plainRules().document(source.section(u'\n', 0, 0))[0]);
    QVERIFY(!text.highlighter.isFinished());
    QTRY_VERIFY(text.highlighter.isFinished());
    QCOMPARE(text.maps(), plainRules().document(source));
}

void TestLanguage::commentOpenedAboveALargeText() {
    Coloured text(calmText(8000));
    text.highlighter.finish();
    QVERIFY(text.highlighter.isFinished());
    QCoreApplication::processEvents();

    QTextCursor cursor(&text.document);
    cursor.insertText("/*");
    QVERIFY(!text.highlighter.isFinished());
    QTRY_VERIFY(text.highlighter.isFinished());
    QVERIFY(mapOf(text.document.lastBlock()).count(u'C') == text.document.lastBlock().length() - 1);
    QCOMPARE(text.document.lastBlock().userState(), 1);

    cursor.insertText(" */");
    text.highlighter.finish();
    QCOMPARE(text.maps(), plainRules().document(text.document.toPlainText()));
}

void TestLanguage::editsWhileColoursAreDue() {
    QRandomGenerator random(5);
    Coloured text(calmText(4000));
    int dueBefore = 0;
    for (int i = 0; i < 300; ++i) {
        dueBefore += text.highlighter.isFinished() ? 0 : 1;
        editAnywhere(text.document, random);
        if (i % 20 == 0)
            text.highlighter.recolour();
        if (i % 7 == 0)
            QCoreApplication::processEvents();
    }
    QVERIFY(dueBefore > 20);
    QTRY_VERIFY(text.highlighter.isFinished());
    QCOMPARE(text.maps(), plainRules().document(text.document.toPlainText()));
}

void TestLanguage::newStyleReachesWhatIsInViewFirst() {
    Coloured text(calmText(8000));
    text.highlighter.finish();
    text.highlighter.setVisibleBlocks([] { return qMakePair(6000, 6040); });
    QSyntaxStyle other;
    QVERIFY(other.load("<style-scheme><style name='Keyword' foreground='#ff0000'/>"
                       "</style-scheme>"));
    text.highlighter.setSyntaxStyle(&other);
    text.highlighter.recolour();
    const auto red = [&](int number) {
        const auto formats = text.document.findBlockByNumber(number).layout()->formats();
        return formats.size() == 1 && formats[0].format.foreground().color() == QColor(255, 0, 0);
    };
    QVERIFY(red(0));
    QVERIFY(red(6000));
    QVERIFY(red(6040));
    QVERIFY(!red(5999));
    QTRY_VERIFY(text.highlighter.isFinished());
    QVERIFY(red(5999));
    QVERIFY(red(7999));
}

void TestLanguage::documentMayGoWhileColoursAreDue() {
    auto document = std::make_unique<QTextDocument>();
    document->documentLayout(); // without one, changes are not told
    QTextDocument other;
    QKelxHighlighter highlighter; // which would be a document's child
    highlighter.setDocument(document.get());
    document->setPlainText(calmText(3000));
    QVERIFY(!highlighter.isFinished());
    other.setPlainText("by");
    highlighter.setSyntaxStyle(&plainStyle());
    highlighter.setDocument(&other);
    QTRY_COMPARE(mapOf(other.begin()), "KK");
    QVERIFY(highlighter.isFinished());

    highlighter.setDocument(document.get());
    highlighter.recolour();
    QVERIFY(!highlighter.isFinished());
    document.reset();
    QCoreApplication::processEvents();
    QVERIFY(highlighter.isFinished());
    highlighter.finish();
    highlighter.recolour();
}

void TestLanguage::missingStyleNamesLeaveTextPlain() {
    Coloured text;
    QSyntaxStyle empty;
    text.highlighter.setSyntaxStyle(&empty);
    text.document.setPlainText("by 1 \"a\" // b");
    QVERIFY(text.document.begin().layout()->formats().isEmpty());
    text.highlighter.recolour();
    QVERIFY(text.document.begin().layout()->formats().isEmpty());
}

void TestLanguage::reservedWordsAreTheEngines() {
    const QStringList words = QUtils::reservedWords();
    for (const char* word : {"areabreak", "arealist", "define", "freq", "valuelabels", "xml"})
        QVERIFY2(words.contains(word), word);
    for (const QString& word : words)
        QVERIFY2(QRegularExpression("^[a-z]+$").match(word).hasMatch(), qPrintable(word));
}

void TestLanguage::completersOfferReservedWords() {
    KelvoraCompleter completer;
    QKelxCompleter other;
    QCOMPARE(completer.words().size(), QUtils::reservedWords().size());
    for (QCompleter* one :
         {static_cast<QCompleter*>(&completer), static_cast<QCompleter*>(&other)}) {
        QCOMPARE(offered(*one, "aREa"), QStringList({"areabreak", "arealist"}));
        QCOMPARE(offered(*one, "freq"), QStringList({"freq", "frequency"}));
        QCOMPARE(offered(*one, "nosuch"), QStringList());
        QVERIFY(one->wrapAround());
        QCOMPARE(one->completionColumn(), 0);
    }
}

void TestLanguage::completerTakesOtherWords() {
    KelvoraCompleter completer(QStringList(), false);
    QVERIFY(!completer.wrapAround());
    QCOMPARE(offered(completer, ""), QStringList());
    // In a dictionary's order, and in mixed case: both would be missed unsorted.
    completer.setWords({"SEX", "age", "Relation", "AGE_GROUP", "literate", "RelIGION"});
    QCOMPARE(offered(completer, "re"), QStringList({"Relation", "RelIGION"}));
    QCOMPARE(offered(completer, "AGE"), QStringList({"age", "AGE_GROUP"}));
    QCOMPARE(offered(completer, "s"), QStringList({"SEX"}));
    completer.setWords({"size", "age", "Sort"}); // while that prefix stays
    QCOMPARE(completer.completionCount(), 2);
}

void TestLanguage::completerReadsAFile() {
    const QTemporaryDir folder;
    QFile file(folder.filePath("words.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("  zebra \r\n\n\xc3\xa1rea\nApple\n   \nlast");
    file.close();
    KelvoraCompleter completer;
    completer.loadFromFile(file.fileName());
    QCOMPARE(completer.words(), QStringList({"Apple", "last", "zebra", QString::fromUtf8("área")}));
    QCOMPARE(offered(completer, "a"), QStringList({"Apple"}));
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    completer.loadFromFile(folder.filePath("missing.txt"));
    QCOMPARE(completer.words(), QStringList());
    QCOMPARE(offered(completer, ""), QStringList());
}

void TestLanguage::resourcesOfVocabulary() {
    QCOMPARE(
        linesOf(":/resources/commandlist.txt"),
        QStringList({"None", "RUNDEF command", "DEFINE command", "TABLE command", "EXECUTE command",
                     "DEFINE options", "TABLE options", "EXPRESSION options", ""}));
    const QStringList words = linesOf(":/resources/wordlist.txt");
    QCOMPARE(words.size(), 1454 + 1);
    QVERIFY(std::is_sorted(words.begin(), words.end() - 1));
    const QStringList reserved = linesOf(":/resources/reservedwords.txt").mid(212);
    QCOMPARE(reserved.first(), "abs");
    for (const QString& word : reserved)
        QVERIFY2(word.isEmpty() || QUtils::reservedWords().contains(word), qPrintable(word));
    const QString sample = linesOf(":/resources/code_samples/kelvora.spc").join(u'\n');
    const QString maps = plainRules().document(sample).join(QString());
    for (const QChar token : QStringLiteral("KNSC"))
        QVERIFY2(maps.contains(token), qPrintable(QString(token)));
}

QTEST_MAIN(TestLanguage)
#include "tst_language.moc"

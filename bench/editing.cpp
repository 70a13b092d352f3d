// SPDX-License-Identifier: Apache-2.0
#include "editing.h"

#include "editor/text/Editor.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QTextBlock>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

double elapsed(const QElapsedTimer& timer) {
    return double(timer.nsecsElapsed()) / 1e6;
}

void print(const char* what, double median, double slowest) {
    std::printf("%-36s %8.2f ms, slowest %.2f\n", what, median, slowest);
}

void paint(QWidget& widget) {
    QApplication::processEvents();
    widget.repaint();
}

void press(QWidget& widget, int key, const QString& text,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(&widget, &up);
}

void typeLetter(QWidget& widget, QChar letter) {
    if (letter == u'\n')
        press(widget, Qt::Key_Return, QStringLiteral("\r"));
    else
        press(widget, letter.toUpper().unicode(), QString(letter));
}

void moveTo(QPlainTextEdit& editor, int line) {
    editor.setTextCursor(QTextCursor(editor.document()->findBlockByNumber(line)));
    editor.ensureCursorVisible();
}

constexpr double mostForOpening = 2000; // milliseconds, as the others
constexpr double mostForAKey = 16;
constexpr double mostForTheWorstKey = 50;

void check(const char* what, double took, double most, QStringList& faults) {
    if (took > most)
        faults += QStringLiteral("%1: %2 ms, more than %3")
                      .arg(QString::fromLatin1(what))
                      .arg(took, 0, 'f', 1)
                      .arg(most);
}

/// Each key with its painting.
void measureTyping(const char* what, QPlainTextEdit& editor, int line, const QString& typed,
                   QStringList& faults) {
    moveTo(editor, line);
    paint(editor);
    std::vector<double> times;
    for (const QChar letter : typed) {
        QElapsedTimer timer;
        timer.start();
        typeLetter(editor, letter);
        paint(editor);
        times.push_back(elapsed(timer));
    }
    std::sort(times.begin(), times.end());
    print(what, times[times.size() / 2], times.back());
    check(what, times[times.size() / 2], mostForAKey, faults);
    check(what, times.back(), mostForTheWorstKey, faults);
}

void measureOpening(QPlainTextEdit& editor, const QString& program, QStringList& faults) {
    QElapsedTimer timer;
    timer.start();
    editor.setPlainText(program);
    const double text = elapsed(timer);
    editor.resize(900, 700);
    editor.show();
    paint(editor);
    const double shown = elapsed(timer);
    std::printf("%-36s %8.2f ms, of which the text %.2f\n", "open", shown, text);
    check("open", shown, mostForOpening, faults);
}

void measureEverywhere(QPlainTextEdit& editor, const QString& typed, const char* when,
                       QStringList& faults) {
    const int lines = editor.document()->blockCount();
    const QString words = QString::fromLatin1(when);
    measureTyping(qPrintable("type at the start" + words), editor, 0, typed, faults);
    measureTyping(qPrintable("type in the middle" + words), editor, lines / 2, typed, faults);
    measureTyping(qPrintable("type at the end" + words), editor, lines - 1, typed, faults);
}

QString block(QRandomGenerator& random, int number) {
    return QStringLiteral("// Group %1 of the questionnaire\n"
                          "DEFINE PERSON.GROUP_%1\n"
                          "  AS RECODE PERSON.AGE\n"
                          "  (0 : %2 = 1)\n"
                          "  (%3 : 98 = 2)\n"
                          "  ELSE 3\n"
                          "  VARLABEL \"Age group, edition %1\"\n"
                          "  VALUELABELS\n"
                          "    1 \"Younger than %3 years\"\n"
                          "    2 \"Older, and asked about work // or study\"\n"
                          "  TYPE INTEGER RANGE 1 : 3 DEFAULT 9\n"
                          "\n"
                          "/* Only those who live here,\n"
                          "   weighted by the household. */\n"
                          "FREQ PERSON.GROUP_%1 BY PERSON.SEX, PERSON.LITERATE\n"
                          "  TITLE \"Groups by sex\" FILTER PERSON.INCOME >= %4.5 AND "
                          "HOUSEHOLD.ROOMS IN (1:5, 9)\n\n")
        .arg(number)
        .arg(random.bounded(10, 40))
        .arg(random.bounded(41, 80))
        .arg(random.bounded(10000));
}

} // namespace

QString programOfLines(int lines) {
    QRandomGenerator random(7);
    QString text;
    int have = 0;
    for (int number = 1; have < lines; ++number) {
        const QString next = block(random, number);
        have += int(next.count(u'\n'));
        text += next;
    }
    return text;
}

void measureRepeated(const char* what, int rounds, const std::function<void()>& act,
                     const std::function<void()>& undo) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        undo();
        QApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        act();
        QApplication::processEvents();
        times.push_back(elapsed(timer));
    }
    std::sort(times.begin(), times.end());
    print(what, times[times.size() / 2], times.back());
}

void measureUntil(const char* what, const std::function<bool()>& done) {
    QElapsedTimer timer;
    timer.start();
    double slowest = 0;
    while (!done()) {
        QElapsedTimer turn;
        turn.start();
        QApplication::processEvents();
        slowest = std::max(slowest, elapsed(turn));
    }
    std::printf("%-36s %8.2f ms, longest turn %.2f\n", what, elapsed(timer), slowest);
}

QStringList measureEditor(QPlainTextEdit& editor, const QString& program,
                          const std::function<bool()>& finished) {
    static const QString typed =
        QStringLiteral("freq PERSON.SEX by 12 \"label\" // why\n").repeated(6);
    QStringList faults;
    measureOpening(editor, program, faults);
    measureEverywhere(editor, typed, ", colours due", faults);
    measureUntil("  until all is coloured", finished);
    measureEverywhere(editor, typed, "", faults);
    // A comment that opens or closes concerns all the lines below.
    measureTyping("open and close a comment above all", editor, 0,
                  QStringLiteral("/* */ /* */ /* */\n"), faults);
    measureTyping("leave one open", editor, 0, QStringLiteral("/*"), faults);
    measureTyping("type below it", editor, editor.document()->blockCount() / 2, typed, faults);
    measureUntil("  until all is coloured", finished);
    measureRepeated(
        "undo a paste of 5000 lines", 5, [&] { editor.undo(); },
        [&] {
            moveTo(editor, editor.document()->blockCount() / 2);
            editor.insertPlainText(program.left(program.size() / 20));
        });
    measureUntil("  until all is coloured", finished);
    return faults;
}

void measureAllLines(Editor& editor) {
    const QString word = QStringLiteral("person");
    measureRepeated("find all", 5, [&] { editor.findAll(word, false, false); });
    bool replaced = false;
    measureRepeated(
        "replace all", 3, [&] { editor.replaceAll(word, "HOUSEHOLD", false, true); },
        [&] {
            if (replaced)
                editor.undo();
            replaced = true;
        });
    editor.undo();
    measureRepeated(
        "undo it", 3, [&] { editor.undo(); },
        [&] { editor.replaceAll(word, "HOUSEHOLD", false, true); });
    measureRepeated(
        "indent all", 3, [&] { press(editor, Qt::Key_Tab, QStringLiteral("\t")); },
        [&] { editor.selectAll(); });
    measureRepeated("undo it", 3, [&] { editor.undo(); });
}

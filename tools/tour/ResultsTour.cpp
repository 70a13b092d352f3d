// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of the tour through the results of runs, and through their files as other programs see
// them.
#include "Tour.h"
#include "TourSteps.h"

#include "app/MainWindow.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "results/ResultsManager.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <cstdio>

namespace {

constexpr int programTime = 120000; ///< ms that another program may take
constexpr int linesShown = 40;

/// What the program prints; nothing where it is not installed or fails.
QString printed(const QString& program, const QStringList& arguments) {
    if (QStandardPaths::findExecutable(program).isEmpty()) {
        std::printf("%s is not installed: a picture is left out\n", qPrintable(program));
        return {};
    }
    QProcess process;
    process.start(program, arguments);
    require(process.waitForFinished(programTime) && process.exitCode() == 0,
            QStringLiteral("%1 does not take %2: %3")
                .arg(program, arguments.join(u' '),
                     QString::fromLocal8Bit(process.readAllStandardError())));
    return QString::fromUtf8(process.readAllStandardOutput()) + u' ';
}

QPixmap pictureOf(const QString& text) {
    QPlainTextEdit page;
    page.setFont(QFont(QStringLiteral("monospace"), 9));
    page.setLineWrapMode(QPlainTextEdit::NoWrap);
    page.setPlainText(text.section(u'\n', 0, linesShown));
    page.resize(900, 600);
    return page.grab();
}

/// The first page of a PDF.
QPixmap firstPage(const QString& pdf) {
    const QString picture = pdf + QStringLiteral("-page");
    if (printed(QStringLiteral("pdftoppm"),
                {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("80"),
                 QStringLiteral("-singlefile"), pdf, picture})
            .isEmpty())
        return {};
    return QPixmap(picture + QStringLiteral(".png"));
}

/// A workbook or a list as the spreadsheet prints it.
QPixmap sheetOf(const QString& file) {
    const QDir folder = QFileInfo(file).dir();
    QStringList arguments{QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                          QStringLiteral("pdf"), QStringLiteral("--outdir"), folder.path()};
    // Unasked it takes lists for texts of the system's encoding: commas, quotes, UTF-8, from row 1.
    if (file.endsWith(QLatin1String(".csv")))
        arguments += QStringLiteral("--infilter=CSV:44,34,76,1");
    if (printed(QStringLiteral("soffice"), arguments + QStringList{file}).isEmpty())
        return {};
    return firstPage(folder.filePath(QFileInfo(file).completeBaseName() + QStringLiteral(".pdf")));
}

/// The table in front as a file.
QString exported(MainWindow& window, const QString& folder, const char* action,
                 const QString& name) {
    QString file = QDir(folder).filePath(name);
    KelvoraFileDialog::answerNext(file);
    find<QAction>(window, action)->trigger();
    require(QFile::exists(file), QStringLiteral("%1 was not written").arg(name));
    return file;
}

} // namespace

/// The table that the program makes last, and its report.
void Tour::shootResult(const QString& program, const QString& name, bool report) {
    window_.runProgram(program);
    auto* tabs = find<QTabWidget>(window_, "tabWidget");
    require(tabs->isVisible(), QStringLiteral("no results appear for %1").arg(program));
    shoot(QStringLiteral("result-") + name);
    if (!report)
        return;
    tabs->setCurrentIndex(1);
    shoot(QStringLiteral("report-") + name);
    tabs->setCurrentIndex(0);
}

void Tour::results() {
    const QTemporaryDir folder;
    const QSize before = window_.size();
    window_.resize(1800, 950); // docks stand beside the tables
    shootResult(QStringLiteral("FREQ PERSON.EDUCATION"), QStringLiteral("frequency"), true);
    shootResult(QStringLiteral("AVERAGE PERSON.INCOME BY PERSON.EDUCATION\n\tDECIMALS 1"),
                QStringLiteral("average"), false);
    shootResult(QStringLiteral("TABLE BYSEX AS FREQUENCY PERSON.SEX\n"
                               "AREALIST DISTRICT, DISTRICT.AREA_KM2, BYSEX"),
                QStringLiteral("area-list"), true);
    // Lists have no quotes, so this one goes there: its labels have no commas.
    const QPixmap list = sheetOf(
        exported(window_, folder.path(), "actionCsvNameAsHeader", QStringLiteral("list.csv")));
    if (!list.isNull())
        save(list, QStringLiteral("export-csv"));
    const QString threeWay = QStringLiteral("CROSSTABS HOUSEHOLD.TENURE BY PERSON.SEX BY "
                                            "PERSON.LITERATE");
    const QString style = folder.filePath(QStringLiteral("matrix.json"));
    QFile file(style);
    require(file.open(QIODevice::WriteOnly), QStringLiteral("cannot write a table style"));
    file.write(R"({"frequencyMultiVar": {"threeVarLayout": "matrixByFirstVar"}})");
    file.close();
    shootResult(QStringLiteral("RUNDEF Matrix\n\tTABLESTYLE \"%1\"\n").arg(style) + threeWay,
                QStringLiteral("three-way-matrix"), true);
    shootResult(threeWay, QStringLiteral("three-way"), true);
    exports(folder.path());
    window_.resize(before);
}

/// The table in front as a file of each other kind, as another program shows it.
void Tour::exports(const QString& folder) {
    const auto file = [&](const char* action, const QString& name) {
        return exported(window_, folder, action, name);
    };
    const auto keep = [this](const QPixmap& picture, const QString& name) {
        if (!picture.isNull())
            save(picture, QStringLiteral("export-") + name);
    };
    keep(sheetOf(file("actionXlsx", QStringLiteral("grid.xlsx"))), QStringLiteral("xlsx-grid"));
    find<QTabWidget>(window_, "tabWidget")->setCurrentIndex(1);
    keep(sheetOf(file("actionXlsx", QStringLiteral("report.xlsx"))), QStringLiteral("xlsx-report"));
    find<QTabWidget>(window_, "tabWidget")->setCurrentIndex(0);
    keep(firstPage(file("actionPdf", QStringLiteral("report.pdf"))), QStringLiteral("pdf"));
    const QString xml =
        printed(QStringLiteral("xmllint"),
                {QStringLiteral("--format"), file("actionXml", QStringLiteral("table.xml"))});
    const QString json =
        printed(QStringLiteral("python3"), {QStringLiteral("-m"), QStringLiteral("json.tool"),
                                            file("actionJson", QStringLiteral("table.json"))});
    keep(xml.isEmpty() ? QPixmap() : pictureOf(xml), QStringLiteral("xml"));
    keep(json.isEmpty() ? QPixmap() : pictureOf(json), QStringLiteral("json"));
}

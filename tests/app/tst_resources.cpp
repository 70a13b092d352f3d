// SPDX-License-Identifier: GPL-3.0-or-later
// What is compiled into the workbench: pictures that can be seen and told apart, none missing on
// the ribbon, and a schema that fits what the programs write.
#include "TKelDictionary.h"
#include "app/ribbon/RibbonPages.h"
#include "app/ribbon/RibbonState.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "app/widgets/RowIcon.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/MirrorBuilder.h"
#include "engine/TKelConfigImpl.h"
#include "kel.h"
#include "support/Contrast.h"
#include "support/SmallDatabase.h"

#include <QAction>
#include <QDir>
#include <QIcon>
#include <QImage>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QPainter>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

namespace {

const QString icons = QStringLiteral(":/icons/res/icons/");

/// Base names of the pictures, without those of twice the size.
QStringList pictures(const QString& folder) {
    QStringList names;
    for (const QString& file : QDir(folder).entryList({"*.png"}))
        if (!file.contains('@'))
            names += folder + file.chopped(4);
    return names;
}

/// Mean difference of the colour parts, 0 to 255, drawn over white.
double difference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q));
        }
    return sum / (3.0 * a.width() * a.height());
}

QImage onWhite(const QString& name, int size) {
    QImage result(size, size, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::white);
    QPainter painter(&result);
    QIcon(name + ".png").paint(&painter, result.rect());
    return result;
}

} // namespace

class TestResources : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

    QString path(const QString& name) const { return folder_.filePath(name); }

    /// What the schema has against a file; empty where it fits.
    QString faults(const QString& file) const {
        QProcess lint;
        lint.start("xmllint", {"--noout", "--schema", path("kel7dicwip.xsd"), path(file)});
        if (!lint.waitForFinished())
            return lint.errorString();
        return lint.exitCode() == 0 ? QString() : lint.readAllStandardError();
    }

    void edit(const QString& from, const QString& to, const QString& before, const QString& after) {
        QFile source(path(from));
        QVERIFY(source.open(QIODevice::ReadOnly));
        QString text = source.readAll();
        QVERIFY(text.contains(before));
        QFile target(path(to));
        QVERIFY(target.open(QIODevice::WriteOnly));
        target.write(text.replace(before, after).toUtf8());
    }

private slots:
    void initTestCase() {
        kel::init(std::make_shared<TKelConfigImpl>());
        writeSmallDatabase(folder_.path());
        QVERIFY(QFile::copy(":/schemas/kel7dicwip.xsd", path("kel7dicwip.xsd")));
    }

    void cleanupTestCase() { kel::destroy(); }

    void picturesHaveBothSizes() {
        const QStringList names = pictures(icons) + pictures(":/images/");
        QVERIFY(names.size() > 70);
        for (const QString& name : names) {
            const int size = name.contains("/190px") ? 190 : 48;
            QCOMPARE(QImage(name + ".png").size(), QSize(size, size));
            QCOMPARE(QImage(name + "@2x.png").size(), QSize(size, size) * 2);
        }
    }

    void everySmallPictureShowsOnLightAndDark() {
        for (const QString& name : pictures(icons)) {
            if (name.contains("/190px"))
                continue; // brings a ground of its own
            const QImage image(name + "@2x.png");
            int strong = 0;
            int clear = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x) {
                    const QRgb colour = image.pixel(x, y);
                    strong += qAlpha(colour) == 255;
                    clear += qAlpha(colour) == 255 &&
                             contrast(QColor(colour), QColor(0xf7f7f8)) >= 2.95 &&
                             contrast(QColor(colour), QColor(0x2b2b2f)) >= 2.95;
                }
            QVERIFY2(strong > 500, qPrintable(name + " is nearly empty"));
            QVERIFY2(clear >= strong * 95 / 100, qPrintable(name + " is too pale or too dark"));
        }
    }

    void picturesAreToldApartAtTwentyPixels() {
        const QStringList names = pictures(icons);
        for (int i = 0; i < names.size(); ++i)
            for (int j = 0; j < i; ++j) {
                const double apart = difference(onWhite(names[i], 20), onWhite(names[j], 20));
                QVERIFY2(apart > 4, qPrintable(names[i] + " looks like " + names[j]));
            }
    }

    void selectedRowsShowTheirIcons() {
        const QPalette before = QApplication::palette();
        const auto restore = qScopeGuard([&] { QApplication::setPalette(before); });
        QPalette palette = before;
        palette.setColor(QPalette::Highlight, QColor("#2f86d6"));
        palette.setColor(QPalette::HighlightedText, QColor("#f0fff0"));
        QApplication::setPalette(palette);
        QListWidget list;
        list.setIconSize({24, 24});
        list.addItem(new QListWidgetItem(rowIcon(icons + "48px-Entity.png"), "PERSON"));
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        list.item(0)->setSelected(true);
        QRect row = list.visualItemRect(list.item(0));
        row.setWidth(28);
        const QImage image = list.viewport()->grab(row).toImage();
        int light = 0; // neither the picture's own blue nor that of the row has so much red
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                light += image.pixelColor(x, y).red() > 150;
        QVERIFY2(light > 30, qPrintable(QString::number(light)));
    }

    void theRibbonHasAPictureForEachAction() {
        QMainWindow window;
        QMdiArea area;
        tt::TabToolbar ribbon(&window, 75, 3);
        const RibbonPages pages(ribbon, {}, area);
        int seen = 0;
        for (const QAction* action : ribbon.findChildren<QAction*>()) {
            const QString file = icons + "48px-" + action->objectName() + ".png";
            if (!action->objectName().contains('-'))
                continue;
            ++seen;
            QVERIFY2(QFile::exists(file), qPrintable(file));
        }
        QVERIFY(seen >= 30);
    }

    void theSchemaFitsWhatIsWritten() {
        QCOMPARE(faults("small.dicx"), QString());
        const auto dictionary =
            kel::readDictionary(path("small.kxdb").toStdString(), nullptr, true);
        const auto root = buildMirror(*dictionary);
        DictionaryUtil().writeDicx(path("mirror.dicx"), *dictionary, *root);
        QCOMPARE(faults("mirror.dicx"), QString());
    }

    void theSchemaRefusesOtherFiles_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("no root") << "root>"
                                 << "entity>";
        QTest::newRow("no such type") << "<varType>INTEGER"
                                      << "<varType>INTEGR";
        QTest::newRow("no size") << "datasetSize>"
                                 << "size>";
        QTest::newRow("empty name") << "<name>SEX</name>"
                                    << "<name></name>";
        QTest::newRow("no number") << "<missing>9</missing>"
                                   << "<missing>nine</missing>";
    }

    void theSchemaRefusesOtherFiles() {
        QFETCH(QString, before);
        QFETCH(QString, after);
        edit("small.dicx", "other.dicx", before, after);
        QVERIFY(faults("other.dicx").contains("fails to validate"));
    }
};

QTEST_MAIN(TestResources)
#include "tst_resources.moc"

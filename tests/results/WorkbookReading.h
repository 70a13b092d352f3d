// SPDX-License-Identifier: GPL-3.0-or-later
// Workbooks as another program reads and makes them. KELVORAX_PYTHON has openpyxl.
#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTest>

inline QByteArray runPython(const QString& script, const QStringList& arguments) {
    QProcess python;
    python.setProcessChannelMode(QProcess::SeparateChannels);
    python.start(QStringLiteral(KELVORAX_PYTHON),
                 QStringList(QStringLiteral(WORKBOOK_SCRIPTS) + u'/' + script) + arguments);
    if (!python.waitForFinished(60000) || python.exitCode() != 0)
        qCritical().noquote() << script << "failed:" << python.readAllStandardError();
    return python.readAllStandardOutput();
}

inline void makeWorkbook(const char* kind, const QString& path) {
    runPython(QStringLiteral("make_workbook.py"), {QLatin1String(kind), path});
}

inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class ReadWorkbook {
public:
    explicit ReadWorkbook(const QString& path)
        : facts_(QJsonDocument::fromJson(runPython(QStringLiteral("read_workbook.py"), {path}))
                     .object()) {}

    /// What a strict reader objects to; a workbook that can't be read at all is one objection.
    QString problems() const {
        if (facts_.isEmpty())
            return QStringLiteral("not read");
        return texts(facts_["problems"]).join(u'\n');
    }
    QStringList sheets() const {
        QStringList names;
        for (const auto& sheet : facts_["sheets"].toArray())
            names += sheet.toObject()["name"].toString();
        return names;
    }
    QJsonObject sheet(qsizetype index) const {
        return facts_["sheets"].toArray()[index].toObject();
    }
    QJsonObject cell(const char* place, qsizetype sheet = 0) const {
        return this->sheet(sheet)["cells"].toObject()[QLatin1String(place)].toObject();
    }
    QJsonValue value(const char* place, qsizetype sheet = 0) const {
        return cell(place, sheet)["value"];
    }
    /// "font size bold fill border number-format", "-" for none.
    QString look(const char* place, qsizetype sheet = 0) const {
        const QJsonObject facts = cell(place, sheet);
        const auto word = [&](const char* name) {
            return facts[QLatin1String(name)].toString(QStringLiteral("-"));
        };
        return QStringLiteral("%1 %2 %3 %4 %5 %6")
            .arg(word("font"))
            .arg(facts["size"].toDouble())
            .arg(facts["bold"].toBool() ? QStringLiteral("bold") : QStringLiteral("-"),
                 word("fill"), word("border"), word("format"));
    }
    /// The first cell that scrolls, then how the sheet is printed: across, on A4, and fitted to so
    /// many pages in width and height (0: any number).
    QString view(qsizetype sheet = 0) const {
        const QJsonObject facts = this->sheet(sheet);
        return facts["frozen"].toString(QStringLiteral("-")) + u' ' + facts["page"].toString();
    }
    /// In both directions.
    bool isCentred(const char* place, qsizetype sheet = 0) const {
        const QJsonObject facts = cell(place, sheet);
        return facts["horizontal"].toString() == QLatin1String("center") &&
               facts["vertical"].toString() == QLatin1String("center");
    }
    QStringList merged(qsizetype sheet = 0) const { return texts(this->sheet(sheet)["merged"]); }
    double width(const char* column, qsizetype sheet = 0) const {
        return this->sheet(sheet)["widths"].toObject()[QLatin1String(column)].toDouble();
    }
    const QJsonObject& facts() const { return facts_; }

    static QStringList texts(const QJsonValue& list) {
        QStringList all;
        for (const auto& text : list.toArray())
            all += text.toString();
        return all;
    }

private:
    QJsonObject facts_;
};

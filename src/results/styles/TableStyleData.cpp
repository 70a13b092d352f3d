// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/styles/TableStyleData.h"

#include "app/settings/WholeFile.h"
#include "results/tables/StyleFile.h"

#include <QDebug>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

// The keys of each section, for reading and writing alike.

template <typename Style, typename Each>
void eachGeneral(Style& style, Each each) {
    each("name", style.name);
    each("label", style.label);
    each("decimals", style.decimals);
    each("thousandSep", style.thousandSep);
}

template <typename Style, typename Each>
void eachOfOneVariable(Style& style, Each each) {
    each("showPercent", style.showPercent);
    each("showCumulPercent", style.showCumulPercent);
    each("showTotal", style.showTotal);
    each("showNa", style.showNa);
    each("showMv", style.showMv);
    each("rowsOrder", style.rowsOrder);
}

template <typename Style, typename Each>
void eachOfSeveralVariables(Style& style, Each each) {
    each("showNa", style.showNaMulti);
    each("showMv", style.showMvMulti);
    each("threeVarLayout", style.threeVarLayout);
}

class Reader {
public:
    Reader(const QJsonObject& file, const char* section)
        : section_(file.value(QLatin1String(section)).toObject()) {}

    void operator()(const char* key, QString& text) const {
        text = key == QByteArrayView("thousandSep") ? stylevalues::separator(value(key), text)
                                                    : value(key).toString(text);
    }
    void operator()(const char* key, bool& flag) const { flag = value(key).toBool(flag); }
    void operator()(const char* key, int& decimals) const {
        decimals = stylevalues::decimals(value(key), decimals);
    }

private:
    QJsonValue value(const char* key) const { return section_.value(QLatin1String(key)); }

    QJsonObject section_;
};

/// Leaves the other keys of the section as they are.
template <typename Style, typename Section>
void write(QJsonObject& file, const char* name, const Style& style, Section eachOfSection) {
    QJsonObject section = file.value(QLatin1String(name)).toObject();
    eachOfSection(style, [&section](const char* key, const auto& value) {
        section.insert(QLatin1String(key), value);
    });
    file.insert(QLatin1String(name), section);
}

bool writeWhole(const QString& path, const QByteArray& text) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return false; // a file would take the place of a device
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && writeThrough(file, text) && file.commit();
}

} // namespace

bool TableStyleData::load(const QString& path) {
    *this = {};
    const StyleFile style = StyleFile::read(path);
    if (style.state == StyleFile::State::NotOpened)
        qWarning() << "TableStyleData: cannot open" << path;
    else if (style.state == StyleFile::State::NotParsed)
        qWarning() << "TableStyleData: JSON parse error:" << style.fault;
    file = style.object;
    eachGeneral(*this, Reader(file, "general"));
    eachOfOneVariable(*this, Reader(file, "frequency1Var"));
    eachOfSeveralVariables(*this, Reader(file, "frequencyMultiVar"));
    return style.state == StyleFile::State::Read;
}

bool TableStyleData::save(const QString& path) const {
    QJsonObject whole = file;
    whole.insert(QLatin1String("version"), QStringLiteral("1.0"));
    const auto general = [](const auto& style, auto each) { eachGeneral(style, each); };
    const auto one = [](const auto& style, auto each) { eachOfOneVariable(style, each); };
    const auto several = [](const auto& style, auto each) { eachOfSeveralVariables(style, each); };
    write(whole, "general", *this, general);
    write(whole, "frequency1Var", *this, one);
    write(whole, "frequencyMultiVar", *this, several);
    const bool written = writeWhole(path, QJsonDocument(whole).toJson(QJsonDocument::Indented));
    if (!written)
        qWarning() << "TableStyleData: cannot write to" << path;
    return written;
}

bool TableStyleData::isOlderForm() const {
    return !file.isEmpty() && !StyleFile{StyleFile::State::Read, file, {}}.isSectioned();
}

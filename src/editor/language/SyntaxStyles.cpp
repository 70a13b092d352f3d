// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/SyntaxStyles.h"

#include "editor/language/QSyntaxStyle.h"

#include <QCoreApplication>
#include <QFile>
#include <QPalette>
#include <QWidget>

#include <memory>
#include <vector>

namespace {

const QStringList& styleFiles() {
    static const QStringList files{
        QStringLiteral(":/resources/styles/drakula.xml"),
        QStringLiteral(":/resources/styles/visualstudio.xml"),
        QStringLiteral(":/resources/styles/VSCodeDarkPlus_BlueKw.xml"),
        QStringLiteral(":/resources/styles/VSCodeDarkPlus_PurpleKw.xml"),
        QStringLiteral(":/resources/styles/qdarksky.xml"),
        QStringLiteral(":/resources/styles/SublimeMaterialLight.xml"),
        QStringLiteral(":/resources/styles/SublimeMaterial.xml"),
    };
    return files;
}

/// The list with what it owns.
struct LoadedStyles {
    LoadedStyles() : list(readSyntaxStyles(styleFiles())) {
        for (qsizetype i = 1; i < list.size(); ++i)
            owned.emplace_back(list[i].second);
    }
    SyntaxStyleList list;
    std::vector<std::unique_ptr<QSyntaxStyle>> owned;
};

void setColor(QPalette& palette, QPalette::ColorRole role, const QBrush& brush) {
    if (brush != Qt::NoBrush)
        palette.setColor(role, brush.color());
}

} // namespace

SyntaxStyleList readSyntaxStyles(const QStringList& files) {
    SyntaxStyleList list{{QStringLiteral("Default"), QSyntaxStyle::defaultStyle()}};
    for (const QString& path : files) {
        QFile file(path);
        auto style = std::make_unique<QSyntaxStyle>();
        if (file.open(QIODevice::ReadOnly) && style->load(QString::fromUtf8(file.readAll()))) {
            const QString name = style->name();
            list.append({name, style.release()});
        }
    }
    return list;
}

const SyntaxStyleList& syntaxStyles() {
    static const LoadedStyles styles;
    return styles.list;
}

QSyntaxStyle* syntaxStyle(int index) {
    const SyntaxStyleList& styles = syntaxStyles();
    return index >= 0 && index < styles.size() ? styles[index].second
                                               : QSyntaxStyle::defaultStyle();
}

void applyStyleColors(QWidget& widget, const QSyntaxStyle& style) {
    const QTextCharFormat text = style.getFormat(QStringLiteral("Text"));
    const QTextCharFormat selection = style.getFormat(QStringLiteral("Selection"));
    QPalette palette = widget.palette();
    setColor(palette, QPalette::Text, text.foreground());
    setColor(palette, QPalette::Base, text.background());
    setColor(palette, QPalette::Highlight, selection.background());
    setColor(palette, QPalette::HighlightedText, text.foreground());
    widget.setPalette(palette);
}

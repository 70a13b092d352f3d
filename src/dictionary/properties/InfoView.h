// SPDX-License-Identifier: GPL-3.0-or-later
// A page of the quick view: sections below bold captions, all of it for reading.
// Texts come from dictionaries: they are shown as they are, never as mark-up.
#pragma once

#include "dictionary/properties/EntityInfo.h"

#include <QHash>
#include <QScrollArea>

class QFormLayout;
class QLabel;
class QPlainTextEdit;
class QVBoxLayout;

class InfoView : public QScrollArea {
    Q_OBJECT

protected:
    explicit InfoView(QWidget* parent = nullptr);

    QLabel* addSection(const QString& objectName);         ///< its caption, to be given a text
    void setSectionVisible(QLabel* caption, bool visible); ///< its caption and line
    QFormLayout* addLines();
    void addContent(QWidget* content, int stretch);
    QPlainTextEdit* addDocumentation();
    void addRoom(); ///< at the end, where no content takes what is left
    /// In place of what the form held.
    static void setLines(QFormLayout* form, const QList<InfoLine>& lines);

private:
    QVBoxLayout* layout_;
    QHash<QLabel*, QFrame*> rules_; ///< below the captions
};

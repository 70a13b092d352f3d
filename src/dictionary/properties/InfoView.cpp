// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/InfoView.h"

#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

constexpr int longCaption = 28; ///< characters; those have a row of their own

QLabel* makeLabel(const QString& text, bool bold) {
    auto* label = new QLabel;
    // Before the text, which would else be looked at for mark-up.
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    // A short caption keeps its line, so that its column is as wide as it.
    label->setWordWrap(!bold || text.size() > longCaption);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QFont font = label->font();
    font.setBold(bold);
    label->setFont(font);
    return label;
}

} // namespace

InfoView::InfoView(QWidget* parent) : QScrollArea(parent) {
    auto* page = new QWidget;
    layout_ = new QVBoxLayout(page);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(page);
}

QLabel* InfoView::addSection(const QString& objectName) {
    auto* caption = new QLabel;
    caption->setObjectName(objectName);
    QFont font = caption->font();
    font.setBold(true);
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * 1.1);
    caption->setFont(font);
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    layout_->addWidget(caption);
    layout_->addWidget(line);
    rules_.insert(caption, line);
    return caption;
}

void InfoView::setSectionVisible(QLabel* caption, bool visible) {
    caption->setVisible(visible);
    rules_.value(caption)->setVisible(visible);
}

QFormLayout* InfoView::addLines() {
    auto* form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setLabelAlignment(Qt::AlignLeft);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    layout_->addLayout(form);
    layout_->addSpacing(layout_->spacing());
    return form;
}

void InfoView::addContent(QWidget* content, int stretch) {
    // As high as there is room, not as high as it would like: the page scrolls only where even the
    // least does not fit.
    content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    layout_->addWidget(content, stretch);
}

QPlainTextEdit* InfoView::addDocumentation() {
    auto* text = new QPlainTextEdit;
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setMinimumHeight(4 * text->fontMetrics().lineSpacing());
    addContent(text, 1);
    return text;
}

void InfoView::addRoom() {
    layout_->addStretch();
}

void InfoView::setLines(QFormLayout* form, const QList<InfoLine>& lines) {
    while (form->rowCount() > 0)
        form->removeRow(0);
    for (const InfoLine& line : lines) {
        if (line.caption.isEmpty())
            form->addRow(makeLabel(line.text, false));
        else if (line.text.isEmpty())
            form->addRow(makeLabel(line.caption, true));
        else if (line.caption.size() <= longCaption)
            form->addRow(makeLabel(line.caption, true), makeLabel(line.text, false));
        else {
            form->addRow(makeLabel(line.caption, true));
            form->addRow(makeLabel(line.text, false));
        }
    }
}

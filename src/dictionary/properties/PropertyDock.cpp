// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/PropertyDock.h"

#include "dictionary/properties/DocumentationEdit.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

PropertyDock::PropertyDock(const char* title, QWidget* parent)
    : ClosableQDockedWidget(parent), title_(title) {
    auto* content = new QWidget;
    outer_ = new QVBoxLayout(content);
    tabs_ = new QTabWidget;
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->setUsesScrollButtons(true);
    tabs_->setElideMode(Qt::ElideNone);
    outer_->addWidget(tabs_, 1);
    setWidget(content);
}

QVBoxLayout* PropertyDock::addPage(const char* title) {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(page);
    // The page takes the tab's ground, as the styles draw it.
    page->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);
    tabs_->addTab(scroll, {});
    pageTitles_.append(title);
    return layout;
}

DocumentationEdit* PropertyDock::addDocumentationPage(const char* title,
                                                      const QString& objectName) {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    auto* edit = new DocumentationEdit;
    edit->setObjectName(objectName);
    layout->addWidget(edit);
    tabs_->addTab(page, {});
    pageTitles_.append(title);
    captions_.append({edit, title, nullptr});
    return edit;
}

QFormLayout* PropertyDock::makeForm() const {
    auto* form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignLeft);
    form->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    return form;
}

QGroupBox* PropertyDock::makeGroup(const char* title, QLayout* layout) {
    auto* group = new QGroupBox;
    group->setLayout(layout);
    captions_.append({group, title, nullptr});
    return group;
}

void PropertyDock::addRow(QFormLayout* form, const char* caption, QWidget* field,
                          const char* toolTip) {
    auto* label = new QLabel;
    label->setBuddy(field);
    form->addRow(label, field);
    captions_.append({label, caption, nullptr});
    if (toolTip != nullptr)
        captions_.append({field, nullptr, toolTip});
}

void PropertyDock::caption(QAbstractButton* button, const char* text, const char* toolTip) {
    captions_.append({button, text, toolTip});
}

void PropertyDock::setSubject(const QString& subject) {
    subject_ = subject;
    // The mark of a changed dictionary stands at the end; a name cannot bring its own.
    QString title = translated(title_);
    if (!subject.isEmpty())
        title += tr(" - %1").arg(
            QString(subject).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
    setWindowTitle(title + QLatin1String("[*]"));
}

/// In the words of the class of the dock, which is another one than this.
QString PropertyDock::translated(const char* source) const {
    return QCoreApplication::translate(metaObject()->className(), source);
}

void PropertyDock::retranslate(const Caption& caption) const {
    if (caption.toolTip != nullptr)
        caption.widget->setToolTip(translated(caption.toolTip));
    if (caption.text == nullptr)
        return;
    const QString text = translated(caption.text);
    if (auto* label = qobject_cast<QLabel*>(caption.widget))
        label->setText(text);
    else if (auto* button = qobject_cast<QAbstractButton*>(caption.widget))
        button->setText(text);
    else if (auto* group = qobject_cast<QGroupBox*>(caption.widget))
        group->setTitle(text);
    else
        caption.widget->setAccessibleName(text);
}

void PropertyDock::retranslate() {
    for (qsizetype i = 0; i < pageTitles_.size(); ++i)
        tabs_->setTabText(static_cast<int>(i), translated(pageTitles_[i]));
    for (const Caption& caption : captions_)
        retranslate(caption);
    setSubject(subject_);
}

void PropertyDock::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    ClosableQDockedWidget::changeEvent(event);
}

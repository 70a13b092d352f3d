// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StartPage.h"

#include "app/widgets/ReadOnlyTable.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

constexpr int recentShown = 8;
constexpr int entityColumns = 4;

QLabel* makeLabel(const QString& objectName, double scale = 1.0) {
    auto* label = new QLabel;
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(scale > 1.0);
    label->setFont(font);
    return label;
}

/// Centred, and no wider than a line that reads well.
QWidget* column(QWidget* content, int characters) {
    auto* frame = new QWidget;
    auto* row = new QHBoxLayout(frame);
    content->setMaximumWidth(characters * content->fontMetrics().averageCharWidth());
    row->addStretch(1);
    row->addWidget(content, 20);
    row->addStretch(1);
    return frame;
}

QStandardItem* cell(const QString& text, Qt::Alignment alignment = Qt::AlignLeft) {
    auto* item = new QStandardItem(text);
    item->setTextAlignment(alignment | Qt::AlignVCenter);
    return item;
}

QList<QStandardItem*> rowOf(const TKpEntity& entity) {
    const QString indent(2 * (entity.level - 1), QChar::Nbsp);
    return {cell(indent + entity.name), cell(entity.label),
            cell(entity.isFileMissing() ? QString() : QLocale().toString(entity.instanceCount),
                 Qt::AlignRight),
            cell(QLocale().toString(entity.variables.size()), Qt::AlignRight)};
}

} // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent), model_(new QStandardItemModel(0, entityColumns, this)) {
    setObjectName(QStringLiteral("startPage"));
    auto* layout = new QVBoxLayout(this);
    begin_ = column(makeBegin(), 70);
    overview_ = column(makeOverview(), 90);
    layout->addWidget(begin_);
    layout->addWidget(overview_);
    overview_->hide();
    retranslate();
}

QWidget* StartPage::makeBegin() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    auto* mark = new QLabel;
    mark->setPixmap(QIcon(QStringLiteral(":/icons/res/icons/190px_KelProcessIcon.png"))
                        .pixmap(6 * fontMetrics().height()));
    greeting_ = makeLabel(QStringLiteral("greeting"), 1.6);
    hint_ = makeLabel(QStringLiteral("hint"));
    open_ = new QPushButton(QIcon(QStringLiteral(":/icons/res/icons/48px-Dictionary-open.png")),
                            QString());
    open_->setObjectName(QStringLiteral("openDictionary"));
    open_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(open_, &QPushButton::clicked, this, &StartPage::openRequested);
    recentHeading_ = makeLabel(QStringLiteral("recentHeading"), 1.1);
    recentList_ = new QVBoxLayout;
    recentList_->setSpacing(0);
    const int gap = fontMetrics().height();
    layout->addStretch(1);
    layout->addWidget(mark);
    layout->addWidget(greeting_);
    layout->addWidget(hint_);
    layout->addSpacing(gap);
    layout->addWidget(open_);
    layout->addSpacing(gap);
    layout->addWidget(recentHeading_);
    layout->addLayout(recentList_);
    layout->addStretch(2);
    return page;
}

QWidget* StartPage::makeOverview() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    title_ = makeLabel(QStringLiteral("overviewTitle"), 1.4);
    path_ = makeLabel(QStringLiteral("overviewPath"));
    path_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    advice_ = makeLabel(QStringLiteral("overviewAdvice"));
    entities_ = new ReadOnlyTable(model_, QStringLiteral("overviewEntities"));
    entities_->setFocusPolicy(Qt::ClickFocus);
    entities_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    entities_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    entities_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // labels give way
    layout->addWidget(title_);
    layout->addWidget(path_);
    layout->addSpacing(fontMetrics().height());
    layout->addWidget(entities_, 1000);
    layout->addWidget(advice_);
    layout->addStretch(1);
    return page;
}

QPushButton* StartPage::makeRecent(const QString& path) {
    const QFileInfo file(path);
    auto* button = new QPushButton(
        file.completeBaseName().replace('&', QLatin1String("&&")) + QStringLiteral("  –  ") +
        QDir::toNativeSeparators(file.path()).replace('&', QLatin1String("&&")));
    button->setFlat(true);
    button->setStyleSheet(QStringLiteral("QPushButton { text-align: left; padding: 4px; }"));
    button->setCursor(Qt::PointingHandCursor);
    button->setToolTip(QDir::toNativeSeparators(path));
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // long paths are cut
    connect(button, &QPushButton::clicked, this, [this, path] { emit recentRequested(path); });
    return button;
}

void StartPage::showRecent(const QStringList& dictionaries) {
    recent_ = dictionaries.mid(0, recentShown);
    while (QLayoutItem* item = recentList_->takeAt(0)) {
        item->widget()->deleteLater();
        delete item;
    }
    for (const QString& path : recent_)
        recentList_->addWidget(makeRecent(path));
    recentHeading_->setVisible(!recent_.isEmpty());
    overview_->hide();
    begin_->show();
}

void StartPage::showDictionary(const QString& title, const QString& path, TKpEntity& root) {
    title_->setText(title);
    path_->setText(QDir::toNativeSeparators(path));
    model_->removeRows(0, model_->rowCount());
    for (const TKpEntity* entity : DictionaryUtil().entities(&root))
        model_->appendRow(rowOf(*entity));
    entities_->setMaximumHeight(entities_->horizontalHeader()->sizeHint().height() +
                                model_->rowCount() *
                                    entities_->verticalHeader()->defaultSectionSize() +
                                2 * entities_->frameWidth());
    begin_->hide();
    overview_->show();
}

/// Where there is room for the figures only, the labels go first.
void StartPage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    entities_->setColumnHidden(1, width() < 56 * fontMetrics().averageCharWidth());
}

void StartPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void StartPage::retranslate() {
    greeting_->setText(QStringLiteral("Kelvora X"));
    hint_->setText(tr("Census and survey microdata: browse a database, make tables, charts and "
                      "maps."));
    open_->setText(tr("Open Dictionary..."));
    open_->setToolTip(tr("Choose a dictionary file") + QStringLiteral(" (") +
                      QKeySequence(QKeySequence::Open).toString(QKeySequence::NativeText) +
                      QLatin1Char(')'));
    recentHeading_->setText(tr("Recent dictionaries"));
    advice_->setText(tr("Select an entity in the tree to see its variables."));
    entities_->setAccessibleName(tr("Entities of the dictionary"));
    model_->setHorizontalHeaderLabels({tr("Entity"), tr("Label"), tr("Records"), tr("Variables")});
    for (int number = 2; number < entityColumns; ++number)
        model_->horizontalHeaderItem(number)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (int text = 0; text < 2; ++text)
        model_->horizontalHeaderItem(text)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

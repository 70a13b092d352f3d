// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/styles/StylePages.h"

#include "results/tables/CellFormat.h"
#include "results/tables/StyleFile.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

QCheckBox* addCheck(QBoxLayout& layout, const char* name, const QString& text, bool checked) {
    auto* check = new QCheckBox(text);
    check->setObjectName(QLatin1String(name));
    check->setChecked(checked);
    layout.addWidget(check);
    return check;
}

QComboBox* makeCombo(const char* name, std::initializer_list<std::pair<QString, QString>> entries) {
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(name));
    for (const auto& [text, value] : entries)
        combo->addItem(text, value);
    return combo;
}

/// A value that a file has and no entry offers gets one, so that saving keeps it.
void select(QComboBox& combo, const QString& value) {
    if (combo.findData(value) < 0)
        combo.addItem(value, value);
    combo.setCurrentIndex(combo.findData(value));
}

/// With a label that leads to the control; the rest of the page stays empty.
void addRow(QBoxLayout& layout, const QString& text, QWidget* control) {
    auto* label = new QLabel(text);
    label->setBuddy(control);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(control);
    row->addStretch();
    layout.addLayout(row);
    layout.addStretch();
}

/// A line holds no line feed, so that only what was typed counts.
void readTyped(const QLineEdit& line, QString& text) {
    if (line.isModified())
        text = line.text();
}

} // namespace

GeneralStylePage::GeneralStylePage(const TableStyleData& style, QWidget* parent)
    : QWidget(parent), name_(new QLineEdit(style.name)), label_(new QLineEdit(style.label)),
      decimals_(new QSpinBox),
      separator_(makeCombo("cmbThousandSep", {{tr("Comma  ( , )"), QStringLiteral(",")},
                                              {tr("Period ( . )"), QStringLiteral(".")},
                                              {tr("Space  (   )"), QStringLiteral(" ")},
                                              {tr("None"), QString()}})),
      sample_(new QLabel) {
    auto* form = new QFormLayout(this);
    addNames(*form);
    addFigures(*form, style);
    showSample();
}

void GeneralStylePage::addNames(QFormLayout& form) {
    name_->setObjectName(QStringLiteral("leGenName"));
    name_->setPlaceholderText(tr("e.g. Census2024"));
    label_->setObjectName(QStringLiteral("leGenLabel"));
    label_->setPlaceholderText(tr("Optional description"));
    form.addRow(tr("Name:"), name_);
    form.addRow(tr("Label:"), label_);
}

void GeneralStylePage::addFigures(QFormLayout& form, const TableStyleData& style) {
    decimals_->setObjectName(QStringLiteral("spDecimals"));
    decimals_->setRange(0, stylevalues::mostDecimals);
    decimals_->setSuffix(tr(" decimal(s)"));
    decimals_->setValue(style.decimals);
    select(*separator_, style.thousandSep);
    sample_->setObjectName(QStringLiteral("labelSample"));
    sample_->setTextFormat(Qt::PlainText);
    sample_->setAlignment(Qt::AlignRight);
    sample_->setFrameShape(QFrame::StyledPanel);
    sample_->setMargin(fontMetrics().height() / 2);
    sample_->setAccessibleName(tr("Numbers in this style"));
    form.addRow(tr("Decimals:"), decimals_);
    form.addRow(tr("Thousand separator:"), separator_);
    form.addRow(tr("Sample:"), sample_);
    connect(decimals_, &QSpinBox::valueChanged, this, &GeneralStylePage::showSample);
    connect(separator_, &QComboBox::currentIndexChanged, this, &GeneralStylePage::showSample);
}

void GeneralStylePage::showSample() {
    CellFormat format;
    format.decimals = decimals_->value();
    format.separator = separator_->currentData().toString();
    QStringList lines;
    for (const char* figure : {"1234567", "12345.678901234567", "0.5"})
        lines += format.format(figure).display;
    sample_->setText(lines.join(QLatin1Char('\n')));
}

void GeneralStylePage::writeTo(TableStyleData& style) const {
    readTyped(*name_, style.name);
    readTyped(*label_, style.label);
    style.decimals = decimals_->value();
    style.thousandSep = separator_->currentData().toString();
}

OneVariableStylePage::OneVariableStylePage(const TableStyleData& style, QWidget* parent)
    : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    percent_ = addCheck(*column, "chkShowPct", tr("Show percentage column"), style.showPercent);
    cumulative_ = addCheck(*column, "chkShowCumul", tr("Show cumulative percentage column"),
                           style.showCumulPercent);
    total_ = addCheck(*column, "chkShowTotal", tr("Show Total row"), style.showTotal);
    notApplicable_ = addCheck(*column, "chkShowNa", tr("Show N/A row"), style.showNa);
    missing_ = addCheck(*column, "chkShowMv", tr("Show MV row"), style.showMv);
    order_ = makeCombo("cmbFreqOrder", {{tr("Default (engine order)"), QStringLiteral("default")},
                                        {tr("Ascending"), QStringLiteral("ascending")},
                                        {tr("Descending"), QStringLiteral("descending")}});
    select(*order_, style.rowsOrder);
    addRow(*column, tr("Row order:"), order_);
}

void OneVariableStylePage::writeTo(TableStyleData& style) const {
    style.showPercent = percent_->isChecked();
    style.showCumulPercent = cumulative_->isChecked();
    style.showTotal = total_->isChecked();
    style.showNa = notApplicable_->isChecked();
    style.showMv = missing_->isChecked();
    style.rowsOrder = order_->currentData().toString();
}

SeveralVariablesStylePage::SeveralVariablesStylePage(const TableStyleData& style, QWidget* parent)
    : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    notApplicable_ =
        addCheck(*column, "chkShowNaMulti", tr("Show N/A rows/columns"), style.showNaMulti);
    missing_ = addCheck(*column, "chkShowMvMulti", tr("Show MV rows/columns"), style.showMvMulti);
    layout_ = makeCombo("cmbFreqMulti3VarLayout", {{tr("Default"), QStringLiteral("default")},
                                                   {tr("3-variable matrix by first variable"),
                                                    QStringLiteral("matrixByFirstVar")}});
    select(*layout_, style.threeVarLayout);
    addRow(*column, tr("3-variable layout:"), layout_);
}

void SeveralVariablesStylePage::writeTo(TableStyleData& style) const {
    style.showNaMulti = notApplicable_->isChecked();
    style.showMvMulti = missing_->isChecked();
    style.threeVarLayout = layout_->currentData().toString();
}

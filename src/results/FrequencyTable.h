// SPDX-License-Identifier: GPL-3.0-or-later
// A frequency of one variable as a plain value: rows, shares, and what was counted.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class TKelOutput;

struct FrequencyRow {
    enum class Kind { Category, Total, Missing, NotApplicable };

    Kind kind = Kind::Category;
    QString code;  ///< empty for total, missing and not applicable
    QString label; ///< empty where the code has none, and for the three others
    QString count; ///< in full precision; empty where the cell is hidden
    /// Share of the valid total, for categories and the total.
    std::optional<double> percent;
};

/// Copied from an output: outlives the session that made it.
class FrequencyTable {
    Q_DECLARE_TR_FUNCTIONS(FrequencyTable)

public:
    /// Nothing where the output is no frequency of one variable.
    /// areas: what the run was limited to.
    static std::optional<FrequencyTable> fromOutput(TKelOutput& output, const QString& areas = {});

    const QList<FrequencyRow>& rows() const { return rows_; }
    QString variable() const { return variable_; } ///< ENTITY.VARIABLE
    QString title() const;                         ///< the program's, or the variable and its label
    QString unit() const { return unit_; }         ///< the counted entity
    QString weight() const { return weight_; }     ///< empty for a plain count
    /// What was counted, how it was weighted, what was left out: a line for each.
    QString note() const;
    QStringList headings() const; ///< of code, label, count and percent
    QString labelOf(const FrequencyRow& row) const;
    /// The count as shown, in the form of the interface language: whole numbers, or the table's
    /// decimals in all rows where a weight makes fractions. The value itself is not rounded.
    QString shownCount(const FrequencyRow& row) const;
    static QString shownPercent(const FrequencyRow& row);
    /// Heading and rows, separated by tabs, in full precision.
    QString toText() const;

private:
    QList<FrequencyRow> rows_;
    QString variable_, variableLabel_, programTitle_, unit_, weight_, filter_, areas_;
    std::int64_t suppressed_ = 0;
    int decimals_ = 2;
    bool fractions_ = false;
};

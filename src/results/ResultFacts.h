// SPDX-License-Identifier: GPL-3.0-or-later
// What a result table says of itself: the form above the grid and the head of the report show the
// same facts.
#pragma once

#include "results/tables/TableMetadata.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

struct ResultFact {
    QString label; ///< empty in a row that goes on with the one before
    QString value;
};

struct ReportLine {
    QString text;
    bool heading = false; ///< names what the lines below it say
};

class ResultFacts {
    Q_DECLARE_TR_FUNCTIONS(ResultFacts)

public:
    explicit ResultFacts(TableMetadata metadata) : metadata_(std::move(metadata)) {}

    QList<ResultFact> form() const;
    QList<ReportLine> report() const;
    /// Rows of a whole report with that many rows of headers and of cells; some stay empty.
    int reportRows(int headerRows, int cellRows) const;

private:
    QList<ResultFact> optional() const; ///< tally, weight, filters, sort
    QString sortLabel() const;
    QString entity() const;
    qsizetype variables() const { return metadata_.variableLabels.size(); }

    TableMetadata metadata_;
};

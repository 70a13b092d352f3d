// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultFacts.h"

namespace {

void addIfTold(QList<ResultFact>& facts, const QString& label,
               const std::optional<QString>& value) {
    if (value)
        facts += {label, *value};
}

} // namespace

QString ResultFacts::sortLabel() const {
    const QString order = metadata_.sort->ascending ? tr("Ascending") : tr("Descending");
    return tr("Sorted") + " (" + order + ") " + tr("by");
}

QString ResultFacts::entity() const {
    return metadata_.entityLabel.isEmpty() ? metadata_.entityName : metadata_.entityLabel;
}

QList<ResultFact> ResultFacts::optional() const {
    QList<ResultFact> facts;
    addIfTold(facts, tr("Tally"), metadata_.tally);
    addIfTold(facts, tr("Weight"), metadata_.weight);
    addIfTold(facts, tr("Filter"), metadata_.filter);
    addIfTold(facts, tr("Universal Filter"), metadata_.universalFilter);
    if (metadata_.sort)
        facts += {sortLabel(), metadata_.sort->variable};
    return facts;
}

QList<ResultFact> ResultFacts::form() const {
    QList<ResultFact> facts{{tr("Title"), metadata_.title}, {tr("Database"), metadata_.database}};
    facts += optional();
    if (metadata_.kind == tablekind::areaList)
        return facts += {{tr("Entity"), entity()}, {tr("Key"), metadata_.key}};
    for (qsizetype i = 0; i < variables(); ++i) {
        const QString word = i == 0 ? tr("of") : tr("by");
        facts += {i == 0 ? metadata_.kindName : QString(),
                  "   " + word + ' ' + metadata_.variableTitle(i)};
    }
    return facts;
}

QList<ReportLine> ResultFacts::report() const {
    QList<ResultFact> facts{{tr("Title"), metadata_.title},
                            {tr("Database"), metadata_.database},
                            {tr("Geographic Area"), metadata_.geographicArea()}};
    facts += optional();
    if (metadata_.kind == tablekind::areaList)
        facts += {tr("Entity"), entity()};
    QList<ReportLine> lines;
    for (const ResultFact& fact : facts)
        lines << ReportLine{fact.label, true} << ReportLine{"  " + fact.value, false};
    if (metadata_.kind == tablekind::areaList || metadata_.kind == tablekind::tablist)
        return lines;
    lines += {metadata_.isCrosstab() ? tr("Crosstab") : metadata_.kindName, true};
    for (qsizetype i = 0; i < variables(); ++i)
        lines += {"  " + (i == 0 ? tr("of") : tr("by")) + ' ' + metadata_.variableTitle(i), false};
    return lines;
}

int ResultFacts::reportRows(int headerRows, int cellRows) const {
    const int kindRows =
        metadata_.kind == tablekind::areaList ? 4 : 2 + static_cast<int>(variables());
    return 8 + 2 * static_cast<int>(optional().size()) + kindRows + 2 * headerRows + cellRows;
}

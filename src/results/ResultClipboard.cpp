// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultClipboard.h"

#include "results/ResultModel.h"
#include "results/tables/TableBase.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>

namespace {

/// Collects rows of cells in both forms.
class CopiedCells {
public:
    explicit CopiedCells(qint64 cells) : withHtml_(cells <= ResultClipboard::mostHtmlCells) {
        text_.reserve(std::min<qint64>(cells * 8, 100'000'000));
    }

    bool withHtml() const { return withHtml_; }
    void add(const QString& raw, CellKind kind); ///< the kind counts with HTML only
    void endRow();
    void dropLastLineFeed() { text_.chop(1); }
    void put() const;

private:
    QString element(const QString& raw, CellKind kind) const;

    bool withHtml_;
    bool rowBegun_ = false;
    QString text_;
    QString html_;
};

void CopiedCells::add(const QString& raw, CellKind kind) {
    if (rowBegun_)
        text_ += QLatin1Char('\t');
    // A tab or a line feed would move the cells behind it.
    for (const QChar character : raw)
        text_ += character == u'\t' || character == u'\n' || character == u'\r' ? u' ' : character;
    if (withHtml_)
        html_ += (rowBegun_ ? QString() : QStringLiteral("<tr>")) + element(raw, kind);
    rowBegun_ = true;
}

void CopiedCells::endRow() {
    text_ += QLatin1Char('\n');
    if (withHtml_)
        html_ += rowBegun_ ? QStringLiteral("</tr>\n") : QStringLiteral("<tr></tr>\n");
    rowBegun_ = false;
}

/// Two families of spreadsheets have words of their own for the type of a cell.
QString CopiedCells::element(const QString& raw, CellKind kind) const {
    const QString text = raw.toHtmlEscaped();
    if (kind == CellKind::Header)
        return "<th>" + text + "</th>";
    bool isNumber = false;
    raw.toDouble(&isNumber);
    if (kind == CellKind::Number && isNumber)
        return QStringLiteral("<td sdval=\"%1\" x:num=\"%1\">%1</td>").arg(text);
    if (raw.isEmpty())
        return QStringLiteral("<td></td>");
    return "<td sdnum=\"1033;0;@\" style=\"mso-number-format:'\\@'\">" + text + "</td>";
}

void CopiedCells::put() const {
    auto* data = new QMimeData;
    data->setText(text_);
    if (withHtml_)
        data->setHtml("<html xmlns:x=\"urn:schemas-microsoft-com:office:excel\"><head><meta "
                      "charset=\"utf-8\"></head><body><table>\n" +
                      html_ + "</table></body></html>");
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace

bool ResultClipboard::copy(const QAbstractItemModel& model, const QRect& cells) {
    const qint64 count = qint64(cells.width()) * cells.height();
    if (count <= 0 || count > mostCells)
        return false;
    CopiedCells copied(count);
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column) {
            const QModelIndex index = model.index(row, column);
            const QVariant kind = copied.withHtml() ? index.data(resultrole::kind) : QVariant();
            copied.add(index.data(resultrole::raw).toString(), static_cast<CellKind>(kind.toInt()));
        }
        copied.endRow();
    }
    copied.put();
    return true;
}

bool ResultClipboard::copy(const TableBase& table) {
    const ResultRows& rows = table.cells();
    const QList<int> alignments = table.columnAlignments();
    const QStringList headers = table.columnHeaders();
    const qint64 count = (rows.size() + 1) * std::max(headers.size(), rows.width());
    if (count > mostCells)
        return false;
    CopiedCells copied(count);
    for (const QString& header : headers)
        copied.add(header, CellKind::Header);
    copied.endRow();
    for (qsizetype row = 0; row < rows.size(); ++row) {
        for (qsizetype column = 0; column < rows.columns(row); ++column)
            copied.add(rows.raw(row, column),
                       alignments.value(column, 2) == 2 ? CellKind::Number : CellKind::Text);
        copied.endRow();
    }
    copied.dropLastLineFeed();
    copied.put();
    return true;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/VariablesDictionaryProxyModel.h"

#include "dictionary/views/VariableDiccionaryModel.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <optional>

namespace {

constexpr int columns = VariableDiccionaryModel::ColumnCount;

QString cellOf(const QAbstractItemModel& model, int row, int column) {
    return model.index(row, column).data().toString();
}

bool isPlain(const QString& text) {
    static const QString meaningful = QStringLiteral("\\^$.|?*+()[]{}");
    return std::none_of(text.begin(), text.end(),
                        [](QChar c) { return meaningful.contains(c) || c == u'\n'; });
}

} // namespace

struct VariablesDictionaryProxyModel::RowText {
    bool known = false;
    QString joined; ///< the cells, between line feeds
    std::array<QString, columns> cells;
};

/// Numbers and texts are two worlds: comparing a number with a text by their characters, and two
/// numbers by their values, would allow 10 > 9, "9A" > 10 and "9A" < 9 at once, and no order of
/// such rows would be right. Hence blank cells come first, then numbers by value, then texts.
struct VariablesDictionaryProxyModel::SortKey {
    enum Kind { Blank, Number, Text };
    Kind kind = Blank;
    qlonglong number = 0;
    std::optional<QCollatorSortKey> text;

    bool operator<(const SortKey& other) const {
        if (kind != other.kind)
            return kind < other.kind;
        return kind == Number ? number < other.number : kind == Text && *text < *other.text;
    }
};

/// A collator's keys compare as the texts do in the language of the interface, at a fraction of the
/// price.
class VariablesDictionaryProxyModel::SortKeys {
public:
    /// True where the language has changed, whose keys and order are of no use any more.
    bool followLanguage() {
        if (collator_.locale() == QCollator().locale())
            return false;
        collator_ = QCollator();
        clear();
        return true;
    }
    void clear() {
        for (auto& column : keys_)
            column.clear();
    }
    void forget(int row) {
        for (auto& column : keys_)
            if (static_cast<std::size_t>(row) < column.size())
                column[static_cast<std::size_t>(row)].reset();
    }
    const SortKey& at(const QModelIndex& index) {
        auto& column = keys_[static_cast<std::size_t>(index.column())];
        if (column.empty())
            column.resize(static_cast<std::size_t>(index.model()->rowCount()));
        std::optional<SortKey>& key = column[static_cast<std::size_t>(index.row())];
        if (!key)
            key = make(index.data().toString(), index.column());
        return *key;
    }

private:
    SortKey make(const QString& cell, int column) const {
        SortKey key;
        bool isNumber = false;
        key.number = cell.toLongLong(&isNumber);
        if (isNumber) {
            key.kind = SortKey::Number;
        } else if (!cell.isEmpty()) {
            key.kind = SortKey::Text;
            key.text = collator_.sortKey(compared(cell, column));
        }
        return key;
    }

    /// Of an alias only the word at its start counts.
    static QString compared(const QString& cell, int column) {
        static const QRegularExpression word(QStringLiteral("[\\w\\.]*"));
        if (column != VariableDiccionaryModel::AliasColumn)
            return cell;
        return word.match(cell).captured(0);
    }

    QCollator collator_;
    std::array<std::vector<std::optional<SortKey>>, columns> keys_;
};

VariablesDictionaryProxyModel::VariablesDictionaryProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent), keys_(std::make_unique<SortKeys>()) {}

VariablesDictionaryProxyModel::~VariablesDictionaryProxyModel() = default;

void VariablesDictionaryProxyModel::setSourceModel(QAbstractItemModel* model) {
    if (sourceModel() != nullptr)
        sourceModel()->disconnect(this);
    forgetAll();
    // Connected before the base class does, which compares rows as soon as it hears of a change.
    if (model != nullptr) {
        using Proxy = VariablesDictionaryProxyModel;
        connect(model, &QAbstractItemModel::dataChanged, this, &Proxy::changeRows);
        connect(model, &QAbstractItemModel::modelReset, this, &Proxy::forgetAll);
        connect(model, &QAbstractItemModel::layoutChanged, this, &Proxy::forgetAll);
        connect(model, &QAbstractItemModel::rowsInserted, this, &Proxy::forgetAll);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &Proxy::forgetAll);
    }
    QSortFilterProxyModel::setSourceModel(model);
}

void VariablesDictionaryProxyModel::forgetAll() {
    texts_.clear();
    keys_->clear();
}

void VariablesDictionaryProxyModel::changeRows(const QModelIndex& topLeft,
                                               const QModelIndex& bottomRight) {
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        if (static_cast<std::size_t>(row) < texts_.size())
            texts_[static_cast<std::size_t>(row)].known = false;
        keys_->forget(row);
    }
}

void VariablesDictionaryProxyModel::setFilterText(const QString& text) {
    const QString wanted = text.trimmed().toUpper();
    if (wanted == text_)
        return;
    text_ = wanted;
    plain_ = isPlain(text_);
    expression_ = QRegularExpression(text_);
    matchesNothing_ = expression_.isValid() && expression_.match(QString()).hasMatch();
    // Not invalidateFilter(), which tells of each run of rows that goes or comes: with thousands of
    // them the views take seconds.
    invalidate();
}

const VariablesDictionaryProxyModel::RowText&
VariablesDictionaryProxyModel::rowText(int row) const {
    if (texts_.empty())
        texts_.resize(static_cast<std::size_t>(sourceModel()->rowCount()));
    RowText& text = texts_[static_cast<std::size_t>(row)];
    if (text.known)
        return text;
    text.joined.clear();
    for (int column = 0; column < columns; ++column) {
        QString cell = cellOf(*sourceModel(), row, column).toUpper().trimmed();
        text.joined += cell + u'\n';
        text.cells[static_cast<std::size_t>(column)] = std::move(cell);
    }
    text.known = true;
    return text;
}

bool VariablesDictionaryProxyModel::filterAcceptsRow(int row, const QModelIndex&) const {
    if (text_.isEmpty())
        return true;
    const RowText& text = rowText(row);
    if (plain_)
        return text.joined.contains(text_);
    if (!expression_.isValid())
        return false;
    return std::any_of(text.cells.begin(), text.cells.end(), [this](const QString& cell) {
        return cell.isEmpty() ? matchesNothing_ : expression_.match(cell).hasMatch();
    });
}

void VariablesDictionaryProxyModel::sort(int column, Qt::SortOrder order) {
    if (keys_->followLanguage())
        invalidate();
    QSortFilterProxyModel::sort(column, order);
}

bool VariablesDictionaryProxyModel::lessThan(const QModelIndex& left,
                                             const QModelIndex& right) const {
    return keys_->at(left) < keys_->at(right);
}

QMimeData* VariablesDictionaryProxyModel::mimeData(const QModelIndexList& indexes) const {
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(indexes.size()));
    for (const QModelIndex& index : indexes)
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    QModelIndexList shown;
    for (const int row : rows)
        shown.append(mapToSource(index(row, 0)));
    return sourceModel()->mimeData(shown);
}

// SPDX-License-Identifier: Apache-2.0
#include "import/level_writer.h"

#include "import/column_output.h"
#include "storage/column_writer.h"
#include "storage/error.h"
#include "storage/pointer_file.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kelx::tools {

namespace {

using storage::ColumnWriter;
using storage::ValueType;
namespace fs = std::filesystem;
using Key = std::shared_ptr<const storage::Secret>;

/// A column as a whole, for reading in any order.
class LoadedColumn {
public:
    LoadedColumn(const fs::path& file, const Key& key)
        : column_(storage::Column::open(file, key)), info_(column_->info()),
          size_(storage::physicalSize(info_.physical)) {
        bytes_.resize(info_.records * size_);
        storage::ColumnScratch scratch;
        for (std::uint64_t begin = 0; begin < info_.records;) {
            const auto count = static_cast<std::size_t>(
                std::min<std::uint64_t>(storage::recordsPerBlock, info_.records - begin));
            std::memcpy(bytes_.data() + begin * size_, column_->read(begin, count, scratch),
                        count * size_);
            begin += count;
        }
    }

    void copy(std::uint64_t row, ColumnWriter& writer) const {
        if (info_.physical == storage::Physical::Real64) {
            double value = 0;
            std::memcpy(&value, bytes_.data() + row * size_, sizeof value);
            std::isnan(value) ? writer.addBlank() : writer.addReal(value);
            return;
        }
        std::uint64_t code = 0;
        std::memcpy(&code, bytes_.data() + row * size_, size_);
        if (code == storage::blankCode(info_.physical))
            writer.addBlank();
        else if (info_.type == ValueType::String)
            writer.addText(column_->text(code));
        else
            writer.addInteger(
                static_cast<std::int64_t>(static_cast<std::uint64_t>(info_.base) + code));
    }

private:
    std::shared_ptr<const storage::Column> column_;
    storage::ColumnInfo info_;
    std::size_t size_;
    std::vector<std::byte> bytes_;
};

void sortColumn(const fs::path& unsorted, const fs::path& file, const ColumnSummary& summary,
                const LevelScan& scan, const Key& key) {
    {
        const LoadedColumn column(unsorted, key);
        const auto writer = ColumnWriter::create(file, planFor(summary, key));
        for (const std::uint64_t row : scan.order())
            column.copy(row, *writer);
        writer->commit();
    }
    fs::remove(unsorted);
}

struct Target {
    std::size_t column;
    const ColumnSummary* summary;
    fs::path file, written;
    std::unique_ptr<ColumnWriter> writer;
};

std::vector<Target> targetsOf(const LevelScan& scan, const catalog::Entity& entity,
                              const fs::path& folder, const Key& key) {
    std::vector<Target> targets;
    for (std::size_t i = 0; i < scan.columns().size(); ++i) {
        const ColumnSummary& summary = scan.columns()[i];
        if (summary.field->role == FieldRole::ParentKey)
            continue;
        Target target{i, &summary, folder / entity.variables[targets.size()]->fileName, {}, {}};
        target.written = target.file;
        if (!scan.order().empty())
            target.written += ".unsorted";
        target.writer = ColumnWriter::create(target.written, planFor(summary, key));
        targets.push_back(std::move(target));
    }
    return targets;
}

void writePointers(const LevelScan& scan, const fs::path& file) {
    storage::PointerWriter pointers(file);
    for (const std::uint64_t count : scan.childCounts())
        pointers.addParent(count);
    pointers.commit();
}

} // namespace

void writeLevel(const LevelScan& scan, const Codebook& book, const catalog::Entity& entity,
                const fs::path& folder, const Key& key, const BytesRead& onRead) {
    if (!entity.fileName.empty())
        writePointers(scan, folder / entity.fileName);
    std::vector<Target> targets = targetsOf(scan, entity, folder, key);
    Faults faults(true); // all were met in the first reading
    LevelFile level(scan.file(), scan.plan(), book, faults, onRead, scan.separator());
    std::uint64_t row = 0;
    std::uint64_t records = 0;
    auto leftOut = scan.leftOut().begin();
    for (; level.next() && records <= scan.records(); ++row) {
        if (leftOut != scan.leftOut().end() && *leftOut == row) {
            ++leftOut;
            continue;
        }
        ++records;
        for (const Target& target : targets)
            addValue(*target.writer, target.summary->field->type, level.value(target.column));
    }
    if (records != scan.records() || leftOut != scan.leftOut().end())
        throw storage::FileError(scan.file(), "was changed while it was read");
    for (Target& target : targets) {
        target.writer->commit();
        target.writer.reset();
        if (target.written != target.file)
            sortColumn(target.written, target.file, *target.summary, scan, key);
        onRead(0); // the work may be ended between columns
    }
}

} // namespace kelx::tools

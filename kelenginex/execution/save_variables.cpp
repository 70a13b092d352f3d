// SPDX-License-Identifier: Apache-2.0
#include "execution/definitions.h"
#include "execution/saved_column.h"
#include "storage/coding.h"
#include "storage/column_writer.h"
#include "storage/error.h"
#include "storage/raw_column.h"
#include "storage/staged_files.h"
#include "storage/utf8.h"

#include "catalog/names.h"

#include <algorithm>
#include <bit>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace kelx::execution {
namespace {

namespace fs = std::filesystem;
using language::Definition;
using storage::Column;
using storage::ColumnInfo;
using storage::FileError;
using storage::RawType;
using storage::ValueType;

bool isRaw(const fs::path& file) {
    return catalog::sameName(file.extension().string(), ".bin");
}

fs::path descriptionOf(const fs::path& file) {
    return fs::path(file).concat(".desc");
}

std::int64_t lowestOf(const ColumnInfo& info) {
    return storage::decodeValue(info.base, info.minCode);
}
std::int64_t highestOf(const ColumnInfo& info) {
    return storage::decodeValue(info.base, info.maxCode);
}

/// Calls take(values, count) for block after block, telling the progress.
template <class Take>
void forBlocks(const Column& column, Progress& progress, Take take) {
    storage::ColumnScratch scratch;
    const std::uint64_t records = column.info().records;
    for (std::uint64_t begin = 0; begin < records; begin += storage::recordsPerBlock) {
        const auto count = static_cast<std::size_t>(
            std::min<std::uint64_t>(records - begin, storage::recordsPerBlock));
        take(column.read(begin, count, scratch), count);
        progress.checkNow();
    }
}

void addCodes(const Column& column, const void* data, std::size_t count,
              storage::ColumnWriter& writer) {
    const ColumnInfo& info = column.info();
    storage::withCode(info.physical, [&]<class Code>(Code) {
        const auto* codes = static_cast<const Code*>(data);
        for (std::size_t i = 0; i < count; ++i) {
            if (codes[i] == std::numeric_limits<Code>::max())
                writer.addBlank();
            else if (info.type == ValueType::String)
                writer.addText(column.text(codes[i]));
            else
                writer.addInteger(storage::decodeValue(info.base, codes[i]));
        }
    });
}

/// One variable on its way to its file.
class Saving {
public:
    explicit Saving(const Definition& definition)
        : definition_(definition), variable_(*definition.variable), file_(definition.save->file),
          notApplicable_(freeCodeForNa(variable_)),
          column_(withNaAs(notApplicable_, variable_.column())), size_(sizeOf(*column_)) {}

    void write(storage::StagedFiles& files, Progress& progress) {
        const fs::path staged = files.stage(file_);
        try {
            if (isRaw(file_))
                writeRaw(staged, files, progress);
            else
                writeColumn(staged, progress);
        } catch (const FileError& error) {
            tellOfTarget(error, staged);
        }
    }

    /// From now on the variable is that of the file.
    void settle() {
        variable_.fileName = definition_.save->fileName;
        variable_.type = column_->info().type;
        variable_.size = size_;
        variable_.raw = layout_;
        if (notApplicable_)
            variable_.notapp = notApplicable_;
        variable_.closeColumn();
    }

private:
    /// Nobody knows the staged file by its name.
    [[noreturn]] void tellOfTarget(const FileError& error, const fs::path& staged) const {
        const std::string problem = error.what();
        const std::string prefix = staged.string() + ": ";
        if (problem.compare(0, prefix.size(), prefix) == 0)
            throw FileError(file_, problem.substr(prefix.size()));
        throw error;
    }

    static int sizeOf(const Column& column) {
        const ColumnInfo& info = column.info();
        std::size_t size = 1;
        if (info.type == ValueType::Integer)
            size = std::max(std::to_string(lowestOf(info)).size(),
                            std::to_string(highestOf(info)).size());
        else if (info.type == ValueType::Real)
            size = sizeof(double);
        for (std::uint64_t i = 0; i < column.textCount(); ++i)
            size = std::max(size, storage::characterCount(column.text(i)));
        return static_cast<int>(size);
    }

    std::shared_ptr<const storage::Secret> key() const {
        return variable_.entity->dictionary != nullptr ? variable_.entity->dictionary->key
                                                       : nullptr;
    }

    void writeColumn(const fs::path& staged, Progress& progress) const {
        const ColumnInfo& info = column_->info();
        storage::ColumnPlan plan;
        plan.type = info.type;
        plan.decimals = info.decimals;
        plan.key = key();
        if (info.type == ValueType::Integer) {
            plan.lowest = lowestOf(info);
            plan.highest = highestOf(info);
        }
        const auto writer = storage::ColumnWriter::create(staged, plan);
        forBlocks(*column_, progress, [&](const void* data, std::size_t count) {
            if (info.type != ValueType::Real)
                return addCodes(*column_, data, count, *writer);
            for (std::size_t i = 0; i < count; ++i)
                writer->addReal(static_cast<const double*>(data)[i]);
        });
        writer->commit();
    }

    void writeRaw(const fs::path& staged, storage::StagedFiles& files, Progress& progress) {
        if (key() != nullptr)
            throw FileError(file_, "cannot be protected as its database is; save to a .kbf file");
        layout_ = layoutFor();
        files.add(descriptionOf(staged), descriptionOf(file_));
        progress.checkNow();
        storage::writeRawColumn(staged, *column_, *layout_);
        storage::writeRawDescription(staged, *layout_, column_->info().records);
    }

    /// The smallest type that holds the values.
    storage::RawLayout layoutFor() const {
        const ColumnInfo& info = column_->info();
        if (info.type == ValueType::Boolean)
            return {RawType::Bool, 1, 0, info.type};
        if (info.type == ValueType::Real)
            return {RawType::Dbl, 8, 0, info.type};
        if (info.type == ValueType::String)
            return {RawType::Chr, bytesOfTexts(), 0, info.type};
        const std::int64_t lowest = lowestOf(info);
        const std::int64_t highest = highestOf(info);
        if (lowest >= 0 && highest < 255)
            return {RawType::Byte, 1, 0, info.type};
        if (lowest > -32768 && highest <= 32767)
            return {RawType::Int, 2, 0, info.type};
        if (lowest > -2147483648LL && highest <= 2147483647)
            return {RawType::Lng, 4, 0, info.type};
        return {RawType::Dbl, 8, 0, info.type};
    }

    int bytesOfTexts() const {
        std::size_t most = 1;
        for (std::uint64_t i = 0; i < column_->textCount(); ++i)
            most = std::max(most, column_->text(i).size());
        return static_cast<int>(std::min<std::size_t>(most, 1U << 20));
    }

    const Definition& definition_;
    catalog::Variable& variable_;
    fs::path file_;
    std::optional<double> notApplicable_;
    std::shared_ptr<const Column> column_;
    int size_;
    std::optional<storage::RawLayout> layout_;
};

/// What a program must not do is found before anything is written.
void checkFile(const language::SaveClause& save, std::set<fs::path>& taken) {
    if (!taken.insert(save.file.lexically_normal()).second)
        throw FileError(save.file, "cannot be saved to by two variables");
    std::error_code ignored;
    if (fs::is_directory(save.file, ignored))
        throw FileError(save.file, "cannot be saved to: it is a folder");
    if (!save.overwrite && fs::exists(fs::symlink_status(save.file, ignored)))
        throw FileError(save.file, "exists; SAVE replaces it only with OVERWRITE");
}

} // namespace

void saveVariables(const language::BoundProgram& program, Progress& progress) {
    std::set<fs::path> taken;
    std::vector<Saving> savings;
    for (const Definition& definition : program.definitions) {
        if (!definition.save)
            continue;
        checkFile(*definition.save, taken);
        savings.emplace_back(definition);
    }
    storage::StagedFiles files;
    for (Saving& saving : savings)
        saving.write(files, progress);
    files.publish();
    for (Saving& saving : savings)
        saving.settle();
}

} // namespace kelx::execution

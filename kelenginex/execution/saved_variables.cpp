// SPDX-License-Identifier: Apache-2.0
#include "execution/saved_variables.h"

#include "execution/saved_column.h"
#include "language/message_table.h"
#include "storage/coding.h"
#include "storage/column_file.h"
#include "storage/error.h"
#include "storage/raw_column.h"
#include "storage/utf8.h"

#include "catalog/names.h"

#include <algorithm>
#include <limits>
#include <set>
#include <string>
#include <system_error>

namespace kelx::execution {
namespace {

namespace fs = std::filesystem;
using language::Definition;
using storage::Column;
using storage::ColumnFileBuilder;
using storage::ColumnInfo;
using storage::FileError;
using storage::Physical;
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

/// What is to be known of the texts before they are written.
struct TextSizes {
    std::size_t characters = 1; ///< of the longest
    std::size_t bytes = 1;
};

/// The codes of a block, wide enough for their file and from its base.
template <class Code>
void recode(const void* data, const ColumnInfo& info, std::int64_t base, std::size_t count,
            Code* out) {
    storage::withCode(info.physical, [&]<class From>(From) {
        const auto* codes = static_cast<const From*>(data);
        const std::uint64_t shift = storage::codeOf(info.base, base);
        for (std::size_t i = 0; i < count; ++i)
            out[i] = codes[i] == std::numeric_limits<From>::max()
                         ? std::numeric_limits<Code>::max()
                         : static_cast<Code>(codes[i] + shift);
    });
}

/// One variable on its way to its file.
class Saving {
public:
    Saving(const Definition& definition, Progress& progress)
        : definition_(definition), variable_(*definition.variable), file_(definition.save->file),
          progress_(progress), pulse_([&progress] { progress.checkNow(); }),
          notApplicable_(freeCodeForNa(variable_, pulse_)),
          column_(withNaAs(notApplicable_, variable_.column())), texts_(measuredTexts()) {}

    void write(storage::StagedFiles& files) {
        if (isRaw(file_) && key() != nullptr)
            throw FileError(file_, "cannot be protected as its database is; save to a .kbf file");
        files.write(file_, [&](const fs::path& staged) {
            if (isRaw(file_))
                writeRaw(staged, files);
            else
                writeColumn(staged);
        });
    }

    void describe(language::Messages& messages) {
        const ColumnInfo& info = column_->info();
        if (variable_.column()->info().type != info.type)
            messages.add(language::makeMessage(
                language::Warning::SavedAsNumbers, definition_.save->position,
                {variable_.fullName(), catalog::numberText(*notApplicable_)}));
        variable_.fileName = definition_.save->fileName;
        variable_.type = info.type;
        variable_.size = size();
        variable_.raw = layout_;
        if (notApplicable_)
            variable_.notapp = notApplicable_;
    }

private:
    TextSizes measuredTexts() const {
        TextSizes sizes;
        storage::forEachStep(column_->textCount(), pulse_, [&](std::uint64_t i) {
            const std::string_view text = column_->text(i);
            if (!storage::isUtf8(text))
                throw FileError(file_, "cannot hold a text that is not UTF-8");
            sizes.characters = std::max(sizes.characters, storage::characterCount(text));
            sizes.bytes = std::max(sizes.bytes, text.size());
        });
        return sizes;
    }

    int size() const {
        const ColumnInfo& info = column_->info();
        std::size_t size = texts_.characters;
        if (info.type == ValueType::Integer)
            size = std::max(std::to_string(lowestOf(info)).size(),
                            std::to_string(highestOf(info)).size());
        else if (info.type == ValueType::Real)
            size = sizeof(double);
        return static_cast<int>(size);
    }

    std::shared_ptr<const storage::Secret> key() const {
        return variable_.entity->dictionary != nullptr ? variable_.entity->dictionary->key
                                                       : nullptr;
    }

    ColumnFileBuilder::Form form() const {
        const ColumnInfo& info = column_->info();
        if (info.type == ValueType::Real)
            return {info.type, Physical::Real64, 0, info.decimals};
        if (info.type == ValueType::Boolean)
            return {info.type, Physical::Code8, 0, info.decimals};
        if (info.type == ValueType::Integer) {
            storage::requireCodes(lowestOf(info), highestOf(info), file_);
            const auto narrow = storage::integerForm(lowestOf(info), highestOf(info));
            return {info.type, narrow.physical, narrow.base, info.decimals};
        }
        const std::uint64_t texts = column_->textCount();
        return {info.type, storage::physicalFor(texts == 0 ? 0 : texts - 1), 0, info.decimals};
    }

    void writeColumn(const fs::path& staged) const {
        const ColumnFileBuilder::Form to = form();
        ColumnFileBuilder builder(staged, to, key());
        storage::ColumnScratch scratch;
        const std::uint64_t records = column_->info().records;
        for (std::uint64_t begin = 0; begin < records; begin += storage::recordsPerBlock) {
            const auto count = static_cast<std::size_t>(
                std::min<std::uint64_t>(records - begin, storage::recordsPerBlock));
            addBlock(column_->read(begin, count, scratch), count, to, builder);
            progress_.add(count);
            pulse_();
        }
        if (to.type == ValueType::String)
            builder.addTexts(
                column_->textCount(), [&](std::uint64_t i) { return column_->text(i); }, pulse_);
        builder.commit();
    }

    void addBlock(const void* data, std::size_t count, const ColumnFileBuilder::Form& to,
                  ColumnFileBuilder& builder) const {
        if (to.physical == Physical::Real64)
            return builder.addBlock(data, count);
        storage::withCode(to.physical, [&]<class Code>(Code) {
            std::vector<Code> codes(count);
            recode(data, column_->info(), to.base, count, codes.data());
            builder.addBlock(codes.data(), count);
        });
    }

    void writeRaw(const fs::path& staged, storage::StagedFiles& files) {
        layout_ = layoutFor();
        files.add(descriptionOf(staged), descriptionOf(file_));
        storage::writeRawColumn(staged, *column_, *layout_, [this] {
            progress_.add(storage::recordsPerBlock);
            pulse_();
        });
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
            return {RawType::Chr,
                    static_cast<int>(std::min<std::size_t>(texts_.bytes, std::size_t{1} << 20)), 0,
                    info.type};
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

    const Definition& definition_;
    catalog::Variable& variable_;
    fs::path file_;
    Progress& progress_;
    storage::Pulse pulse_;
    std::optional<double> notApplicable_;
    std::shared_ptr<const Column> column_;
    TextSizes texts_;
    std::optional<storage::RawLayout> layout_;
};

void checkFile(const language::SaveClause& save) {
    std::error_code ignored;
    if (fs::is_directory(save.file, ignored))
        throw FileError(save.file, "cannot be saved to: it is a folder");
    if (!save.overwrite && fs::exists(fs::symlink_status(save.file, ignored)))
        throw FileError(save.file, "exists; SAVE replaces it only with OVERWRITE");
}

} // namespace

SavedVariables::SavedVariables(const language::BoundProgram& program) {
    std::set<fs::path> taken;
    for (const Definition& definition : program.definitions) {
        if (!definition.save)
            continue;
        if (!taken.insert(definition.save->file.lexically_normal()).second)
            throw FileError(definition.save->file, "cannot be saved to by two variables");
        definitions_.push_back(&definition);
    }
    checkFiles();
}

std::uint64_t SavedVariables::records() const {
    std::uint64_t sum = 0;
    for (const Definition* definition : definitions_)
        sum += definition->variable->entity->records();
    return sum;
}

void SavedVariables::write(storage::StagedFiles& files, language::Messages& messages,
                           Progress& progress) {
    std::vector<std::unique_ptr<Saving>> savings;
    for (const Definition* definition : definitions_) {
        savings.push_back(std::make_unique<Saving>(*definition, progress));
        savings.back()->write(files);
    }
    keepDescriptions();
    for (const auto& saving : savings)
        saving->describe(messages);
}

void SavedVariables::keepDescriptions() {
    for (const Definition* definition : definitions_) {
        catalog::Variable& variable = *definition->variable;
        before_.push_back({&variable, variable.fileName, variable.type, variable.size,
                           variable.notapp, variable.raw});
    }
}

SavedVariables::~SavedVariables() {
    for (Description& before : before_) {
        catalog::Variable& variable = *before.variable;
        variable.fileName = std::move(before.fileName);
        variable.type = before.type;
        variable.size = before.size;
        variable.notapp = before.notapp;
        variable.raw = before.raw;
    }
}

void SavedVariables::checkFiles() const {
    for (const Definition* definition : definitions_)
        checkFile(*definition->save);
}

void SavedVariables::settle() {
    before_.clear();
    for (const Definition* definition : definitions_)
        definition->variable->closeColumn();
}

} // namespace kelx::execution

// SPDX-License-Identifier: Apache-2.0
#include "import/csv_exporter.h"

#include "import/column_texts.h"
#include "import/csv_writer.h"
#include "import/staging.h"
#include "import/values.h"
#include "storage/error.h"

#include <algorithm>
#include <optional>
#include <set>

namespace kelx::tools {

namespace {

using catalog::Entity;
using catalog::Variable;
using storage::ValueType;
namespace fs = std::filesystem;

constexpr int widestText = 4000; ///< of a type in a codebook

/// "(n)" where all texts of a column have n characters.
std::string commonWidth(const Variable& variable) {
    const auto column = variable.column();
    std::optional<std::size_t> width;
    for (std::uint64_t i = 0; i < column->textCount(); ++i) {
        const std::size_t length = characterCount(column->text(i));
        if (width.value_or(length) != length)
            return {};
        width = length;
    }
    return width.value_or(0) == 0 || *width > widestText ? std::string()
                                                         : "(" + std::to_string(*width) + ")";
}

std::size_t longestText(const Variable& variable) {
    const auto column = variable.column();
    std::size_t longest = 0;
    for (std::uint64_t i = 0; i < column->textCount(); ++i)
        longest = std::max(longest, characterCount(column->text(i)));
    return longest;
}

bool isSpecial(const Variable& variable, const std::string& code) {
    const auto number = parseReal(code);
    return number && (number == variable.missing || number == variable.notapp);
}

/// Codes of their own make a code list; labels of the missing and the not-applicable code do not.
bool isCoded(const Variable& variable) {
    return std::any_of(variable.valueLabels.begin(), variable.valueLabels.end(),
                       [&](const auto& entry) { return !isSpecial(variable, entry.first); });
}

/// A labelled code as values of the variable are written.
std::string codeText(const Variable& variable, const std::string& code) {
    const ValueType type = variable.column()->info().type;
    if (type == ValueType::Integer)
        if (const auto number = parseInteger(code))
            return integerText(*number);
    if (type == ValueType::Real)
        if (const auto number = parseReal(code))
            return numberText(*number);
    return code;
}

std::string typeText(const Variable& variable) {
    const Entity& entity = *variable.entity;
    const ValueType type = variable.column()->info().type;
    const bool isText = type == ValueType::String;
    if (&variable == entity.codeVar) // keys are whole numbers or texts
        return isText                    ? "key text" + commonWidth(variable)
               : type == ValueType::Real ? "key text"
                                         : "key integer";
    if (&variable == entity.weightVar && !isText)
        return type == ValueType::Integer ? "weight integer" : "weight";
    if (&variable == entity.labelVar && isText)
        return "label";
    const bool coded = isCoded(variable);
    if (isText && coded)
        return "code text" + commonWidth(variable);
    if (isText)
        return variable.size > 0 && variable.size <= widestText &&
                       longestText(variable) <= static_cast<std::size_t>(variable.size)
                   ? "text(" + std::to_string(variable.size) + ")"
                   : "text";
    if (type == ValueType::Real)
        return coded ? "code real" : "real";
    if (type == ValueType::Boolean)
        return "boolean";
    return coded ? "code" : "integer";
}

/// A name for a generated key that no variable of the entity has.
std::string freeName(const Entity& entity) {
    std::string name = "RECORD";
    for (int n = 2; entity.findVariable(name) != nullptr; ++n)
        name = "RECORD_" + std::to_string(n);
    return name;
}

/// A record of a level, moving forward, and its key.
class RunningRecord {
public:
    explicit RunningRecord(const Entity& entity) : entity_(entity), pointers_(entity.pointers()) {
        if (entity.codeVar != nullptr)
            texts_ = std::make_unique<ColumnTexts>(*entity.codeVar);
    }

    void moveTo(std::uint64_t record) {
        record_ = record;
        while (pointers_->first(parent_ + 1) <= record)
            ++parent_;
    }
    /// The record above this one.
    std::uint64_t parent() const { return parent_; }
    std::string key() {
        if (!texts_)
            return integerText(static_cast<std::int64_t>(record_ - pointers_->first(parent_) + 1));
        const std::string& text = texts_->at(record_);
        if (text.empty())
            throw std::runtime_error("Record " + std::to_string(record_ + 1) + " of " +
                                     entity_.name + " has a blank code.");
        return text;
    }

private:
    const Entity& entity_;
    std::shared_ptr<const storage::PointerFile> pointers_;
    std::unique_ptr<ColumnTexts> texts_;
    std::uint64_t record_ = 0;
    std::uint64_t parent_ = 0;
};

class Exporter {
public:
    Exporter(const catalog::Dictionary& dictionary, const fs::path& folder, bool overwrite,
             const Progress& progress)
        : dictionary_(dictionary),
          staging_(folder / "codebook.csv", fileNames(dictionary), overwrite), progress_(progress) {
        for (const Entity* entity : dictionary.entities())
            allRecords_ += hasFile(*entity) ? entity->records() : 0;
    }

    ExportReport run() {
        CsvWriter codebook(staging_.folder() / "codebook.csv");
        for (const char* column : {"level", "field", "type", "code", "label", "is_missing"})
            codebook.field(column);
        codebook.endRecord();
        for (const Entity* entity : dictionary_.entities()) {
            describe(*entity, codebook);
            if (hasFile(*entity))
                writeRecords(*entity);
        }
        codebook.commit();
        tellProgress();
        staging_.publish();
        return std::move(report_);
    }

private:
    static bool hasFile(const Entity& entity) {
        return entity.parent != nullptr || !entity.variables.empty();
    }

    static std::vector<std::string> fileNames(const catalog::Dictionary& dictionary) {
        std::vector<std::string> names;
        for (const Entity* entity : dictionary.entities()) {
            if (!isName(entity->name))
                throw std::runtime_error(entity->name + " cannot be the name of a CSV file.");
            if (hasFile(*entity))
                names.push_back(entity->name + ".csv");
        }
        names.emplace_back("codebook.csv");
        return names;
    }

    /// Levels above the entity whose keys its rows tell, from the top down; the root has no key.
    static std::vector<const Entity*> keyLevels(const Entity& entity) {
        std::vector<const Entity*> levels;
        for (const Entity* above = entity.parent; above != nullptr && above->parent != nullptr;
             above = above->parent)
            levels.insert(levels.begin(), above);
        return levels;
    }

    static bool needsKey(const Entity& entity) {
        return entity.parent != nullptr && entity.codeVar == nullptr && !entity.children.empty();
    }

    static std::string keyName(const Entity& entity) {
        return entity.codeVar != nullptr ? entity.codeVar->name : freeName(entity);
    }

    /// The name of an upper level's key in the file of an entity below.
    static std::string parentKeyName(const Entity& above, const Entity& below) {
        std::string name = above.name + "_" + keyName(above);
        while (below.findVariable(name) != nullptr)
            name += "_";
        return name;
    }

    static void row(CsvWriter& csv, std::initializer_list<std::string> fields) {
        for (const std::string& field : fields)
            csv.field(field);
        csv.endRecord();
    }

    void describe(const Entity& entity, CsvWriter& codebook) const {
        row(codebook,
            {entity.name, "", entity.parent == nullptr ? "root" : "", "", entity.label, ""});
        for (const Entity* above : keyLevels(entity))
            row(codebook, {entity.name, parentKeyName(*above, entity), "parent key", "", "", ""});
        if (needsKey(entity))
            row(codebook, {entity.name, freeName(entity), "key integer", "", "", ""});
        for (const auto& variable : entity.variables)
            describe(*variable, codebook);
    }

    static void describe(const Variable& variable, CsvWriter& codebook) {
        const std::string& level = variable.entity->name;
        const std::string type = typeText(variable);
        row(codebook, {level, variable.name, type, "", variable.label, ""});
        bool missing = variable.missing.has_value();
        bool notapp = variable.notapp.has_value();
        std::set<std::string> told;
        for (const auto& [code, label] : variable.valueLabels) {
            const std::string text = codeText(variable, code);
            if (!told.insert(text).second)
                continue; // "1" and "01" are one number, and the first label is the one shown
            const auto number = parseReal(code);
            const bool isMissing = missing && number == variable.missing;
            const bool isNotapp = !isMissing && notapp && number == variable.notapp;
            if (label.empty() && (isMissing || isNotapp))
                continue; // told below, as those without an entry are
            missing = missing && !isMissing;
            notapp = notapp && !isNotapp;
            row(codebook, {level, variable.name, type, text, label.empty() ? text : label,
                           isMissing  ? "missing"
                           : isNotapp ? "notapp"
                                      : ""});
        }
        if (missing)
            row(codebook,
                {level, variable.name, type, numberText(*variable.missing), "", "missing"});
        if (notapp)
            row(codebook, {level, variable.name, type, numberText(*variable.notapp), "", "notapp"});
    }

    void writeRecords(const Entity& entity) {
        CsvWriter csv(staging_.folder() / (entity.name + ".csv"));
        std::vector<std::unique_ptr<RunningRecord>> path; // from the top down to the entity itself
        for (const Entity* above : keyLevels(entity)) {
            csv.field(parentKeyName(*above, entity));
            path.push_back(std::make_unique<RunningRecord>(*above));
        }
        if (entity.parent != nullptr)
            path.push_back(std::make_unique<RunningRecord>(entity));
        if (needsKey(entity))
            csv.field(freeName(entity));
        const std::size_t keys = path.size() - (entity.parent != nullptr && !needsKey(entity));
        std::vector<std::unique_ptr<ColumnTexts>> columns;
        for (const auto& variable : entity.variables) {
            csv.field(variable->name);
            columns.push_back(std::make_unique<ColumnTexts>(*variable));
        }
        csv.endRecord();
        const std::uint64_t records = entity.records();
        for (std::uint64_t record = 0; record < records; ++record) {
            std::uint64_t at = record;
            for (auto level = path.rbegin(); level != path.rend(); ++level) {
                (*level)->moveTo(at);
                at = (*level)->parent();
            }
            for (std::size_t i = 0; i < keys; ++i)
                csv.field(path[i]->key());
            for (const auto& column : columns)
                csv.field(column->at(record));
            csv.endRecord();
            if (++recordsWritten_ % storage::recordsPerBlock == 0)
                tellProgress();
        }
        csv.commit();
        report_.emplace_back(entity.name + ".csv", records);
    }

    void tellProgress() const {
        if (progress_)
            progress_(recordsWritten_, allRecords_);
    }

    const catalog::Dictionary& dictionary_;
    Staging staging_;
    const Progress& progress_;
    std::uint64_t recordsWritten_ = 0, allRecords_ = 0;
    ExportReport report_;
};

} // namespace

ExportReport exportCsv(const catalog::Dictionary& dictionary, const fs::path& folder,
                       bool overwrite, const Progress& progress) {
    return Exporter(dictionary, folder, overwrite, progress).run();
}

} // namespace kelx::tools

// SPDX-License-Identifier: Apache-2.0
#include "import/codebook.h"

#include "import/csv_reader.h"
#include "import/values.h"

#include <algorithm>
#include <array>

namespace kelx::tools {

namespace {

using storage::ValueType;

enum ColumnName { Level, Field, Type, Code, Label, IsMissing };
constexpr std::array<const char*, 6> columnNames = {"LEVEL", "FIELD", "TYPE",
                                                    "CODE",  "LABEL", "IS_MISSING"};

/// Takes a word, or two of them, from the front.
bool take(std::string& text, const std::string& words) {
    if (!text.starts_with(words))
        return false;
    if (text.size() > words.size() && text[words.size()] != ' ')
        return false;
    text.erase(0, std::min(text.size(), words.size() + 1));
    return true;
}

/// The n of "TEXT(n)"; 0 for "TEXT".
std::optional<int> textWidth(const std::string& text) {
    if (text == "TEXT")
        return 0;
    if (!text.starts_with("TEXT(") || !text.ends_with(")"))
        return std::nullopt;
    const auto width = parseInteger(std::string_view(text).substr(5, text.size() - 6));
    return width && *width >= 1 && *width <= 4000 ? std::optional(static_cast<int>(*width))
                                                  : std::nullopt;
}

/// What a type says; false where it is none.
bool applyType(FieldPlan& field, std::string text) {
    if (take(text, "PARENT KEY"))
        field.role = FieldRole::ParentKey;
    else if (take(text, "KEY"))
        field.role = FieldRole::Key;
    else if (take(text, "WEIGHT"))
        field.role = FieldRole::Weight;
    else if (take(text, "LABEL"))
        field.role = FieldRole::Label;
    else
        field.coded = take(text, "CODE");
    if (field.role == FieldRole::ParentKey)
        return text.empty();
    if (text.empty()) {
        field.type = field.role == FieldRole::Weight  ? ValueType::Real
                     : field.role == FieldRole::Label ? ValueType::String
                                                      : ValueType::Integer;
        return field.coded || field.role == FieldRole::Weight || field.role == FieldRole::Label;
    }
    if (const auto width = textWidth(text)) {
        field.type = ValueType::String;
        field.width = *width;
        return field.role != FieldRole::Weight;
    }
    if (field.role == FieldRole::Label)
        return false;
    field.type = text == "INTEGER" ? ValueType::Integer
                 : text == "REAL"  ? ValueType::Real
                                   : ValueType::Boolean;
    if (text == "BOOLEAN")
        return field.role == FieldRole::Value && !field.coded;
    return text == "INTEGER" || (text == "REAL" && field.role != FieldRole::Key);
}

bool sameType(const FieldPlan& a, const FieldPlan& b) {
    return a.role == b.role && a.type == b.type && a.coded == b.coded && a.width == b.width;
}

/// Whether the type of a row with a code fits a field that is described already: it repeats it, or
/// says "code" of what got its type without that word.
bool fitsCode(const FieldPlan& field, const FieldPlan& row, const std::string& type) {
    const bool bare = type == "CODE" && field.type == ValueType::Real;
    return row.coded && field.role == FieldRole::Value && !field.coded &&
           (bare || (row.type == field.type && row.width == field.width));
}

class CodebookReader {
public:
    explicit CodebookReader(const std::filesystem::path& file) : csv_(file) {
        book_.file = csv_.name();
    }

    Codebook read() {
        readHeader();
        while (csv_.next()) {
            if (csv_.fields() != width_)
                csv_.fail(std::min(width_, csv_.fields()), "expected " + std::to_string(width_) +
                                                               " fields, found " +
                                                               std::to_string(csv_.fields()));
            readRow();
        }
        return std::move(book_);
    }

private:
    void readHeader() {
        if (!csv_.next())
            csv_.fail(0, "the file is empty");
        width_ = csv_.fields();
        columns_.fill(width_);
        for (std::size_t i = 0; i < width_; ++i) {
            const auto name =
                std::find(columnNames.begin(), columnNames.end(), upperCase(csv_.field(i)));
            if (name == columnNames.end())
                csv_.fail(i, "unknown column " + inQuotes(std::string(csv_.field(i))) +
                                 "; a codebook has level, field, type, code, label, is_missing");
            columns_[static_cast<std::size_t>(name - columnNames.begin())] = i;
        }
        for (std::size_t i = 0; i < columns_.size(); ++i)
            if (columns_[i] == width_)
                csv_.fail(width_, std::string("the column ") + columnNames[i] + " is not there");
    }

    std::string text(ColumnName column) const { return std::string(csv_.field(columns_[column])); }
    [[noreturn]] void fail(ColumnName column, const std::string& problem) const {
        csv_.fail(columns_[column], problem);
    }

    std::string nameIn(ColumnName column) const {
        const std::string name = text(column);
        if (!isName(name))
            fail(column,
                 "a name holds letters, digits, \"_\" and \"-\" only, not " + inQuotes(name));
        return upperCase(name);
    }

    LevelPlan& level() {
        const std::string name = nameIn(Level);
        const auto found =
            std::find_if(book_.levels.begin(), book_.levels.end(),
                         [&](const LevelPlan& candidate) { return candidate.name == name; });
        if (found != book_.levels.end())
            return *found;
        LevelPlan level;
        level.name = name;
        level.place = csv_.place(columns_[Level]);
        return book_.levels.emplace_back(std::move(level));
    }

    void readRow() {
        LevelPlan& owner = level();
        if (!text(Field).empty()) {
            readField(owner);
            return;
        }
        if (upperCase(text(Type)) == "ROOT")
            book_.root = owner.name;
        else if (!text(Type).empty())
            fail(Type, "a type needs a field");
        owner.label = text(Label);
    }

    void readField(LevelPlan& owner) {
        FieldPlan& field = describedField(owner);
        if (!text(Code).empty())
            readCode(field);
        else if (!text(IsMissing).empty())
            fail(IsMissing, "a missing code needs a code");
        else if (!text(Label).empty())
            field.label = text(Label);
    }

    FieldPlan& describedField(LevelPlan& owner) {
        FieldPlan plan;
        plan.name = nameIn(Field);
        plan.place = csv_.place(columns_[Field]);
        const bool typed = !text(Type).empty();
        if (typed && !applyType(plan, upperCase(text(Type))))
            fail(Type, "unknown type " + inQuotes(text(Type)));
        for (FieldPlan& field : owner.fields) {
            if (field.name != plan.name)
                continue;
            const bool fits = sameType(field, plan) ||
                              (!text(Code).empty() && fitsCode(field, plan, upperCase(text(Type))));
            if (typed && !fits)
                fail(Type,
                     inQuotes(text(Type)) + " is not the type that " + field.name + " got before");
            return field;
        }
        if (!typed)
            fail(Type, plan.name + " has no type");
        const bool single = plan.role != FieldRole::Value && plan.role != FieldRole::ParentKey;
        if (single && owner.withRole(plan.role) != nullptr)
            fail(Type,
                 owner.name + " has such a field already: " + owner.withRole(plan.role)->name);
        return owner.fields.emplace_back(std::move(plan));
    }

    void readCode(FieldPlan& field) {
        if (field.role == FieldRole::ParentKey)
            fail(Code, "a parent key has no codes of its own");
        CodeEntry entry{codeText(field), text(Label), meaning()};
        if (entry.label.empty() && entry.meaning == CodeMeaning::Valid)
            fail(Label, "the code " + inQuotes(entry.code) + " has no label");
        for (const CodeEntry& other : field.codes) {
            if (other.code == entry.code)
                fail(Code, "the code " + inQuotes(entry.code) + " stands here twice");
            if (other.meaning == entry.meaning && entry.meaning != CodeMeaning::Valid)
                fail(IsMissing, field.name + " has such a code already: " + inQuotes(other.code));
        }
        const bool number = parseReal(entry.code).has_value();
        if (entry.meaning != CodeMeaning::Valid && (!number || field.type == ValueType::Boolean))
            fail(Code, "a missing or not-applicable code must be a number");
        field.codes.push_back(std::move(entry));
    }

    CodeMeaning meaning() const {
        const std::string word = upperCase(text(IsMissing));
        if (!word.empty() && word != "MISSING" && word != "NOTAPP")
            fail(IsMissing,
                 "expected \"missing\", \"notapp\" or nothing, found " + inQuotes(text(IsMissing)));
        return word.empty()        ? CodeMeaning::Valid
               : word == "MISSING" ? CodeMeaning::Missing
                                   : CodeMeaning::NotApplicable;
    }

    /// The code as a value of the field is written.
    std::string codeText(const FieldPlan& field) const {
        std::string code = text(Code);
        if (field.type == ValueType::String) {
            if (field.exactWidth() && characterCount(code) != static_cast<std::size_t>(field.width))
                fail(Code, inQuotes(code) + " does not have " + std::to_string(field.width) +
                               " characters");
            return code;
        }
        if (field.type == ValueType::Integer) {
            if (const auto value = parseInteger(code))
                return integerText(*value);
        } else if (field.type == ValueType::Real) {
            if (const auto value = parseReal(code))
                return numberText(*value);
        } else if (const auto value = parseBoolean(code)) {
            return *value ? "1" : "0";
        }
        fail(Code, inQuotes(code) + " is no value of this type");
    }

    CsvReader csv_;
    Codebook book_;
    std::size_t width_ = 0;
    std::array<std::size_t, 6> columns_{};
};

} // namespace

const FieldPlan* LevelPlan::find(const std::string& wanted) const {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const FieldPlan& field) { return field.name == wanted; });
    return found == fields.end() ? nullptr : &*found;
}

const FieldPlan* LevelPlan::withRole(FieldRole wanted) const {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const FieldPlan& field) { return field.role == wanted; });
    return found == fields.end() ? nullptr : &*found;
}

const LevelPlan* Codebook::find(const std::string& wanted) const {
    const auto found = std::find_if(levels.begin(), levels.end(),
                                    [&](const LevelPlan& level) { return level.name == wanted; });
    return found == levels.end() ? nullptr : &*found;
}

Codebook readCodebook(const std::filesystem::path& file) {
    return CodebookReader(file).read();
}

} // namespace kelx::tools

// SPDX-License-Identifier: Apache-2.0
#include "import/dicx_layout.h"

#include "catalog/assembly.h"
#include "catalog/reader.h"
#include "import/values.h"
#include "storage/error.h"

#include <algorithm>
#include <fstream>
#include <map>

namespace kelx::tools {

namespace {

using storage::ValueType;
namespace fs = std::filesystem;

constexpr int widestField = 4000;
constexpr std::size_t lastColumn = 1u << 20;

std::string readText(const fs::path& file) {
    std::error_code fault;
    const auto size = fs::file_size(file, fault);
    if (fault)
        throw storage::FileError(file, "cannot be read: " + fault.message());
    if (size > catalog::Limits::fileBytes)
        throw storage::FileError(file, "larger than any dictionary (256 MB)");
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::vector<CodeEntry> codesOf(const catalog::Variable& variable) {
    std::vector<CodeEntry> codes;
    const auto isCode = [&](const std::string& text, const std::optional<double>& code) {
        return code && parseReal(text) == code;
    };
    bool hasMissing = false;
    bool hasNotapp = false;
    for (const auto& [value, label] : variable.valueLabels) {
        CodeEntry entry{value, label, CodeMeaning::Valid};
        if (!hasMissing && isCode(value, variable.missing)) {
            entry.meaning = CodeMeaning::Missing;
            hasMissing = true;
        } else if (!hasNotapp && isCode(value, variable.notapp)) {
            entry.meaning = CodeMeaning::NotApplicable;
            hasNotapp = true;
        }
        codes.push_back(std::move(entry));
    }
    if (variable.missing && !hasMissing)
        codes.push_back({numberText(*variable.missing), "", CodeMeaning::Missing});
    if (variable.notapp && !hasNotapp)
        codes.push_back({numberText(*variable.notapp), "", CodeMeaning::NotApplicable});
    return codes;
}

class LayoutReader {
public:
    LayoutReader(const fs::path& file, std::size_t recordTypeColumn)
        : file_(file), dictionary_(catalog::parseDicx(readText(file), file)) {
        layout_.rootName = upperCase(dictionary_->root->name);
        layout_.rootLabel = dictionary_->root->label;
        layout_.text.recordType.start = recordTypeColumn - 1;
    }

    DicxLayout read() {
        for (const auto& variable : dictionary_->root->variables)
            if (variable->textField)
                fail(variable->fullName() +
                     " lies in the root, which has no records of its own in a text");
        for (const auto& child : dictionary_->root->children)
            addLevel(*child, noLevel);
        if (layout_.text.fields.empty())
            fail("no variable says where it stands in a text (varWipChoice with start or field)");
        placeFields();
        layout_.plan.linkLevels();
        makeShapes();
        return std::move(layout_);
    }

private:
    [[noreturn]] void fail(const std::string& problem) const {
        throw storage::FileError(file_, problem);
    }

    static bool hasFields(const catalog::Entity& entity) {
        return std::any_of(entity.variables.begin(), entity.variables.end(),
                           [](const auto& variable) { return variable->textField.has_value(); });
    }

    void addLevel(const catalog::Entity& entity, std::size_t parent) {
        if (!hasFields(entity)) {
            if (!entity.children.empty())
                fail(entity.name + " has no field in the text, but levels under it");
            layout_.notes.push_back(entity.name + " has no field in the text and is left out");
            return;
        }
        const std::size_t number = layout_.plan.levels.size();
        FlatLevel& level = layout_.plan.levels.emplace_back();
        level.plan.name = upperCase(entity.name);
        level.plan.label = entity.label;
        level.parent = parent;
        for (const auto& variable : entity.variables)
            if (variable->textField)
                addField(*variable, number);
        for (const auto& child : entity.children)
            addLevel(*child, number);
    }

    void addField(const catalog::Variable& variable, std::size_t level) {
        SourceField field;
        field.name = variable.name;
        FieldPlan& plan = field.plan;
        plan.name = upperCase(variable.name);
        plan.label = variable.label;
        plan.type = variable.type;
        plan.loose = true;
        plan.codes = codesOf(variable);
        plan.ranges = variable.ranges;
        plan.width = variable.type == ValueType::String ? variable.size : 0;
        field.typeKnown = variable.type != ValueType::None;
        field.numeric = !field.typeKnown;
        if (variable.decimals.value_or(0) > 0 && variable.type != ValueType::String) {
            plan.type = ValueType::Real;
            plan.impliedDecimals = std::min(*variable.decimals, 15);
            field.typeKnown = true;
        }
        const std::size_t number = layout_.text.fields.size();
        const catalog::Entity& entity = *variable.entity;
        if (&variable == entity.codeVar) {
            plan.role = FieldRole::Key;
            layout_.plan.levels[level].key = number;
            layout_.plan.levels[level].integerKey = variable.type == ValueType::Integer;
        } else if (&variable == entity.labelVar) {
            plan.role = FieldRole::Label;
        } else if (&variable == entity.weightVar) {
            plan.role = FieldRole::Weight;
        }
        layout_.text.fields.push_back(std::move(field));
        layout_.plan.levelOf.push_back(level);
        variables_.push_back(&variable);
    }

    /// Fields without a start follow the one before them in turn.
    void placeFields() {
        layout_.text.parts.resize(variables_.size());
        std::map<std::string, std::vector<std::size_t>> byType;
        for (std::size_t i = 0; i < variables_.size(); ++i)
            byType[variables_[i]->textField->recordType].push_back(i);
        for (auto& [type, fields] : byType) {
            std::stable_sort(fields.begin(), fields.end(),
                             [&](std::size_t a, std::size_t b) { return turn(a) < turn(b); });
            std::size_t next = 0;
            for (const std::size_t field : fields)
                next = placeField(field, next);
        }
    }

    int turn(std::size_t field) const {
        return variables_[field]->textField->turn.value_or(std::numeric_limits<int>::max());
    }

    std::size_t placeField(std::size_t field, std::size_t next) {
        const catalog::Variable& variable = *variables_[field];
        if (variable.size < 1 || variable.size > widestField)
            fail(variable.fullName() + ": fieldSize must tell its width in the text, 1 to " +
                 std::to_string(widestField));
        const auto& start = variable.textField->start;
        TextLayout::Part& part = layout_.text.parts[field];
        part.start = start ? static_cast<std::size_t>(*start) - 1 : next;
        part.width = static_cast<std::size_t>(variable.size);
        if (part.start > lastColumn)
            fail(variable.fullName() + ": no line is so long that it could start there");
        return part.start + part.width;
    }

    void makeShapes() {
        std::vector<std::string>& types = layout_.text.recordTypes;
        for (std::size_t i = 0; i < variables_.size(); ++i) {
            const std::string& type = variables_[i]->textField->recordType;
            auto at = std::find(types.begin(), types.end(), type);
            if (at == types.end())
                at = types.insert(types.end(), type);
            layout_.text.fields[i].shape = static_cast<std::size_t>(at - types.begin());
        }
        if (types.size() > 1 && std::find(types.begin(), types.end(), "") != types.end())
            fail("some variables have a recType and some have none");
        for (const std::string& type : types)
            layout_.text.recordType.width =
                std::max(layout_.text.recordType.width, characterCount(type));
        layout_.plan.shapes.resize(types.size());
        for (std::size_t level = 0; level < layout_.plan.levels.size(); ++level)
            addToShape(level);
        for (const auto& shape : layout_.plan.shapes)
            checkShape(shape);
    }

    void addToShape(std::size_t level) {
        std::optional<std::size_t> shape;
        for (std::size_t i = 0; i < variables_.size(); ++i) {
            if (layout_.plan.levelOf[i] != level)
                continue;
            if (shape.value_or(layout_.text.fields[i].shape) != layout_.text.fields[i].shape)
                fail(layout_.plan.levels[level].plan.name +
                     " has variables in lines of different types");
            shape = layout_.text.fields[i].shape;
        }
        layout_.plan.shapes[*shape].push_back(level);
    }

    void checkShape(const std::vector<std::size_t>& shape) const {
        for (std::size_t i = 1; i < shape.size(); ++i) {
            const FlatLevel& above = layout_.plan.levels[shape[i - 1]];
            const FlatLevel& level = layout_.plan.levels[shape[i]];
            if (level.parent != shape[i - 1])
                fail(level.plan.name + " and " + above.plan.name +
                     " stand in the same lines, so one must lie under the other");
            if (!above.key)
                fail(above.plan.name + " needs a code variable (refCode) in the text, since " +
                     level.plan.name + " stands in the same lines");
        }
    }

    fs::path file_;
    std::unique_ptr<catalog::Dictionary> dictionary_;
    std::vector<const catalog::Variable*> variables_; ///< of each field
    DicxLayout layout_;
};

} // namespace

DicxLayout readDicxLayout(const fs::path& file, std::size_t recordTypeColumn) {
    if (recordTypeColumn < 1 || recordTypeColumn > lastColumn)
        throw std::runtime_error("The column of the record type is impossible.");
    return LayoutReader(file, recordTypeColumn).read();
}

} // namespace kelx::tools

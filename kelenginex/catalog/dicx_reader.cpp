// SPDX-License-Identifier: Apache-2.0
// Reads the XML form. Tolerant where writers differ: what is absent takes its default, what is
// there must be right.
#include "catalog/assembly.h"
#include "catalog/names.h"
#include "catalog/reader.h"

#include <pugixml.hpp>

#include <limits>

namespace kelx::catalog {

namespace {

class DicxReader {
public:
    explicit DicxReader(const std::filesystem::path& file) : assembly_(file) {}

    std::unique_ptr<Dictionary> read(const std::string& xml);

private:
    void readGeneral(const pugi::xml_node& general);
    void readEntity(const pugi::xml_node& node, Entity* parent, int depth);
    void readVariable(const pugi::xml_node& node, Entity& entity);
    void readType(const pugi::xml_node& node, Variable& variable);
    void readRanges(const pugi::xml_node& node, Variable& variable);
    void readLabels(const pugi::xml_node& node, Variable& variable);
    void readRawLayout(const pugi::xml_node& node, Variable& variable);
    void readTextField(const pugi::xml_node& node, Variable& variable);
    bool truth(const pugi::xml_node& node, const char* element) const;
    std::optional<int> integer(const pugi::xml_node& node, const char* element) const;
    std::optional<double> number(const pugi::xml_node& node, const char* element) const;
    [[noreturn]] void failAt(const char* element, const std::string& text) const;

    Assembly assembly_;
    std::string place_; ///< what is being read, for messages
};

std::string textOf(const pugi::xml_node& node, const char* element) {
    return node.child(element).child_value();
}

std::string trimmedText(const pugi::xml_node& node, const char* element) {
    const std::string text = textOf(node, element);
    const auto begin = text.find_first_not_of(" \t\r\n");
    return begin == std::string::npos
               ? std::string()
               : text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

ValueType naturalType(const storage::RawLayout& raw) {
    switch (raw.type) {
    case storage::RawType::Chr:
    case storage::RawType::Uni:
        return ValueType::String;
    case storage::RawType::Dbl:
    case storage::RawType::Sng:
        return ValueType::Real;
    case storage::RawType::Pck:
        return raw.decimals > 0 ? ValueType::Real : ValueType::Integer;
    case storage::RawType::Bool:
        return ValueType::Boolean;
    default:
        return ValueType::Integer;
    }
}

int naturalSize(storage::RawType type, int said) {
    switch (type) {
    case storage::RawType::Byte:
    case storage::RawType::Bool:
        return 1;
    case storage::RawType::Int:
        return 2;
    case storage::RawType::Lng:
    case storage::RawType::Sng:
        return 4;
    case storage::RawType::Dbl:
        return 8;
    default:
        return said;
    }
}

std::unique_ptr<Dictionary> DicxReader::read(const std::string& xml) {
    pugi::xml_document document;
    const auto result = document.load_buffer(xml.data(), xml.size());
    if (!result) {
        assembly_.fail("no well-formed XML at byte " + std::to_string(result.offset) + ": " +
                       result.description());
    }
    const pugi::xml_node top = document.child("kelDictionary_XML");
    if (!top) {
        assembly_.fail("no dictionary: the element kelDictionary_XML is missing");
    }
    readGeneral(top.child("general"));
    if (!top.child("root")) {
        assembly_.fail("the element root is missing");
    }
    readEntity(top.child("root"), nullptr, 1);
    return assembly_.finish();
}

void DicxReader::readGeneral(const pugi::xml_node& general) {
    Dictionary& dictionary = assembly_.dictionary();
    dictionary.name = textOf(general, "name");
    dictionary.label = textOf(general, "label");
    dictionary.author = textOf(general, "author");
    dictionary.created = textOf(general, "created");
    dictionary.updated = textOf(general, "updated");
    if (const std::string type = textOf(general, "typeType"); !type.empty()) {
        dictionary.typeType = type;
    }
}

void DicxReader::readEntity(const pugi::xml_node& node, Entity* parent, int depth) {
    Entity& entity = *assembly_.addEntity(parent, trimmedText(node, "name"), depth);
    place_ = "entity " + entity.name;
    entity.alias = trimmedText(node, "alias");
    entity.label = textOf(node, "label");
    entity.selectable = truth(node, "selectable");
    entity.fileName = trimmedText(node, "filename");
    entity.isVirtual = truth(node, "isVirtual");
    entity.documentation = textOf(node, "documentation");
    entity.tag = integer(node, "tag").value_or(-1);
    entity.hidden = truth(node, "hidden");
    entity.sensitive = integer(node, "sensitive");
    assembly_.refer({&entity, trimmedText(node, "refCode"), trimmedText(node, "refLabel"),
                     trimmedText(node, "weightVar")});
    for (const pugi::xml_node& child : node.children("variable")) {
        readVariable(child, entity);
    }
    for (const pugi::xml_node& child : node.children("entity")) {
        readEntity(child, &entity, depth + 1);
    }
}

void DicxReader::readVariable(const pugi::xml_node& node, Entity& entity) {
    Variable& variable = *assembly_.addVariable(entity, trimmedText(node, "name"));
    place_ = "variable " + variable.fullName();
    variable.alias = trimmedText(node, "alias");
    variable.label = textOf(node, "label");
    variable.group = textOf(node, "group");
    variable.size = integer(node, "fieldSize").value_or(0);
    variable.notapp = number(node, "notappl");
    variable.missing = number(node, "missing");
    variable.decimals = integer(node, "decimals");
    variable.documentation = textOf(node, "documentation");
    variable.tag = integer(node, "tag").value_or(-1);
    variable.sensitive = integer(node, "sensitive");
    variable.fileName = trimmedText(node, "filename");
    const pugi::xml_node choice = node.child("varDicChoice");
    variable.hidden = truth(choice, "hidden");
    variable.local = !trimmedText(choice, "isOriginal").empty() && !truth(choice, "isOriginal");
    if (trimmedText(node, "notappl") == "0" && trimmedText(node, "missing") == "0") {
        // Writers that hold whole codes only put 0 for each where there is none; ours write codes
        // that are both zero with a fraction.
        variable.notapp.reset();
        variable.missing.reset();
    }
    readType(node, variable);
    readRanges(node, variable);
    readLabels(node, variable);
    readRawLayout(node, variable);
    readTextField(node, variable);
}

void DicxReader::readType(const pugi::xml_node& node, Variable& variable) {
    const std::string type = trimmedText(node, "varType");
    if (type == "INTEGER") {
        variable.type = ValueType::Integer;
    } else if (type == "REAL") {
        variable.type = ValueType::Real;
    } else if (type == "BOOL" || type == "BOOLEAN") {
        variable.type = ValueType::Boolean;
    } else if (type == "STRING" || type == "UNICODE") {
        variable.type = ValueType::String;
    } else if (!type.empty() && type != "NONE") {
        failAt("varType", type);
    }
}

void DicxReader::readRanges(const pugi::xml_node& node, Variable& variable) {
    for (const pugi::xml_node& child : node.children("range")) {
        Range range;
        range.kind = integer(child, "rangeItemType").value_or(4);
        if (range.kind < 1 || range.kind > 10) {
            failAt("rangeItemType", textOf(child, "rangeItemType"));
        }
        range.minimum = number(child, "rangeMin").value_or(0);
        range.maximum = number(child, "rangeMax").value_or(0);
        variable.ranges.push_back(range);
    }
    const auto& ranges = variable.ranges;
    const bool typeKnown = variable.type != ValueType::None && variable.type != ValueType::String;
    // A fixed range is put where a writer knows neither type nor range.
    if (!typeKnown && ranges.size() == 1 && ranges[0].kind == 4 && ranges[0].minimum == 0 &&
        ranges[0].maximum == 9999) {
        variable.ranges.clear();
    }
}

void DicxReader::readLabels(const pugi::xml_node& node, Variable& variable) {
    for (const pugi::xml_node& child : node.child("valueLabels").children("valueLabelElement")) {
        variable.valueLabels.emplace_back(trimmedText(child, "value"), textOf(child, "label"));
    }
}

void DicxReader::readRawLayout(const pugi::xml_node& node, Variable& variable) {
    const pugi::xml_node choice = node.child("varDicChoice");
    const std::filesystem::path name = variable.fileName;
    if (!choice || !sameName(name.extension().string(), ".bin")) {
        return;
    }
    const std::string typeName = trimmedText(choice, "datasetType");
    const auto type = storage::rawTypeFromName(typeName);
    if (!type) {
        failAt("datasetType", typeName);
    }
    storage::RawLayout raw;
    raw.type = *type;
    raw.size = naturalSize(*type, integer(choice, "datasetSize").value_or(0));
    if (raw.size < 1) {
        failAt("datasetSize", textOf(choice, "datasetSize"));
    }
    raw.decimals = variable.decimals.value_or(0);
    raw.valueType = variable.type == ValueType::None ? naturalType(raw) : variable.type;
    variable.raw = raw;
}

void DicxReader::readTextField(const pugi::xml_node& node, Variable& variable) {
    const pugi::xml_node choice = node.child("varWipChoice");
    if (!choice) {
        return;
    }
    TextField field;
    field.recordType = trimmedText(choice, "recType");
    field.start = integer(choice, "start");
    // A field is numbered or named; only a number tells its turn.
    if (const auto turn = parseInteger(trimmedText(choice, "field")); turn && *turn >= 1) {
        field.turn = integer(choice, "field");
    }
    if (field.start && *field.start < 1) {
        failAt("start", textOf(choice, "start"));
    }
    variable.textField = std::move(field);
}

bool DicxReader::truth(const pugi::xml_node& node, const char* element) const {
    const std::string text = lowerCase(trimmedText(node, element));
    if (text == "true" || text == "1") {
        return true;
    }
    if (text.empty() || text == "false" || text == "0") {
        return false;
    }
    failAt(element, text);
}

std::optional<int> DicxReader::integer(const pugi::xml_node& node, const char* element) const {
    const std::string text = trimmedText(node, element);
    if (text.empty()) {
        return std::nullopt;
    }
    const auto value = parseInteger(text);
    if (!value || *value < std::numeric_limits<int>::min() ||
        *value > std::numeric_limits<int>::max()) {
        failAt(element, text);
    }
    return static_cast<int>(*value);
}

std::optional<double> DicxReader::number(const pugi::xml_node& node, const char* element) const {
    const std::string text = trimmedText(node, element);
    const auto value = parseNumber(text);
    if (!text.empty() && !value) {
        failAt(element, text);
    }
    return value;
}

void DicxReader::failAt(const char* element, const std::string& text) const {
    assembly_.fail(place_ + ": \"" + text.substr(0, 60) + "\" is no valid " + element);
}

} // namespace

std::unique_ptr<Dictionary> parseDicx(const std::string& xml, const std::filesystem::path& file) {
    return DicxReader(file).read(xml);
}

} // namespace kelx::catalog

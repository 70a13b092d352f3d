// SPDX-License-Identifier: Apache-2.0
// Writes the XML form, its elements in the order of the schema.
#include "catalog/names.h"
#include "catalog/reader.h"
#include "catalog/type_names.h"

#include <pugixml.hpp>

namespace kelx::catalog {

namespace {

void add(pugi::xml_node& parent, const char* element, const std::string& text) {
    parent.append_child(element).append_child(pugi::node_pcdata).set_value(text.c_str());
}

void addUnlessEmpty(pugi::xml_node& parent, const char* element, const std::string& text) {
    if (!text.empty()) {
        add(parent, element, text);
    }
}

void addIf(pugi::xml_node& parent, const char* element, bool value) {
    if (value) {
        add(parent, element, "true");
    }
}

void addIf(pugi::xml_node& parent, const char* element, const std::optional<int>& value) {
    if (value) {
        add(parent, element, std::to_string(*value));
    }
}

void addIf(pugi::xml_node& parent, const char* element, const std::optional<double>& value) {
    if (value) {
        add(parent, element, numberText(*value));
    }
}

std::string nameOf(const Variable* variable) {
    return variable != nullptr && isStored(*variable) ? variable->name : std::string();
}

std::string fullNameOf(const Variable* variable) {
    return variable != nullptr && isStored(*variable) ? variable->fullName() : std::string();
}

void writeGeneral(pugi::xml_node general, const Dictionary& dictionary) {
    add(general, "typeType", dictionary.typeType);
    add(general, "name", dictionary.name);
    add(general, "label", dictionary.label);
    add(general, "author", dictionary.author);
    add(general, "created", dictionary.created);
    add(general, "updated", dictionary.updated);
    pugi::xml_node version = general.append_child("version");
    add(version, "major", "7");
    add(version, "minor", "0");
    add(version, "revision", "0");
    add(version, "construction", "0");
    general.append_child("security");
}

void writeRanges(pugi::xml_node& node, const Variable& variable) {
    for (const Range& range : variable.ranges) {
        pugi::xml_node child = node.append_child("range");
        add(child, "rangeItemType", std::to_string(range.kind));
        add(child, "rangeMin", numberText(range.minimum));
        add(child, "rangeMax", numberText(range.maximum));
    }
}

void writeCodes(pugi::xml_node& node, const Variable& variable) {
    if (variable.notapp == 0.0 && variable.missing == 0.0) {
        // Two plain zeros are what others write for no codes.
        add(node, "notappl", "0.0");
        add(node, "missing", "0.0");
        return;
    }
    addIf(node, "notappl", variable.notapp);
    addIf(node, "missing", variable.missing);
}

void writeLabels(pugi::xml_node node, const Variable& variable) {
    for (const auto& [value, label] : variable.valueLabels) {
        pugi::xml_node child = node.append_child("valueLabelElement");
        add(child, "value", value);
        add(child, "label", label);
    }
}

void writeStorage(pugi::xml_node choice, const Variable& variable) {
    const bool raw = variable.raw.has_value();
    add(choice, "datasetType", raw ? storage::rawTypeName(variable.raw->type) : "CHR");
    add(choice, "datasetSize", std::to_string(raw ? variable.raw->size : variable.size));
    addIf(choice, "hidden", variable.hidden);
    if (variable.local) {
        add(choice, "isOriginal", "false");
    }
}

void writeVariable(pugi::xml_node node, const Variable& variable) {
    add(node, "name", variable.name);
    addUnlessEmpty(node, "alias", variable.alias);
    addUnlessEmpty(node, "label", variable.label);
    addUnlessEmpty(node, "group", variable.group);
    if (variable.type != ValueType::None) {
        add(node, "varType",
            variable.type == ValueType::Boolean ? "BOOL" : typeName(variable.type));
    }
    add(node, "fieldSize", std::to_string(variable.size));
    writeRanges(node, variable);
    writeCodes(node, variable);
    addIf(node, "decimals", variable.raw ? variable.raw->decimals : variable.decimals);
    addUnlessEmpty(node, "documentation", variable.documentation);
    if (variable.tag >= 0) {
        add(node, "tag", std::to_string(variable.tag));
    }
    addIf(node, "sensitive", variable.sensitive);
    writeLabels(node.append_child("valueLabels"), variable);
    node.append_child("datasetID");
    add(node, "filename", variable.fileName);
    writeStorage(node.append_child("varDicChoice"), variable);
}

void writeEntity(pugi::xml_node node, const Entity& entity) {
    add(node, "name", entity.name);
    addUnlessEmpty(node, "alias", entity.alias);
    addUnlessEmpty(node, "label", entity.label);
    addIf(node, "selectable", entity.selectable);
    addUnlessEmpty(node, "refCode", nameOf(entity.codeVar));
    addUnlessEmpty(node, "refLabel", nameOf(entity.labelVar));
    add(node, "filename", entity.fileName);
    addUnlessEmpty(node, "weightVar", fullNameOf(entity.weightVar));
    addIf(node, "isVirtual", entity.isVirtual);
    addUnlessEmpty(node, "documentation", entity.documentation);
    if (entity.tag >= 0) {
        add(node, "tag", std::to_string(entity.tag));
    }
    addIf(node, "hidden", entity.hidden);
    addIf(node, "sensitive", entity.sensitive);
    for (const auto& variable : entity.variables) {
        if (isStored(*variable)) {
            writeVariable(node.append_child("variable"), *variable);
        }
    }
    for (const auto& child : entity.children) {
        writeEntity(node.append_child("entity"), *child);
    }
}

struct StringWriter : pugi::xml_writer {
    std::string text;
    void write(const void* data, std::size_t size) override {
        text.append(static_cast<const char*>(data), size);
    }
};

} // namespace

std::string writeDicx(const Dictionary& dictionary) {
    pugi::xml_document document;
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "UTF-8";
    pugi::xml_node top = document.append_child("kelDictionary_XML");
    writeGeneral(top.append_child("general"), dictionary);
    if (dictionary.root != nullptr) {
        writeEntity(top.append_child("root"), *dictionary.root);
    }
    StringWriter writer;
    document.save(writer, "    ", pugi::format_default, pugi::encoding_utf8);
    return std::move(writer.text);
}

} // namespace kelx::catalog

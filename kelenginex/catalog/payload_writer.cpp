// SPDX-License-Identifier: Apache-2.0
// Writes the payload of the binary form: everything of the model but what is open at the moment.
#include "catalog/payload.h"
#include "catalog/reader.h"
#include "catalog/type_names.h"

#include <nlohmann/json.hpp>

namespace kelx::catalog {

namespace {

using json = nlohmann::ordered_json;

void put(json& node, const char* key, const std::string& text) {
    if (!text.empty()) {
        node[key] = text;
    }
}

template <typename T>
void put(json& node, const char* key, const std::optional<T>& value) {
    if (value) {
        node[key] = *value;
    }
}

void putUnless(json& node, const char* key, bool value, bool usual) {
    if (value != usual) {
        node[key] = value;
    }
}

void putReference(json& node, const char* key, const Variable* variable) {
    if (variable != nullptr && isStored(*variable)) {
        node[key] = variable->fullName();
    }
}

json rawLayout(const storage::RawLayout& raw) {
    return {{"type", storage::rawTypeName(raw.type)},
            {"size", raw.size},
            {"decimals", raw.decimals},
            {"valueType", typeName(raw.valueType)}};
}

void putLists(json& node, const Variable& variable) {
    for (const Range& range : variable.ranges) {
        node["ranges"].push_back(json::array({range.kind, range.minimum, range.maximum}));
    }
    for (const auto& [value, label] : variable.valueLabels) {
        node["labels"].push_back(json::array({value, label}));
    }
}

json variableNode(const Variable& variable) {
    json node = {{"name", variable.name}, {"type", typeName(variable.type)}};
    put(node, "label", variable.label);
    put(node, "alias", variable.alias);
    put(node, "group", variable.group);
    put(node, "documentation", variable.documentation);
    put(node, "metadata", variable.metadata);
    put(node, "file", variable.fileName);
    node["size"] = variable.size;
    put(node, "decimals", variable.decimals);
    put(node, "notapp", variable.notapp);
    put(node, "missing", variable.missing);
    node["state"] = variable.state;
    node["tag"] = variable.tag;
    putUnless(node, "active", variable.active, true);
    putUnless(node, "local", variable.local, false);
    putUnless(node, "hidden", variable.hidden, false);
    put(node, "sensitive", variable.sensitive);
    putLists(node, variable);
    if (variable.raw) {
        node["raw"] = rawLayout(*variable.raw);
    }
    return node;
}

json entityNode(const Entity& entity) {
    json node = {{"name", entity.name}};
    put(node, "label", entity.label);
    put(node, "alias", entity.alias);
    put(node, "documentation", entity.documentation);
    put(node, "metadata", entity.metadata);
    put(node, "file", entity.fileName);
    putUnless(node, "selectable", entity.selectable, false);
    putUnless(node, "virtual", entity.isVirtual, false);
    putUnless(node, "active", entity.active, true);
    putUnless(node, "hidden", entity.hidden, false);
    node["tag"] = entity.tag;
    put(node, "sensitive", entity.sensitive);
    putReference(node, "code", entity.codeVar);
    putReference(node, "labelVariable", entity.labelVar);
    putReference(node, "weight", entity.weightVar);
    for (const auto& variable : entity.variables) {
        if (isStored(*variable)) {
            node["variables"].push_back(variableNode(*variable));
        }
    }
    for (const auto& child : entity.children) {
        node["entities"].push_back(entityNode(*child));
    }
    return node;
}

json generalNode(const Dictionary& dictionary) {
    json node = {{"type", dictionary.typeType}};
    put(node, "name", dictionary.name);
    put(node, "label", dictionary.label);
    put(node, "author", dictionary.author);
    put(node, "created", dictionary.created);
    put(node, "updated", dictionary.updated);
    return node;
}

} // namespace

std::string describeVariable(const Variable& variable) {
    return variableNode(variable).dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string writePayload(const Dictionary& dictionary) {
    json document = {{"format", payloadFormat},
                     {"version", payloadVersion},
                     {"general", generalNode(dictionary)}};
    if (dictionary.root != nullptr) {
        document["root"] = entityNode(*dictionary.root);
    }
    // Texts that a caller handed over in another encoding must not prevent saving.
    return document.dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace kelx::catalog

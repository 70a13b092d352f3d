// SPDX-License-Identifier: Apache-2.0
// Reads the payload of the binary form; its layout is told in docs/format.md.
#include "catalog/assembly.h"
#include "catalog/payload.h"
#include "catalog/reader.h"
#include "catalog/type_names.h"

#include <nlohmann/json.hpp>

#include <limits>

namespace kelx::catalog {

namespace {

using nlohmann::json;

class PayloadReader {
public:
    explicit PayloadReader(const std::filesystem::path& file) : assembly_(file) {}

    std::unique_ptr<Dictionary> read(const std::string& payload);

private:
    json parse(const std::string& payload) const;
    void readGeneral(const json& general);
    void readEntity(const json& node, Entity* parent, int depth);
    void readVariable(const json& node, Entity& entity);
    void readRanges(const json& node, Variable& variable);
    void readLabels(const json& node, Variable& variable);
    void readRawLayout(const json& node, Variable& variable);
    const json& member(const json& node, const char* key) const;
    const json& list(const json& node, const char* key) const;
    std::string text(const json& node, const char* key) const;
    bool truth(const json& node, const char* key, bool otherwise) const;
    std::optional<int> integer(const json& node, const char* key) const;
    std::optional<double> number(const json& node, const char* key) const;
    double asNumber(const json& value, const char* key) const;
    int asInteger(const json& value, const char* key) const;
    [[noreturn]] void failAt(const char* key) const;

    Assembly assembly_;
    std::string place_ = "the dictionary";
};

const json nothing;

json PayloadReader::parse(const std::string& payload) const {
    if (payload.size() > Limits::fileBytes) {
        assembly_.fail("the dictionary is larger than 256 MB");
    }
    const auto shallow = [this](int depth, json::parse_event_t, json&) {
        // Every level of entities is an object within an array.
        if (depth > 2 * Limits::depth + 8) {
            assembly_.fail("the dictionary is nested too deeply");
        }
        return true;
    };
    try {
        return json::parse(payload, shallow);
    } catch (const json::exception&) {
        assembly_.fail("the dictionary in it is no valid JSON text");
    }
}

std::unique_ptr<Dictionary> PayloadReader::read(const std::string& payload) {
    const json document = parse(payload);
    if (text(document, "format") != payloadFormat) {
        assembly_.fail("what it holds is no dictionary");
    }
    const auto version = integer(document, "version");
    if (!version || *version < 1 || *version > payloadVersion) {
        assembly_.fail("this version reads dictionaries up to version " +
                       std::to_string(payloadVersion) + ", not " +
                       (version ? std::to_string(*version) : std::string("one without a version")));
    }
    readGeneral(member(document, "general"));
    readEntity(member(document, "root"), nullptr, 1);
    return assembly_.finish();
}

void PayloadReader::readGeneral(const json& general) {
    Dictionary& dictionary = assembly_.dictionary();
    dictionary.name = text(general, "name");
    dictionary.label = text(general, "label");
    dictionary.author = text(general, "author");
    dictionary.created = text(general, "created");
    dictionary.updated = text(general, "updated");
    dictionary.typeType = text(general, "type");
}

void PayloadReader::readEntity(const json& node, Entity* parent, int depth) {
    Entity& entity = *assembly_.addEntity(parent, text(node, "name"), depth);
    place_ = "entity " + entity.name;
    entity.label = text(node, "label");
    entity.alias = text(node, "alias");
    entity.documentation = text(node, "documentation");
    entity.metadata = text(node, "metadata");
    entity.fileName = text(node, "file");
    entity.selectable = truth(node, "selectable", false);
    entity.isVirtual = truth(node, "virtual", false);
    entity.active = truth(node, "active", true);
    entity.hidden = truth(node, "hidden", false);
    entity.tag = integer(node, "tag").value_or(-1);
    entity.sensitive = integer(node, "sensitive");
    assembly_.refer(
        {&entity, text(node, "code"), text(node, "labelVariable"), text(node, "weight")});
    for (const json& child : list(node, "variables")) {
        readVariable(child, entity);
    }
    for (const json& child : list(node, "entities")) {
        readEntity(child, &entity, depth + 1);
    }
}

void PayloadReader::readVariable(const json& node, Entity& entity) {
    Variable& variable = *assembly_.addVariable(entity, text(node, "name"));
    place_ = "variable " + variable.fullName();
    variable.label = text(node, "label");
    variable.alias = text(node, "alias");
    variable.group = text(node, "group");
    variable.documentation = text(node, "documentation");
    variable.metadata = text(node, "metadata");
    variable.fileName = text(node, "file");
    const auto type = typeFromName(text(node, "type"));
    if (!type) {
        failAt("type");
    }
    variable.type = *type;
    variable.size = integer(node, "size").value_or(0);
    variable.decimals = integer(node, "decimals");
    variable.notapp = number(node, "notapp");
    variable.missing = number(node, "missing");
    variable.state = integer(node, "state").value_or(1);
    variable.tag = integer(node, "tag").value_or(-1);
    variable.active = truth(node, "active", true);
    variable.local = truth(node, "local", false);
    variable.hidden = truth(node, "hidden", false);
    variable.sensitive = integer(node, "sensitive");
    readRanges(node, variable);
    readLabels(node, variable);
    readRawLayout(node, variable);
}

void PayloadReader::readRanges(const json& node, Variable& variable) {
    for (const json& entry : list(node, "ranges")) {
        if (!entry.is_array() || entry.size() != 3) {
            failAt("ranges");
        }
        Range range{asInteger(entry[0], "ranges"), asNumber(entry[1], "ranges"),
                    asNumber(entry[2], "ranges")};
        if (range.kind < 1 || range.kind > 10) {
            failAt("ranges");
        }
        variable.ranges.push_back(range);
    }
}

void PayloadReader::readLabels(const json& node, Variable& variable) {
    for (const json& entry : list(node, "labels")) {
        if (!entry.is_array() || entry.size() != 2 || !entry[0].is_string() ||
            !entry[1].is_string()) {
            failAt("labels");
        }
        variable.valueLabels.emplace_back(entry[0].get<std::string>(), entry[1].get<std::string>());
    }
}

void PayloadReader::readRawLayout(const json& node, Variable& variable) {
    const json& raw = member(node, "raw");
    if (raw.is_null()) {
        return;
    }
    const auto type = storage::rawTypeFromName(text(raw, "type"));
    const auto valueType = typeFromName(text(raw, "valueType"));
    const int size = integer(raw, "size").value_or(0);
    if (!type || !valueType || size < 1) {
        failAt("raw");
    }
    variable.raw =
        storage::RawLayout{*type, size, integer(raw, "decimals").value_or(0), *valueType};
}

const json& PayloadReader::member(const json& node, const char* key) const {
    if (!node.is_object()) {
        assembly_.fail(place_ + " is not described as an object with \"" + key + "\"");
    }
    const auto found = node.find(key);
    return found == node.end() ? nothing : *found;
}

const json& PayloadReader::list(const json& node, const char* key) const {
    const json& value = member(node, key);
    if (!value.is_null() && !value.is_array()) {
        failAt(key);
    }
    return value;
}

std::string PayloadReader::text(const json& node, const char* key) const {
    const json& value = member(node, key);
    if (value.is_null()) {
        return {};
    }
    if (!value.is_string()) {
        failAt(key);
    }
    return value.get<std::string>();
}

bool PayloadReader::truth(const json& node, const char* key, bool otherwise) const {
    const json& value = member(node, key);
    if (value.is_null()) {
        return otherwise;
    }
    if (!value.is_boolean()) {
        failAt(key);
    }
    return value.get<bool>();
}

std::optional<int> PayloadReader::integer(const json& node, const char* key) const {
    const json& value = member(node, key);
    return value.is_null() ? std::nullopt : std::optional(asInteger(value, key));
}

std::optional<double> PayloadReader::number(const json& node, const char* key) const {
    const json& value = member(node, key);
    return value.is_null() ? std::nullopt : std::optional(asNumber(value, key));
}

double PayloadReader::asNumber(const json& value, const char* key) const {
    if (!value.is_number()) {
        failAt(key);
    }
    return value.get<double>();
}

int PayloadReader::asInteger(const json& value, const char* key) const {
    const bool unsignedTooLarge =
        value.is_number_unsigned() &&
        value.get<std::uint64_t>() > std::uint64_t{std::numeric_limits<int>::max()};
    if (!value.is_number_integer() || unsignedTooLarge ||
        value.get<std::int64_t>() < std::numeric_limits<int>::min() ||
        value.get<std::int64_t>() > std::numeric_limits<int>::max()) {
        failAt(key);
    }
    return value.get<int>();
}

void PayloadReader::failAt(const char* key) const {
    assembly_.fail(place_ + ": \"" + key + "\" has no valid value");
}

} // namespace

std::unique_ptr<Dictionary> parsePayload(const std::string& payload,
                                         const std::filesystem::path& file) {
    return PayloadReader(file).read(payload);
}

} // namespace kelx::catalog

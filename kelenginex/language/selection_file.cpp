// SPDX-License-Identifier: Apache-2.0
#include "language/selection_file.h"

#include "language/files.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace kelx::language {

namespace {

using nlohmann::json;

constexpr std::uintmax_t largest = 64u << 20;
constexpr int deepest = 8; ///< the format itself needs four levels

json parse(const std::string& content) {
    const auto refuseDepth = [](int depth, json::parse_event_t, json&) {
        if (depth > deepest)
            throw std::runtime_error("is nested too deeply to be a selection");
        return true;
    };
    try {
        return json::parse(content, refuseDepth);
    } catch (const json::parse_error& fault) {
        throw std::runtime_error("is no JSON: the fault is at byte " + std::to_string(fault.byte));
    }
}

const std::string& textOf(const json& value, const std::string& what) {
    if (!value.is_string())
        throw std::runtime_error("has " + what + " that is not a text in quotes");
    return value.get_ref<const std::string&>();
}

SelectionFileContent::Group groupOf(const json& value) {
    if (!value.is_object() || !value.contains("entity") || !value.contains("codes"))
        throw std::runtime_error("has a selection without \"entity\" and \"codes\"");
    SelectionFileContent::Group group;
    group.entity = textOf(value["entity"], "an entity");
    const json& codes = value["codes"];
    if (!codes.is_array())
        throw std::runtime_error("has \"codes\" of " + group.entity + " that are not a list");
    for (const json& code : codes)
        group.codes.push_back(textOf(code, "a code of " + group.entity));
    return group;
}

} // namespace

SelectionFileContent readSelectionFile(const std::filesystem::path& file) {
    const json root = parse(contentOf(file, largest, "is larger than any selection can be"));
    if (!root.is_object() || !root.contains("selections") || !root["selections"].is_array())
        throw std::runtime_error("has no list \"selections\"");
    SelectionFileContent content;
    if (root.contains("label"))
        content.label = textOf(root["label"], "a label");
    for (const json& group : root["selections"])
        content.groups.push_back(groupOf(group));
    return content;
}

} // namespace kelx::language

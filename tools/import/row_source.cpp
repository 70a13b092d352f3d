// SPDX-License-Identifier: Apache-2.0
#include "import/row_source.h"

#include "import/values.h"

#include <algorithm>
#include <map>
#include <set>

namespace kelx::tools {

namespace {

constexpr std::size_t longestName = 60;

std::string usableName(const std::string& name) {
    std::string usable;
    for (const char c : upperCase(name)) {
        if (isName(std::string_view(&c, 1)))
            usable += c;
        else if (storage::beginsCharacter(c))
            usable += '_';
    }
    usable.resize(std::min(usable.size(), longestName));
    return usable.empty() ? "FIELD" : usable;
}

} // namespace

std::string shownText(const SourceValue& value) {
    return value.kind == SourceValue::Kind::Number ? numberText(value.number)
                                                   : std::string(value.text);
}

std::vector<std::string> makeNames(std::vector<SourceField>& fields) {
    std::vector<std::string> notes;
    std::set<std::string> taken;
    std::map<std::string, int> lastNumber;
    for (SourceField& field : fields) {
        const std::string usable = usableName(field.name);
        field.plan.name = usable;
        while (!taken.insert(field.plan.name).second)
            field.plan.name =
                usable + "_" + std::to_string(++lastNumber.try_emplace(usable, 1).first->second);
        if (field.plan.name != upperCase(field.name))
            notes.push_back(inQuotes(field.name) + " is named " + field.plan.name);
    }
    return notes;
}

} // namespace kelx::tools

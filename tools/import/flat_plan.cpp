// SPDX-License-Identifier: Apache-2.0
#include "import/flat_plan.h"

#include "import/values.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::tools {

namespace {

std::vector<std::string> splitAt(const std::string& text, char sign) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == sign)
            parts.emplace_back();
        else if (c != ' ')
            parts.back() += c;
    }
    return parts;
}

/// The first of them, for messages.
std::string namesOf(const std::vector<SourceField>& fields) {
    constexpr std::size_t shown = 20;
    std::string names;
    for (std::size_t i = 0; i < std::min(shown, fields.size()); ++i)
        names += (i > 0 ? ", " : "") + fields[i].plan.name;
    if (fields.size() > shown)
        names += " and " + std::to_string(fields.size() - shown) + " more";
    return names.empty() ? "none" : names;
}

LevelWish parseLevel(const std::string& text) {
    const std::vector<std::string> parts = splitAt(text, ':');
    if (parts.size() > 3 || !isName(parts[0]))
        throw std::runtime_error(inQuotes(text) +
                                 " is no level; one is written NAME, NAME:KEY or NAME:KEY:LABEL");
    LevelWish wish;
    wish.name = upperCase(parts[0]);
    wish.key = parts.size() > 1 ? parts[1] : "";
    wish.labelled = parts.size() > 2 ? parts[2] : "";
    return wish;
}

void checkWishes(const std::vector<LevelWish>& wishes) {
    for (std::size_t i = 0; i < wishes.size(); ++i) {
        if (i + 1 < wishes.size() && wishes[i].key.empty())
            throw std::runtime_error("The level " + wishes[i].name +
                                     " needs a key, since levels lie under it: write " +
                                     wishes[i].name + ":FIELD.");
        for (std::size_t j = 0; j < i; ++j)
            if (wishes[j].name == wishes[i].name)
                throw std::runtime_error("The level " + wishes[i].name + " is given twice.");
    }
}

} // namespace

std::vector<LevelWish> parseLevels(const std::string& text) {
    std::vector<LevelWish> wishes;
    for (const std::string& part : splitAt(text, ','))
        wishes.push_back(parseLevel(part));
    checkWishes(wishes);
    return wishes;
}

std::size_t fieldNamed(const std::vector<SourceField>& fields, const std::string& name) {
    const std::string wanted = upperCase(name);
    const auto found = std::find_if(fields.begin(), fields.end(), [&](const SourceField& field) {
        return field.plan.name == wanted || upperCase(field.name) == wanted;
    });
    if (found == fields.end())
        throw std::runtime_error("There is no field " + inQuotes(name) +
                                 " in the file, which has " + namesOf(fields) + ".");
    return static_cast<std::size_t>(found - fields.begin());
}

FlatPlan chainPlan(const std::vector<LevelWish>& wishes, std::vector<SourceField>& fields) {
    FlatPlan plan;
    plan.shapes.resize(1);
    plan.levelOf.assign(fields.size(), noLevel);
    const auto place = [&](const std::string& name, FieldRole role) {
        const std::size_t field = fieldNamed(fields, name);
        if (plan.levelOf[field] != noLevel)
            throw std::runtime_error("The field " + fields[field].plan.name +
                                     " cannot serve two levels.");
        plan.levelOf[field] = plan.levels.size() - 1;
        fields[field].plan.role = role;
        return field;
    };
    for (const LevelWish& wish : wishes) {
        FlatLevel& level = plan.levels.emplace_back();
        level.plan.name = wish.name;
        level.parent = plan.levels.size() > 1 ? plan.levels.size() - 2 : noLevel;
        plan.shapes[0].push_back(plan.levels.size() - 1);
        if (!wish.key.empty())
            plan.levels.back().key = place(wish.key, FieldRole::Key);
        if (!wish.labelled.empty())
            place(wish.labelled, FieldRole::Label);
    }
    plan.linkLevels();
    return plan;
}

void FlatPlan::linkLevels() {
    for (std::size_t i = 0; i < levels.size(); ++i)
        for (std::size_t above = levels[i].parent; above != noLevel; above = levels[above].parent)
            levels[above].below.push_back(i);
}

void FlatPlan::assignFields(const std::vector<SourceField>& fields) {
    for (FlatLevel& level : levels) {
        level.fields.clear();
        level.plan.fields.clear();
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (levelOf[i] == noLevel)
            continue;
        levels[levelOf[i]].fields.push_back(i);
        levels[levelOf[i]].plan.fields.push_back(fields[i].plan);
    }
}

} // namespace kelx::tools

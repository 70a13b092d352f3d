// SPDX-License-Identifier: Apache-2.0
#include "language/run_checker.h"

#include "language/files.h"
#include "language/selection_file.h"
#include "language/text.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::language {

namespace {

std::size_t sizeOf(const AreaSelection& selection) {
    std::size_t bytes = selection.label.size();
    for (const AreaSelection::Area& area : selection.areas)
        bytes += sizeof(area) + area.code.size();
    return bytes;
}

/// What a selection without a label goes by: its codes, the first ones of many.
std::string labelOf(const std::vector<AreaSelection::Area>& areas) {
    constexpr std::size_t most = 10;
    std::string label;
    for (std::size_t i = 0; i < std::min(most, areas.size()); ++i)
        label += (i > 0 ? ", " : "") + areas[i].code;
    return areas.size() > most ? label + " and " + std::to_string(areas.size() - most) + " more"
                               : label;
}

std::size_t sizeOf(const RunSettings& settings) {
    std::size_t bytes = sizeof(settings) + settings.name.size();
    for (const auto* text : {&settings.title, &settings.filterLabel, &settings.tableStyle,
                             &settings.graphStyle, &settings.mapStyle})
        bytes += *text ? (*text)->size() : 0;
    return bytes + (settings.selection ? sizeOf(*settings.selection) : 0);
}

} // namespace

RunSettings RunChecker::start() const {
    RunSettings settings;
    settings.weightMode = weight_ != nullptr              ? WeightMode::Explicit
                          : context_.options().autoWeight ? WeightMode::Automatic
                                                          : WeightMode::None;
    settings.weight = weight_;
    settings.tableStyle = tableStyle_;
    return settings;
}

CheckedSettings RunChecker::defaults() const {
    return {std::make_shared<const RunSettings>(start()), {}};
}

CheckedSettings RunChecker::setWeight(ExpressionPtr weight, const CheckedSettings& current) {
    if (weight == nullptr)
        return current;
    weight_ = std::move(weight);
    RunSettings settings = *current.settings;
    settings.weightMode = WeightMode::Explicit;
    settings.weight = weight_;
    return {std::make_shared<const RunSettings>(std::move(settings)), current.selectionPosition};
}

CheckedSettings RunChecker::setStyle(const ast::StyleCommand& style,
                                     const CheckedSettings& current) {
    if (!context_.mayKeep(sizeOf(*current.settings), {}))
        return current;
    tableStyle_ = resolvedFile(style.file, context_.options().baseFolder).string();
    RunSettings settings = *current.settings;
    settings.tableStyle = tableStyle_;
    return {std::make_shared<const RunSettings>(std::move(settings)), current.selectionPosition};
}

void RunChecker::setStyles(const ast::RunDefinition& run, RunSettings& settings) const {
    const auto set = [&](std::optional<std::string>& into, const std::optional<std::string>& file) {
        if (file)
            into = resolvedFile(*file, context_.options().baseFolder).string();
    };
    set(settings.tableStyle, run.tableStyle);
    set(settings.graphStyle, run.graphStyle);
    set(settings.mapStyle, run.mapStyle);
}

/// The tables' first dimension is its compound code, so it must have one.
const Entity* RunChecker::areaBreak(const ast::Name& name) {
    const Entity* entity = expressions_.entity(name.name, name.position);
    if (entity == nullptr || entity->hasCode())
        return entity;
    context_.report(Error::NoCode, name.position, {entity->name});
    return nullptr;
}

CheckedSettings RunChecker::check(const ast::RunDefinition& run) {
    checkDictionary(run);
    RunSettings settings = start();
    settings.name = run.name;
    settings.title = run.title;
    settings.decimals = run.decimals;
    settings.filterLabel = run.filterLabel;
    setStyles(run, settings);
    if (run.areaBreak)
        settings.areaBreak = areaBreak(*run.areaBreak);
    if (!std::holds_alternative<std::monostate>(run.selection))
        settings.selection = selection(run);
    if (run.selectionLabel && !run.selectionLabel->empty()) {
        if (!settings.selection)
            settings.selection.emplace();
        settings.selection->label = *run.selectionLabel;
    }
    if (run.filter != nullptr)
        settings.filter = expressions_.condition(*run.filter, "FILTER");
    if (run.weightMode) {
        settings.weightMode = *run.weightMode;
        settings.weight =
            run.weight != nullptr ? expressions_.number(*run.weight, "WEIGHT") : nullptr;
    }
    return {std::make_shared<const RunSettings>(std::move(settings)), run.selectionPosition};
}

/// A program may be kept beside its dictionary's copy elsewhere: the same name will do.
void RunChecker::checkDictionary(const ast::RunDefinition& run) {
    const std::filesystem::path& open = context_.dictionary().file;
    if (!run.dictionary || open.empty())
        return;
    const std::filesystem::path told = resolvedFile(*run.dictionary, context_.options().baseFolder);
    std::error_code missing;
    const bool same = lowerCase(told.filename().string()) == lowerCase(open.filename().string()) ||
                      std::filesystem::equivalent(told, open, missing);
    if (!same)
        context_.report(Warning::OtherDictionary, run.dictionaryPosition,
                        {inQuotes(*run.dictionary), inQuotes(open.filename().string())});
}

AreaSelection RunChecker::selection(const ast::RunDefinition& run) {
    if (const auto* file = std::get_if<ast::SelectionFile>(&run.selection))
        return fromFile(file->file, run.selectionPosition);
    if (const auto* areas = std::get_if<ast::InlineSelection>(&run.selection))
        return fromInline(*areas);
    AreaSelection result;
    const auto& node = std::get<ast::NodePtr>(run.selection);
    if (node != nullptr)
        result.expression = expressions_.condition(*node, "SELECTION");
    if (result.expression != nullptr)
        result.label = result.expression->text;
    return result;
}

AreaSelection RunChecker::fromFile(const std::string& file, Position position) {
    AreaSelection result;
    if (!context_.mayKeep(0, position))
        return result;
    SelectionFileContent content;
    const auto path = resolvedFile(file, context_.options().baseFolder);
    context_.files().read(path);
    try {
        content = readSelectionFile(path);
    } catch (const std::runtime_error& fault) {
        context_.report(Error::SelectionFile, position, {inQuotes(file), fault.what()});
        return result;
    }
    result.label = content.label;
    for (const SelectionFileContent::Group& group : content.groups) {
        const Entity* entity = context_.names().entity(group.entity);
        if (entity == nullptr) {
            context_.report(Error::SelectionFile, position,
                            {inQuotes(file), "names the entity " + inQuotes(group.entity) +
                                                 ", which the dictionary does not have"});
            continue;
        }
        if (!group.codes.empty() && !entity->hasCode()) {
            context_.report(Error::NoCode, position, {entity->name});
            continue;
        }
        for (const std::string& code : group.codes)
            result.areas.push_back({entity, code, position});
    }
    if (result.label.empty())
        result.label = labelOf(result.areas);
    if (!context_.mayKeep(sizeOf(result), position))
        result.areas.clear();
    return result;
}

AreaSelection RunChecker::fromInline(const ast::InlineSelection& areas) {
    AreaSelection result;
    for (const ast::SelectionArea& area : areas) {
        addArea(result, expressions_.entity(area.entity, area.position), area.code, area.position);
        result.label += (result.label.empty() ? "" : ", ") + area.label.value_or(area.code);
    }
    return result;
}

void RunChecker::addArea(AreaSelection& selection, const Entity* entity, const std::string& code,
                         Position position) {
    if (entity == nullptr)
        return;
    if (entity->hasCode())
        selection.areas.push_back({entity, code, position});
    else
        context_.report(Error::NoCode, position, {entity->name});
}

void checkAreas(CheckerContext& context, const CheckedSettings& run, const Entity& unit) {
    const auto& areas = run.settings->selection->areas;
    if (areas.empty() || !context.isNew(run.settings, unit))
        return;
    const bool reachable = std::any_of(areas.begin(), areas.end(), [&](const auto& area) {
        return area.entity->isAncestorOf(unit);
    });
    if (!reachable)
        context.report(Warning::SelectionBelow, run.selectionPosition,
                       {areas.front().entity->name, unit.name});
}

} // namespace kelx::language

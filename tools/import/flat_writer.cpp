// SPDX-License-Identifier: Apache-2.0
#include "import/flat_writer.h"

#include "storage/error.h"

namespace kelx::tools {

using storage::ValueType;

FlatWriter::FlatWriter(const FlatPlan& plan, const FlatScan& scan,
                       const std::vector<catalog::Entity*>& entities,
                       const std::filesystem::path& folder,
                       const std::shared_ptr<const storage::Secret>& key)
    : plan_(plan), rows_(scan.rowsRead()), levels_(plan.levels.size()) {
    for (std::size_t i = 0; i < levels_.size(); ++i) {
        const FlatLevel& level = plan.levels[i];
        const catalog::Entity& entity = *entities[i];
        levels_[i].pointers = std::make_unique<storage::PointerWriter>(folder / entity.fileName);
        if (level.parent != noLevel)
            levels_[level.parent].children.push_back(i);
        for (std::size_t at = 0; at < level.fields.size(); ++at) {
            const std::size_t field = level.fields[at];
            const catalog::Variable& variable = *entity.variables[at];
            Target target{field,
                          &scan.fields()[field].plan,
                          catalog::ValueRule(variable),
                          storage::ColumnWriter::create(folder / variable.fileName,
                                                        planFor(scan.summary(field), key)),
                          {}};
            target.told.name = variable.name;
            target.told.type = variable.type;
            target.told.coded = target.rule.isSet();
            target.told.conflicts = scan.conflicts(field);
            levels_[i].targets.push_back(std::move(target));
        }
    }
}

void FlatWriter::write(RowSource& source, Faults& faults) {
    RowSplitter splitter(source, plan_, faults, true);
    while (splitter.next())
        for (std::size_t i = splitter.firstNew(); i < splitter.depth(); ++i)
            begin(splitter.levels()[i], source);
    if (splitter.rowsRead() != rows_)
        throw storage::FileError(source.name(), "was changed while it was read");
    finish(splitter);
}

void FlatWriter::begin(std::size_t number, const RowSource& source) {
    Level& level = levels_[number];
    for (const std::size_t child : level.children) {
        if (level.records > 0)
            levels_[child].pointers->addParent(levels_[child].inParent);
        levels_[child].inParent = 0;
    }
    ++level.records;
    ++level.inParent;
    for (Target& target : level.targets)
        add(target, source.value(target.field));
}

void FlatWriter::add(Target& target, const SourceValue& value) {
    TypedValue typed;
    if (!readValue(value, *target.plan, typed).empty()) {
        ++target.told.faulty;
        typed = {};
    }
    addValue(*target.writer, target.plan->type, typed);
    if (typed.blank) {
        ++target.told.blanks;
        return;
    }
    if (!target.told.coded)
        return;
    const ValueType type = target.plan->type;
    const bool expected = type == ValueType::String ? target.rule.expects(typed.text)
                          : type == ValueType::Real
                              ? target.rule.expects(typed.real)
                              : target.rule.expects(static_cast<double>(typed.integer));
    target.told.outside += expected ? 0 : 1;
}

void FlatWriter::finish(const RowSplitter& splitter) {
    for (std::size_t i = 0; i < levels_.size(); ++i) {
        Level& level = levels_[i];
        const std::size_t parent = plan_.levels[i].parent;
        if (parent == noLevel || levels_[parent].records > 0)
            level.pointers->addParent(level.inParent);
        level.pointers->commit();
        ImportReport::Level& told = report_.emplace_back();
        told.name = plan_.levels[i].plan.name;
        told.records = level.records;
        told.orphans = splitter.orphans(i);
        told.duplicates = splitter.duplicates(i);
        for (Target& target : level.targets) {
            target.writer->commit();
            told.variables.push_back(std::move(target.told));
        }
    }
    if (!report_.empty())
        report_.back().faultyRows = splitter.faultyRows();
}

} // namespace kelx::tools

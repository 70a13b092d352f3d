// SPDX-License-Identifier: Apache-2.0
#include "execution/list_maker.h"

#include "execution/list_column.h"
#include "execution/record_weights.h"
#include "plan/area_codes.h"

#include <algorithm>
#include <utility>

namespace kelx::execution {
namespace {

/// The numbers of the records that pass.
class ListPart final : public TablePart {
public:
    ListPart(const language::TableCommand& command, const Entity& unit, NodePool& nodes) {
        if (command.filter)
            filter_ = makeFilter(command.filter, unit, nodes);
    }

    std::vector<std::uint64_t> records;

    bool mayPass(const plan::RecordRange& records) const override {
        return !filter_ || filter_->mayPass(records);
    }
    void add(Frames& frames, const std::uint8_t* mask) override {
        const Frame& frame = frames.baseFrame();
        mask = passingMask(frames, mask, filter_.get(), nullptr, mask_);
        for (std::size_t i = 0; i < frame.count; ++i) {
            if (mask == nullptr || mask[i] != 0)
                records.push_back(frame.begin + i);
        }
    }

private:
    std::unique_ptr<RecordFilter> filter_;
    std::vector<std::uint8_t> mask_;
};

class ListMaker : public TableMaker {
public:
    ListMaker(const plan::PlannedTable& table, const Entity& unit)
        : command_(*table.command), unit_(unit), list_(std::make_shared<ListResult>()) {}

    std::unique_ptr<TablePart> makePart(NodePool& nodes, SourcePool&) override {
        return std::make_unique<ListPart>(command_, unit_, nodes);
    }
    bool inOrder() const override { return true; }
    bool take(TablePart& part, const GoOn&) override {
        std::vector<std::uint64_t>& found = static_cast<ListPart&>(part).records;
        list_->records.insert(list_->records.end(), found.begin(), found.end());
        found.clear();
        const std::size_t most = std::min(mostRows, mostListValues / (command_.columns.size() + 2));
        if (list_->records.size() > most)
            throwTooManyRows(command_, most);
        return true;
    }
    double finishing(double records) const override {
        return records * static_cast<double>(command_.columns.size() + 2);
    }

    TableResult finish(Progress& progress) override {
        const bool view = command_.kind == language::TableKind::View;
        const std::size_t steps = command_.columns.size() + 2;
        std::size_t step = 0;
        const auto next = [&] { progress.reach(sinkUnits * ++step / steps); };
        list_->codes = codes(progress);
        next();
        if (unit_.labelVar != nullptr)
            list_->labels = listed(*unit_.labelVar, progress);
        for (const language::ListColumn& column : command_.columns) {
            next();
            list_->columns.emplace_back();
            if (column.variable)
                list_->columns.back() =
                    listColumn(*column.variable, unit_, list_->records,
                               view ? Shown::StoredCodes : Shown::ValidValues, progress);
        }
        TableResult result;
        result.command = &command_;
        result.list = std::move(list_);
        return result;
    }

private:
    ListValues codes(Progress& progress) const {
        ListValues values;
        values.values.reserve(list_->records.size());
        plan::CompoundCodes codes(unit_);
        for (const std::uint64_t record : list_->records) {
            progress.check();
            if (unit_.codeVar != nullptr)
                values.values.emplace_back(codes.at(record));
            else
                values.values.emplace_back(static_cast<std::int64_t>(record + 1));
        }
        return values;
    }

    ListValues listed(const catalog::Variable& variable, Progress& progress) const {
        language::Expression expression;
        expression.operation = language::Operation::VariableValue;
        expression.variable = &variable;
        expression.entity = &unit_;
        expression.type = variable.column()->info().type;
        return listColumn(expression, unit_, list_->records, Shown::StoredCodes, progress);
    }

    const language::TableCommand& command_;
    const Entity& unit_;
    std::shared_ptr<ListResult> list_;
};

} // namespace

std::unique_ptr<TableMaker> makeListMaker(const plan::PlannedTable& table, const Entity& unit) {
    return std::make_unique<ListMaker>(table, unit);
}

} // namespace kelx::execution

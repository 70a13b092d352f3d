// SPDX-License-Identifier: Apache-2.0
#include "import/csv_importer.h"

#include "import/database_builder.h"
#include "import/level_scan.h"
#include "import/level_writer.h"
#include "import/values.h"
#include "storage/error.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace kelx::tools {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

struct Level {
    const LevelPlan* plan = nullptr;
    fs::path file;
    std::size_t parent = none;
    std::unique_ptr<LevelScan> scan;
    catalog::Entity* entity = nullptr;
};

class Importer {
public:
    explicit Importer(const ImportRequest& request)
        : request_(request), book_(readCodebook(request.codebook)), faults_(request.tolerant) {}

    ImportReport run() {
        listLevels();
        placeLevels();
        checkCodebook();
        measureFiles();
        for (Level& level : levels_)
            scan(level);
        buildDictionary();
        write();
        return report();
    }

private:
    Level& levelNamed(const std::string& name) {
        const auto found = std::find_if(levels_.begin(), levels_.end(), [&](const Level& level) {
            return level.plan->name == upperCase(name);
        });
        if (found == levels_.end())
            throw std::runtime_error(name + " is none of the levels.");
        return *found;
    }

    void listLevels() {
        if (request_.levels.empty())
            throw std::runtime_error("There is no level to import.");
        for (const auto& [name, file] : request_.levels) {
            Level level;
            level.plan = book_.find(upperCase(name));
            level.file = file;
            if (level.plan == nullptr)
                throw std::runtime_error(book_.file + ": the level " + name +
                                         " is not in the codebook.");
            for (const Level& other : levels_)
                if (other.plan == level.plan)
                    throw std::runtime_error("The level " + name + " is given twice.");
            levels_.push_back(std::move(level));
        }
        rootName_ =
            !request_.root.empty() ? upperCase(request_.root) : book_.root.value_or("DATABASE");
        if (!isName(rootName_))
            throw std::runtime_error(inQuotes(rootName_) + " cannot be the name of the root.");
        rootIsLevel_ = levels_.front().plan->name == rootName_;
        for (std::size_t i = 1; i < levels_.size(); ++i)
            if (levels_[i].plan->name == rootName_)
                throw std::runtime_error("The root " + rootName_ + " must be the first level.");
    }

    void placeLevels() {
        for (std::size_t i = 1; i < levels_.size(); ++i)
            levels_[i].parent = i - 1;
        for (const auto& [child, parent] : request_.under) {
            Level& below = levelNamed(child);
            const Level& above = levelNamed(parent);
            if (&above >= &below)
                throw std::runtime_error(above.plan->name + " must be given before " +
                                         below.plan->name + ", which lies under it.");
            below.parent = static_cast<std::size_t>(&above - levels_.data());
        }
    }

    /// A described level without a file is a slip, unless it is the root.
    void checkCodebook() const {
        for (const LevelPlan& plan : book_.levels) {
            const bool given = std::any_of(levels_.begin(), levels_.end(),
                                           [&](const Level& level) { return level.plan == &plan; });
            if (!given && plan.name != rootName_)
                throw LocatedError(book_.file, plan.place,
                                   "the level " + plan.name + " has no file");
        }
    }

    /// Every file is read twice: to check it, and to write its data.
    void measureFiles() {
        for (const Level& level : levels_) {
            std::error_code fault;
            const std::uintmax_t bytes = fs::file_size(level.file, fault);
            bytesToRead_ += fault ? 0 : 2 * bytes;
        }
    }

    void noteBytes(std::uint64_t bytes) {
        bytesRead_ += bytes;
        if (request_.progress)
            request_.progress(bytesRead_, bytesToRead_);
    }

    bool isRoot(const Level& level) const { return rootIsLevel_ && &level == levels_.data(); }

    void scan(Level& level) {
        LevelScan::Position position;
        position.isRoot = isRoot(level);
        for (std::size_t above = level.parent; above != none; above = levels_[above].parent)
            if (!isRoot(levels_[above]))
                position.chain.insert(position.chain.begin(), levels_[above].scan.get());
        level.scan = std::make_unique<LevelScan>(level.file, *level.plan, book_, position, faults_,
                                                 onRead_, request_.separator);
    }

    void buildDictionary() {
        const LevelPlan* plan = book_.find(rootName_);
        builder_.emplace(request_, rootName_, plan != nullptr ? plan->label : "");
        for (Level& level : levels_)
            addEntity(level);
    }

    void addEntity(Level& level) {
        if (isRoot(level)) {
            level.entity = &builder_->root();
        } else {
            catalog::Entity& parent =
                level.parent == none ? builder_->root() : *levels_[level.parent].entity;
            const bool hasKey = level.plan->withRole(FieldRole::Key) != nullptr;
            level.entity = &builder_->addEntity(parent, *level.plan, hasKey && hasBelow(level));
        }
        for (const ColumnSummary& column : level.scan->columns())
            if (column.field->role != FieldRole::ParentKey)
                builder_->addVariable(*level.entity, *column.field, column.decimals);
    }

    bool hasBelow(const Level& level) const {
        return std::any_of(levels_.begin(), levels_.end(), [&](const Level& other) {
            return other.parent != none && &levels_[other.parent] == &level;
        });
    }

    void write() {
        builder_->write([&](const fs::path& folder) {
            for (const Level& level : levels_)
                writeLevel(*level.scan, book_, *level.entity, folder, request_.key, onRead_);
        });
    }

    ImportReport report() const {
        ImportReport report;
        for (const Level& level : levels_) {
            ImportReport::Level& told = report.levels.emplace_back();
            told.name = level.plan->name;
            told.records = level.scan->records();
            told.sorted = !level.scan->order().empty();
            told.orphans = level.scan->orphans();
            told.duplicates = level.scan->duplicates();
            told.faultyRows = level.scan->faultyRows();
            for (const ColumnSummary& column : level.scan->columns())
                if (column.field->role != FieldRole::ParentKey)
                    told.variables.push_back({column.field->name, column.field->type, column.blanks,
                                              column.field->coded, column.outside, column.faulty,
                                              0});
        }
        report.take(faults_);
        return report;
    }

    const ImportRequest& request_;
    Codebook book_;
    Faults faults_;
    std::vector<Level> levels_;
    std::string rootName_;
    bool rootIsLevel_ = false;
    std::uint64_t bytesRead_ = 0, bytesToRead_ = 0;
    const BytesRead onRead_ = [this](std::uint64_t bytes) { noteBytes(bytes); };
    std::optional<DatabaseBuilder> builder_;
};

} // namespace

ImportReport importCsv(const ImportRequest& request) {
    return Importer(request).run();
}

} // namespace kelx::tools

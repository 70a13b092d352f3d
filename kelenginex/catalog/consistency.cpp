// SPDX-License-Identifier: Apache-2.0
#include "catalog/consistency.h"

#include "catalog/column_check.h"
#include "catalog/names.h"
#include "catalog/type_names.h"
#include "storage/error.h"
#include "storage/leftovers.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>

namespace kelx::catalog {

namespace {

namespace fs = std::filesystem;

std::string inWords(const FaultCount& faults, const std::string& one, const std::string& many) {
    std::string text = std::to_string(faults.count) + " " + (faults.count == 1 ? one : many) + ": ";
    for (std::size_t i = 0; i < faults.first.size(); ++i) {
        text += (i > 0 ? "; " : "") + faults.first[i];
    }
    return text + (faults.count > faults.first.size() ? "; ..." : "");
}

/// What is known of an entity before its values are looked at.
struct EntityCheck {
    const Entity* entity = nullptr;
    std::shared_ptr<const storage::PointerFile> pointers;
    std::optional<std::uint64_t> records;
    std::vector<Finding> findings;
};

/// A variable's column, opened without regard to what the entity says.
struct VariableCheck {
    const EntityCheck* entity = nullptr;
    const Variable* variable = nullptr;
    std::shared_ptr<const storage::Column> column;
    std::vector<Finding> findings;

    void find(FindingSeverity severity, const std::string& check, const std::string& found) {
        findings.push_back({severity, variable->entity->name, variable->name,
                            variable->filePath().string(), check, found});
    }
};

class Consistency {
public:
    Consistency(const Dictionary& dictionary, const CheckProgress& progress)
        : dictionary_(dictionary), progress_(progress) {}

    ConsistencyReport run() {
        for (const Entity* entity : dictionary_.entities()) {
            openEntity(*entity);
        }
        lookThroughColumns();
        return report();
    }

private:
    void openEntity(const Entity& entity) {
        EntityCheck& check = entities_[&entity];
        check.entity = &entity;
        openPointers(check);
        std::vector<VariableCheck> opened;
        for (const auto& variable : entity.variables) {
            if (isStored(*variable)) {
                opened.push_back(openVariable(check, *variable));
            }
        }
        settleRecords(check, opened);
        std::move(opened.begin(), opened.end(), std::back_inserter(variables_));
    }

    static void find(EntityCheck& check, const std::string& what, const std::string& found) {
        const Entity& entity = *check.entity;
        check.findings.push_back({FindingSeverity::Error, entity.name, "",
                                  entity.fileName.empty() ? "" : entity.filePath().string(), what,
                                  found});
    }

    void openPointers(EntityCheck& check) {
        const Entity& entity = *check.entity;
        if (entity.parent == nullptr) {
            check.records = 1;
            return;
        }
        if (entity.fileName.empty()) {
            // Under the root, any column tells the number of records.
            if (entity.parent->parent != nullptr) {
                find(check, "Pointers", "the dictionary names no pointer file");
            }
            return;
        }
        std::error_code ignored;
        if (!fs::exists(entity.filePath(), ignored)) {
            find(check, "File", "is not there");
            return;
        }
        try {
            check.pointers = storage::PointerFile::open(entity.filePath());
        } catch (const storage::FileError& fault) {
            find(check, "Pointers", reasonOf(fault));
            return;
        }
        check.records = check.pointers->children();
        const auto parents = entities_[entity.parent].records;
        if (parents && check.pointers->parents() != *parents) {
            find(check, "Pointers",
                 "are for " + std::to_string(check.pointers->parents()) + " records of " +
                     entity.parent->name + ", which has " + std::to_string(*parents));
            check.pointers = nullptr;
        }
    }

    static VariableCheck openVariable(const EntityCheck& entity, const Variable& variable) {
        VariableCheck check{&entity, &variable, nullptr, {}};
        std::error_code ignored;
        if (variable.fileName.empty()) {
            check.find(FindingSeverity::Error, "File", "the dictionary names no data file");
        } else if (!fs::exists(variable.filePath(), ignored)) {
            check.find(FindingSeverity::Error, "File", "is not there");
        } else {
            try {
                check.column = openColumn(entity, variable);
                checkWeight(check);
            } catch (const storage::FileError& fault) {
                check.find(FindingSeverity::Error, "File", reasonOf(fault));
            }
        }
        return check;
    }

    static void checkWeight(VariableCheck& check) {
        const Variable& variable = *check.variable;
        if (variable.entity->weightVar == &variable &&
            check.column->info().type == storage::ValueType::String) {
            check.find(FindingSeverity::Error, "Weight", "holds texts and cannot be a weight");
        }
    }

    static std::shared_ptr<const storage::Column> openColumn(const EntityCheck& entity,
                                                             const Variable& variable) {
        const fs::path file = variable.filePath();
        if (!sameName(file.extension().string(), ".bin")) {
            return storage::Column::open(file, entity.entity->dictionary->key);
        }
        if (!variable.raw) {
            throw storage::FileError(file, "nothing tells the type and size of its values");
        }
        if (!entity.records) {
            throw storage::FileError(file, "cannot be checked while the records of " +
                                               entity.entity->name + " are not known");
        }
        return storage::openRawColumn(file, *variable.raw, *entity.records);
    }

    /// Where all columns agree with each other and not with the pointers, those are at fault.
    static void settleRecords(EntityCheck& check, std::vector<VariableCheck>& variables) {
        std::set<std::uint64_t> numbers;
        for (const VariableCheck& variable : variables) {
            if (variable.column != nullptr) {
                numbers.insert(variable.column->info().records);
            }
        }
        const auto expected = check.records;
        if (!expected && numbers.size() == 1) {
            check.records = *numbers.begin();
        } else if (check.pointers != nullptr && numbers.size() == 1 &&
                   *numbers.begin() != *expected) {
            find(check, "Pointers",
                 "end at record " + std::to_string(*expected) + ", but all columns of " +
                     check.entity->name + " hold " + std::to_string(*numbers.begin()) + " records");
            check.pointers = nullptr;
            check.records = *numbers.begin();
        }
        for (VariableCheck& variable : variables) {
            checkRecords(check, numbers, variable);
        }
        const Entity& entity = *check.entity;
        if (check.records && entity.fileName.empty() && entity.parent != nullptr &&
            entity.parent->parent == nullptr) {
            check.pointers = storage::PointerFile::single(*check.records); // one family
        }
    }

    static void checkRecords(const EntityCheck& check, const std::set<std::uint64_t>& numbers,
                             VariableCheck& variable) {
        if (variable.column == nullptr) {
            return;
        }
        const std::uint64_t records = variable.column->info().records;
        if (check.records && records != *check.records) {
            variable.find(FindingSeverity::Error, "Records",
                          "holds " + std::to_string(records) + " records, but " +
                              check.entity->name + " has " + std::to_string(*check.records));
        } else if (!check.records && numbers.size() > 1) {
            variable.find(FindingSeverity::Error, "Records",
                          "holds " + std::to_string(records) + " records, and other columns of " +
                              check.entity->name + " other numbers");
        }
    }

    void lookThrough(VariableCheck& check) const {
        if (check.column == nullptr) {
            return;
        }
        const Entity& entity = *check.variable->entity;
        const auto& pointers = check.entity->pointers;
        const bool families = entity.codeVar == check.variable && pointers != nullptr &&
                              pointers->children() == check.column->info().records;
        try {
            tell(checkColumn(*check.variable, *check.column, families ? pointers.get() : nullptr,
                             stop_),
                 check);
        } catch (const storage::FileError& fault) {
            check.find(FindingSeverity::Error, "File", reasonOf(fault));
        } catch (const std::exception& fault) {
            check.find(FindingSeverity::Error, "File", fault.what());
        }
    }

    static void tell(const ColumnFaults& faults, VariableCheck& check) {
        if (faults.blocks.count > 0) {
            check.find(FindingSeverity::Error, "Checksum",
                       inWords(faults.blocks, "block cannot be read", "blocks cannot be read"));
        }
        if (faults.blankCodes.count > 0) {
            check.find(FindingSeverity::Error, "Blanks",
                       inWords(faults.blankCodes, "code is blank", "codes are blank"));
        }
        if (faults.doubleCodes.count > 0) {
            check.find(FindingSeverity::Error, "Codes",
                       inWords(faults.doubleCodes, "code stands twice under its parent",
                               "codes stand twice under their parent"));
        }
        if (faults.unexpected.count > 0) {
            check.find(FindingSeverity::Warning, "Values",
                       inWords(faults.unexpected, "value outside labels and ranges",
                               "values outside labels and ranges"));
        }
    }

    /// The calling thread waits and tells how far the others are. Where the system gives no thread
    /// it does the work.
    void lookThroughColumns() {
        const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
        const std::size_t wanted = std::min(cores, variables_.size());
        std::vector<std::thread> threads;
        threads.reserve(wanted);
        while (threads.size() < wanted && start(threads)) {
        }
        if (threads.empty()) {
            work();
        }
        try {
            std::unique_lock lock(mutex_);
            while (done_ < variables_.size()) {
                changed_.wait_for(lock, std::chrono::milliseconds(100));
                if (progress_) {
                    const std::uint64_t done = done_;
                    lock.unlock();
                    progress_(done, variables_.size());
                    lock.lock();
                }
            }
        } catch (...) {
            stop_ = true;
            join(threads);
            throw;
        }
        join(threads);
    }

    /// False where the system gives no more threads.
    bool start(std::vector<std::thread>& threads) {
        try {
            threads.emplace_back([this] { work(); });
        } catch (const std::system_error&) {
            return false;
        }
        return true;
    }

    static void join(std::vector<std::thread>& threads) {
        for (std::thread& thread : threads) {
            thread.join();
        }
    }

    void work() {
        for (std::size_t i = next_++; i < variables_.size(); i = next_++) {
            if (!stop_) {
                lookThrough(variables_[i]);
            }
            const std::lock_guard lock(mutex_);
            ++done_;
            changed_.notify_one();
        }
    }

    /// Data files in the folder that the dictionary does not name.
    void findOrphans(ConsistencyReport& report) const {
        std::set<fs::path> named;
        const auto name = [&](const fs::path& file) {
            std::error_code fault;
            const fs::path real = fs::weakly_canonical(file, fault);
            named.insert(fault ? file : real);
        };
        for (const Entity* entity : dictionary_.entities()) {
            name(entity->filePath());
            for (const auto& variable : entity->variables) {
                name(variable->filePath());
            }
        }
        std::error_code fault;
        fs::path folder = dictionary_.dataFolder.empty() ? dictionary_.file.parent_path()
                                                         : dictionary_.dataFolder;
        folder = fs::weakly_canonical(folder, fault);
        std::set<fs::path> orphans;
        for (fs::directory_iterator at(folder, fault), end; !fault && at != end;
             at.increment(fault)) {
            const std::string extension = lowerCase(at->path().extension().string());
            if ((extension == ".kbf" || extension == ".kpt" || extension == ".bin") &&
                !named.contains(at->path()) &&
                !named.contains(fs::weakly_canonical(at->path(), fault))) {
                orphans.insert(at->path());
            }
        }
        for (const fs::path& file : orphans) {
            report.findings.push_back({FindingSeverity::Warning, "", "", file.string(), "Orphans",
                                       "no variable and no entity names this file"});
        }
        for (const fs::path& file : storage::leftoversIn(folder)) {
            report.findings.push_back({FindingSeverity::Warning, "", "", file.string(), "Orphans",
                                       "a program that was stopped has left it behind"});
        }
    }

    /// Those of codes are faults, and told as such.
    static void noteBlanks(const VariableCheck& check, ConsistencyReport& report) {
        const Variable& variable = *check.variable;
        if (check.column == nullptr || check.column->info().blanks == 0 ||
            variable.entity->codeVar == &variable) {
            return;
        }
        report.blanks.push_back({variable.entity->name, variable.name, variable.filePath().string(),
                                 check.column->info().blanks, check.column->info().records});
    }

    ConsistencyReport report() {
        ConsistencyReport report;
        report.variables = variables_.size();
        for (const Entity* entity : dictionary_.entities()) {
            EntityCheck& check = entities_.at(entity);
            ++report.entities;
            report.records += check.records.value_or(0);
            std::move(check.findings.begin(), check.findings.end(),
                      std::back_inserter(report.findings));
            for (VariableCheck& variable : variables_) {
                if (variable.variable->entity == entity) {
                    noteBlanks(variable, report);
                    std::move(variable.findings.begin(), variable.findings.end(),
                              std::back_inserter(report.findings));
                }
            }
        }
        findOrphans(report);
        return report;
    }

    const Dictionary& dictionary_;
    const CheckProgress& progress_;
    std::map<const Entity*, EntityCheck> entities_;
    std::vector<VariableCheck> variables_;
    std::atomic<bool> stop_ = false;
    std::atomic<std::size_t> next_ = 0;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::uint64_t done_ = 0;
};

} // namespace

std::uint64_t ConsistencyReport::count(FindingSeverity severity) const {
    return static_cast<std::uint64_t>(
        std::count_if(findings.begin(), findings.end(),
                      [&](const Finding& finding) { return finding.severity == severity; }));
}

ConsistencyReport checkConsistency(const Dictionary& dictionary, const CheckProgress& progress) {
    return Consistency(dictionary, progress).run();
}

} // namespace kelx::catalog

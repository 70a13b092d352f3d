// SPDX-License-Identifier: Apache-2.0
// How fast tables are made of a sample database, beside a plain read of the same bytes.
//   bench_frequency DICTIONARY [benchmark options]
#include "catalog/reader.h"
#include "execution/run.h"
#include "language/compile.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace kelx;

std::unique_ptr<catalog::Dictionary> dictionary;

/// A table to make, and all that has to be read for it.
struct Question {
    const char* name;
    const char* program;
    bool weighted;
    std::vector<std::pair<const char*, const char*>> variables;
    std::vector<const char*> levels; ///< whose pointer files lead to the unit of count
};

const std::vector<Question>& questions() {
    static const std::vector<Question> all = {
        {"freq_sex", "FREQ PERSON.SEX", false, {{"PERSON", "SEX"}}, {}},
        {"freq_age", "FREQ PERSON.AGE", false, {{"PERSON", "AGE"}}, {}},
        {"crosstab_marital_sex",
         "CROSSTABS PERSON.MARITAL BY PERSON.SEX",
         false,
         {{"PERSON", "MARITAL"}, {"PERSON", "SEX"}},
         {}},
        {"freq_sex_filter_age",
         "FREQ PERSON.SEX FILTER PERSON.AGE >= 15",
         false,
         {{"PERSON", "SEX"}, {"PERSON", "AGE"}},
         {}},
        {"crosstab_levels",
         "CROSSTABS HOUSEHOLD.TYPE BY PERSON.SEX",
         false,
         {{"HOUSEHOLD", "TYPE"}, {"PERSON", "SEX"}},
         {"PERSON"}},
        {"crosstab_levels_weighted",
         "CROSSTABS HOUSEHOLD.TYPE BY PERSON.SEX",
         true,
         {{"HOUSEHOLD", "TYPE"}, {"PERSON", "SEX"}, {"HOUSEHOLD", "WEIGHT"}},
         {"PERSON"}},
        {"province_sex_age",
         "FREQ PROVINCE.CODE BY PERSON.SEX BY PERSON.AGE",
         false,
         {{"PROVINCE", "CODE"}, {"PERSON", "SEX"}, {"PERSON", "AGE"}},
         {"DISTRICT", "HOUSEHOLD", "PERSON"}},
    };
    return all;
}

const catalog::Entity& entityOf(const std::string& name) {
    const catalog::Entity* found = dictionary->findEntity(name);
    if (found == nullptr)
        throw std::runtime_error("the sample has no " + name);
    return *found;
}

/// Adds up bytes, eight at a time: no more than reading them.
std::uint64_t sum(const void* data, std::size_t bytes) {
    std::uint64_t result = 0;
    for (std::size_t i = 0; i + 8 <= bytes; i += 8) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, static_cast<const char*>(data) + i, 8);
        result += eight;
    }
    return result;
}

/// What a question reads, as it lies in the files, in pieces of a block.
class Reading {
public:
    explicit Reading(const Question& question) {
        for (const auto& [entity, name] : question.variables) {
            const catalog::Variable* variable = entityOf(entity).findVariable(name);
            if (variable == nullptr)
                throw std::runtime_error(std::string("the sample has no ") + entity + "." + name);
            add(variable->column());
        }
        for (const char* level : question.levels)
            add(entityOf(level).pointers());
    }

    std::uint64_t bytes() const { return bytes_; }
    std::uint64_t read(std::size_t thread, std::size_t threads) const {
        storage::ColumnScratch scratch;
        std::uint64_t result = 0;
        const std::size_t end = pieces_.size() * (thread + 1) / threads;
        for (std::size_t i = pieces_.size() * thread / threads; i < end; ++i) {
            const Piece& piece = pieces_[i];
            const void* data = piece.column != nullptr
                                   ? piece.column->read(piece.begin, piece.count, scratch)
                                   : piece.data;
            result += sum(data, piece.count * piece.width);
        }
        return result;
    }

private:
    struct Piece {
        const storage::Column* column; ///< null where data stands
        const void* data;
        std::uint64_t begin;
        std::size_t count, width;
    };

    void add(const std::shared_ptr<const storage::Column>& column) {
        columns_.push_back(column);
        cut(column.get(), nullptr, column->info().records,
            storage::physicalSize(column->info().physical));
    }
    void add(const std::shared_ptr<const storage::PointerFile>& pointers) {
        pointers_.push_back(pointers);
        const std::size_t width = pointers->isWide() ? 8 : 4;
        const void* data = pointers->isWide() ? static_cast<const void*>(pointers->wide())
                                              : static_cast<const void*>(pointers->narrow());
        cut(nullptr, static_cast<const char*>(data), pointers->parents() + 1, width);
    }
    void cut(const storage::Column* column, const char* data, std::uint64_t all,
             std::size_t width) {
        for (std::uint64_t begin = 0; begin < all; begin += storage::recordsPerBlock) {
            const auto count = static_cast<std::size_t>(
                std::min<std::uint64_t>(storage::recordsPerBlock, all - begin));
            pieces_.push_back(
                {column, data != nullptr ? data + begin * width : nullptr, begin, count, width});
        }
        bytes_ += all * width;
    }

    std::vector<std::shared_ptr<const storage::Column>> columns_;
    std::vector<std::shared_ptr<const storage::PointerFile>> pointers_;
    std::vector<Piece> pieces_;
    std::uint64_t bytes_ = 0;
};

void tellBytes(benchmark::State& state, const Reading& reading) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(reading.bytes()));
}

void readBytes(benchmark::State& state, const Question& question) {
    const Reading reading(question);
    const auto threads = static_cast<std::size_t>(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        std::vector<std::uint64_t> sums(threads);
        std::vector<std::thread> workers;
        for (std::size_t t = 0; t < threads; ++t)
            workers.emplace_back([&, t] { sums[t] = reading.read(t, threads); });
        for (std::thread& worker : workers)
            worker.join();
        benchmark::DoNotOptimize(std::accumulate(sums.begin(), sums.end(), std::uint64_t{0}));
    }
    tellBytes(state, reading);
}

void runProgram(benchmark::State& state, const Question& question) {
    language::Messages messages;
    language::CompileOptions compileOptions;
    compileOptions.autoWeight = question.weighted;
    const auto program = language::compile(question.program, *dictionary, compileOptions, messages);
    if (messages.hasErrors())
        throw std::runtime_error(question.program + (": " + messages.all().front().text));
    execution::RunOptions options;
    options.threads = static_cast<unsigned>(state.range(0));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(execution::run(program, options, messages));
    tellBytes(state, Reading(question));
}

void measure(benchmark::internal::Benchmark* made, int threads) {
    made->ArgName("threads")->Arg(threads)->Unit(benchmark::kMillisecond)->UseRealTime();
}

void registerAll() {
    for (const int threads : {1, 2}) {
        for (const Question& question : questions()) {
            const std::string reading = std::string("read_") + question.name;
            measure(benchmark::RegisterBenchmark(reading.c_str(), readBytes, question), threads);
            measure(benchmark::RegisterBenchmark(question.name, runProgram, question), threads);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("bench_frequency DICTIONARY [benchmark options]\n", stderr);
        return 2;
    }
    try {
        dictionary = catalog::readDictionary(argv[1], {});
        registerAll();
        --argc;
        ++argv;
        benchmark::Initialize(&argc, argv);
        benchmark::RunSpecifiedBenchmarks();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "bench_frequency: %s\n", error.what());
        return 1;
    }
    return 0;
}

// SPDX-License-Identifier: Apache-2.0
// How fast tables are made of a sample database, beside a plain read of the same bytes.
//   bench_frequency DICTIONARY [benchmark options]
#include "catalog/reader.h"
#include "execution/run.h"
#include "language/compile.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace kelx;

std::unique_ptr<catalog::Dictionary> dictionary;

const storage::Column& columnOf(const std::string& entity, const std::string& name) {
    const catalog::Entity* found = dictionary->findEntity(entity);
    const catalog::Variable* variable = found != nullptr ? found->findVariable(name) : nullptr;
    if (variable == nullptr)
        throw std::runtime_error("the sample has no " + entity + "." + name);
    static std::vector<std::shared_ptr<const storage::Column>> open;
    open.push_back(variable->column());
    return *open.back();
}

std::uint64_t bytesOf(const storage::Column& column) {
    return column.info().records * storage::physicalSize(column.info().physical);
}

/// Adds up a stretch of a column's bytes, eight at a time.
std::uint64_t sumBytes(const storage::Column& column, std::uint64_t begin, std::uint64_t end) {
    storage::ColumnScratch scratch;
    std::uint64_t sum = 0;
    const std::size_t width = storage::physicalSize(column.info().physical);
    while (begin < end) {
        const std::uint64_t count = std::min<std::uint64_t>(end - begin, storage::recordsPerBlock);
        const auto* data =
            static_cast<const char*>(column.read(begin, static_cast<std::size_t>(count), scratch));
        for (std::size_t i = 0; i + 8 <= count * width; i += 8) {
            std::uint64_t eight = 0;
            std::memcpy(&eight, data + i, 8);
            sum += eight;
        }
        begin += count;
    }
    return sum;
}

void readBytes(benchmark::State& state, const std::string& name) {
    const storage::Column& column = columnOf("PERSON", name);
    const auto threads = static_cast<std::uint64_t>(state.range(0));
    const std::uint64_t records = column.info().records;
    for ([[maybe_unused]] auto _ : state) {
        std::vector<std::uint64_t> sums(threads);
        std::vector<std::thread> workers;
        for (std::uint64_t t = 0; t < threads; ++t)
            workers.emplace_back([&, t] {
                sums[t] = sumBytes(column, records / threads * t,
                                   t + 1 == threads ? records : records / threads * (t + 1));
            });
        for (std::thread& worker : workers)
            worker.join();
        benchmark::DoNotOptimize(std::accumulate(sums.begin(), sums.end(), std::uint64_t{0}));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytesOf(column)));
}

void runProgram(benchmark::State& state, const std::string& text, bool weighted,
                std::uint64_t bytes) {
    language::Messages messages;
    language::CompileOptions compileOptions;
    compileOptions.autoWeight = weighted;
    const auto program = language::compile(text, *dictionary, compileOptions, messages);
    if (messages.hasErrors())
        throw std::runtime_error(text + ": " + messages.all().front().text);
    execution::RunOptions options;
    options.threads = static_cast<unsigned>(state.range(0));
    if (state.range(1) > 0)
        options.blockRecords = static_cast<std::size_t>(state.range(1));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(execution::run(program, options, messages));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void registerAll() {
    const std::uint64_t sex = bytesOf(columnOf("PERSON", "SEX"));
    const std::uint64_t age = bytesOf(columnOf("PERSON", "AGE"));
    const std::uint64_t marital = bytesOf(columnOf("PERSON", "MARITAL"));
    const std::uint64_t type = bytesOf(columnOf("HOUSEHOLD", "TYPE"));
    struct Question {
        const char* name;
        const char* program;
        bool weighted;
        std::uint64_t bytes;
    };
    const Question questions[] = {
        {"freq_sex", "FREQ PERSON.SEX", false, sex},
        {"freq_age", "FREQ PERSON.AGE", false, age},
        {"crosstab_marital_sex", "CROSSTABS PERSON.MARITAL BY PERSON.SEX", false, marital + sex},
        {"freq_sex_filter_age", "FREQ PERSON.SEX FILTER PERSON.AGE >= 15", false, sex + age},
        {"crosstab_levels", "CROSSTABS HOUSEHOLD.TYPE BY PERSON.SEX", false, type + sex},
        {"crosstab_levels_weighted", "CROSSTABS HOUSEHOLD.TYPE BY PERSON.SEX", true, type + sex},
        {"province_sex_age", "FREQ PROVINCE.CODE BY PERSON.SEX BY PERSON.AGE", false, sex + age},
    };
    for (const int threads : {1, 2}) {
        benchmark::RegisterBenchmark("read_sex", readBytes, "SEX")->Args({threads})->UseRealTime();
        for (const Question& question : questions)
            benchmark::RegisterBenchmark(question.name, runProgram, question.program,
                                         question.weighted, question.bytes)
                ->Args({threads, 0})
                ->UseRealTime();
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

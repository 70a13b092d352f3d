// SPDX-License-Identifier: Apache-2.0
// The engine beside the limit: eight questions, each answered by both in turn.
//   limit DICTIONARY [--rounds N] [--only QUESTION] [--print]
//   limit --programs
#include "catalog/reader.h"
#include "limit.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>

namespace {

using namespace kelx;
using namespace kelx::bench;

struct Options {
    std::string dictionary;
    int rounds = 30;
    std::size_t only = 0;  ///< question, from 1; 0: all
    bool print = false;    ///< the kernels' answers instead of times
    bool programs = false; ///< the questions themselves
};

template <class Number>
void readNumber(const std::string& text, Number& number) {
    std::from_chars(text.data(), text.data() + text.size(), number);
}

std::optional<Options> read(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--print") {
            options.print = true;
        } else if (argument == "--programs") {
            options.programs = true;
        } else if (argument == "--rounds" && i + 1 < argc) {
            readNumber(argv[++i], options.rounds);
        } else if (argument == "--only" && i + 1 < argc) {
            readNumber(argv[++i], options.only);
        } else {
            options.dictionary = argument;
        }
    }
    if ((options.dictionary.empty() && !options.programs) || options.rounds < 1)
        return std::nullopt;
    return options;
}

double millisecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// The fastest of many rounds: the others tell what else the machine was doing.
struct Times {
    double limit = 1e300;
    double engine = 1e300;
};

Times measure(EngineQuestion& engine, LimitQuestion& limit, unsigned threads, int rounds) {
    Times times;
    for (int round = 0; round < rounds; ++round) {
        {
            Team team(threads);
            limit.run(team);
            times.limit = std::min(times.limit, millisecondsOf([&] { limit.run(team); }));
        }
        times.engine = std::min(times.engine, millisecondsOf([&] { engine.run(threads); }));
    }
    compare(engine.answer(), limit.answer());
    return times;
}

/// Nothing where the engine has no answer yet.
std::optional<Times> ask(catalog::Dictionary& dictionary, const Census& census,
                         std::size_t question, unsigned threads, int rounds) {
    const Question& asked = questions()[question];
    std::optional<EngineQuestion> engine;
    try {
        engine.emplace(dictionary, asked);
        engine->run(threads);
    } catch (const std::exception& error) {
        std::printf("%zu %-40s %-8u not yet: %s\n", question + 1, asked.name, threads,
                    error.what());
        return std::nullopt;
    }
    const auto limit = makeLimit(census, question, threads);
    const Times times = measure(*engine, *limit, threads, rounds);
    std::printf("%zu %-40s %-8u %9.2f %9.2f %7.2f\n", question + 1, asked.name, threads,
                times.limit, times.engine, times.engine / times.limit);
    return times;
}

void measureAll(catalog::Dictionary& dictionary, const Census& census, const Options& options) {
    const int rounds = options.rounds;
    std::printf("%zu persons, %zu households, %zu districts; milliseconds, fastest of %d rounds\n",
                census.persons, census.households, census.districts, rounds);
    std::printf("  %-40s %-8s %9s %9s %7s\n", "question", "threads", "limit", "engine", "ratio");
    for (const unsigned threads : {1U, 2U}) {
        double product = 1;
        int answered = 0;
        for (std::size_t question = 0; question < questions().size(); ++question) {
            if (options.only != 0 && options.only != question + 1)
                continue;
            const auto times = ask(dictionary, census, question, threads, rounds);
            if (!times)
                continue;
            product *= times->engine / times->limit;
            ++answered;
        }
        if (answered > 0)
            std::printf("  geometric mean of %d, %u threads: %.2f\n", answered, threads,
                        std::pow(product, 1.0 / answered));
    }
}

void printAnswers(const Census& census) {
    Team team(1);
    for (std::size_t question = 0; question < questions().size(); ++question) {
        std::printf("%s\n", questions()[question].program);
        const auto limit = makeLimit(census, question, 1);
        limit->run(team);
        for (const auto& [key, figure] : limit->answer())
            std::printf("%s,%.17g\n", key.c_str(), figure);
    }
}

} // namespace

int main(int argc, char** argv) {
    const auto options = read(argc, argv);
    if (!options) {
        std::fputs("limit DICTIONARY [--rounds N] [--only QUESTION] [--print]\nlimit --programs\n",
                   stderr);
        return 2;
    }
    try {
        if (options->programs) {
            for (const Question& question : questions())
                std::printf("RUNDEF bench NOWEIGHT\n%s\n\n", question.program);
            return 0;
        }
        if (__builtin_cpu_supports("avx2") == 0 || __builtin_cpu_supports("bmi2") == 0)
            throw std::runtime_error("the kernels need a processor with AVX2 and BMI2");
        const auto dictionary = catalog::readDictionary(options->dictionary, {});
        const Census census(*dictionary);
        if (options->print)
            printAnswers(census);
        else
            measureAll(*dictionary, census, *options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "limit: %s\n", error.what());
        return 1;
    }
    return 0;
}

// SPDX-License-Identifier: Apache-2.0
// Writes the database of a made-up country: for trying things out, for demonstrations, for tests.
#pragma once

#include "import/progress.h"

#include <cstdint>
#include <filesystem>

namespace kelx::tools {

constexpr std::uint64_t fewestSamplePersons = 1000;
constexpr std::uint64_t mostSamplePersons = 100'000'000;

struct SampleRequest {
    std::filesystem::path folder; ///< made where it is not there
    std::uint64_t persons = 100'000;
    std::uint64_t seed = 1;
    bool overwrite = false;
    Progress progress; ///< in persons; may be empty
};

struct SampleReport {
    std::uint64_t provinces = 0, districts = 0, households = 0, persons = 0, emigrants = 0;
};

/// Writes sample.kxdb, sample.dicx, their data, programs, a selection and a project into the
/// folder. The same numbers give the same bytes. Memory does not grow with the number of persons.
/// Throws storage::FileError, and std::runtime_error for a number of persons out of bounds.
SampleReport writeSample(const SampleRequest& request);

} // namespace kelx::tools

// SPDX-License-Identifier: Apache-2.0
// The made-up country's provinces and districts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kelx::tools {

struct District {
    int province = 0; ///< index
    std::string code; ///< two digits, unique in its province
    std::string name;
    double areaKm2 = 0;
    double urban = 0;      ///< 0 to 1
    double baseWeight = 1; ///< weight of its households before their own share
    std::uint64_t persons = 0;
};

struct Province {
    std::string code; ///< two digits
    std::string name;
    std::uint64_t districts = 0;
};

/// The capital is the first district of the first province.
struct Country {
    std::vector<Province> provinces;
    std::vector<District> districts; ///< in the order of their provinces
};

/// Depends on both numbers and nothing else. The districts' persons add up to `persons`.
Country makeCountry(std::uint64_t persons, std::uint64_t seed);

} // namespace kelx::tools

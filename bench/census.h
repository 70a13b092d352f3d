// SPDX-License-Identifier: Apache-2.0
// The sample census as the kernels see it: columns in place, and where the districts lie.
#pragma once

#include "catalog/model.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kelx::bench {

using Byte = std::uint8_t;

/// Columns of one byte a code without blanks, and offsets of 4 bytes. Throws std::runtime_error
/// where the sample is otherwise.
class Census {
public:
    explicit Census(const catalog::Dictionary& dictionary);

    const Byte *sex, *age, *marital, *education; ///< by person
    const double* income;                        ///< by person
    const Byte* type;                            ///< by household
    const double* weight;                        ///< by household
    const std::uint32_t* firstPerson;            ///< of each household, and the end
    const std::uint32_t* firstHousehold;         ///< of each district, and the end
    const std::uint32_t* firstDistrict;          ///< of each province, and the end
    std::size_t persons = 0, households = 0, districts = 0, provinces = 0;

    std::vector<std::size_t> districtPersons; ///< first person of each district, and the end
    std::vector<std::string> provinceCodes, districtCodes;
    std::vector<std::size_t> provinceOf; ///< of each district
    double incomeNotApplicable = 0;

private:
    const Byte* bytes(const char* entity, const char* name);
    const double* reals(const char* entity, const char* name);
    const void* read(const char* entity, const char* name);
    std::vector<std::string> texts(const char* entity, const char* name);
    const std::uint32_t* offsets(const char* entity, std::size_t& parents);

    const catalog::Dictionary& dictionary_;
    std::vector<std::shared_ptr<const storage::Column>> columns_;
    std::vector<std::shared_ptr<const storage::PointerFile>> pointers_;
};

} // namespace kelx::bench

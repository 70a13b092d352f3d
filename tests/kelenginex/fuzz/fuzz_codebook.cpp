// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a codebook: levels and fields with names and one role each, or a located fault.
#include "target.h"

#include "import/codebook.h"
#include "import/values.h"

using namespace kelx::testing;
namespace tools = kelx::tools;

namespace {

void check(const tools::LevelPlan& level) {
    int keys = 0;
    promise(tools::isName(level.name), "a level has a name");
    for (const tools::FieldPlan& field : level.fields) {
        promise(tools::isName(field.name) && level.find(field.name) == &field,
                "fields have names of their own");
        promise(field.type != kelx::storage::ValueType::None, "a field has a type");
        promise(field.width >= 0 && field.width <= 4000, "a width is possible");
        keys += field.role == tools::FieldRole::Key ? 1 : 0;
        for (const tools::CodeEntry& entry : field.codes)
            promise(!entry.code.empty(), "a code is not blank");
    }
    promise(keys <= 1, "a level has one key");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const tools::Codebook book = tools::readCodebook(inputFile().write(inputBytes(data, size)));
        for (const tools::LevelPlan& level : book.levels) {
            promise(book.find(level.name) == &level, "levels have names of their own");
            check(level);
        }
    } catch (const tools::LocatedError& fault) {
        promise(fault.place().line >= 1 && fault.place().column >= 1, "a fault has a place");
    }
    return 0;
}

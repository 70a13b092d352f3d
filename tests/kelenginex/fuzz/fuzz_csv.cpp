// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as CSV: records whose fields lie in the file at their places, or a located fault.
#include "target.h"

#include "import/csv_reader.h"

#include <iterator>
#include <string_view>

using namespace kelx::testing;
namespace tools = kelx::tools;

namespace {

bool isBefore(const tools::Place& a, const tools::Place& b) {
    return a.line < b.line || (a.line == b.line && a.column < b.column);
}

void read(const std::filesystem::path& file, std::size_t size, char separator) {
    tools::CsvReader csv(file, {}, separator);
    tools::Place last{1, 0};
    std::size_t bytes = 0;
    while (csv.next()) {
        promise(csv.fields() > 0, "a record has a field");
        for (std::size_t i = 0; i < csv.fields(); ++i) {
            bytes += csv.field(i).size();
            promise(isBefore(last, csv.place(i)), "fields come one after the other");
            last = csv.place(i);
        }
        promise(!isBefore(csv.place(csv.fields()), last), "a record ends behind its fields");
    }
    promise(bytes <= size, "no field is made up");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::string_view separators = ",;\t|";
    if (size == 0)
        return 0;
    const auto file = inputFile().write(inputBytes(data + 1, size - 1));
    try {
        read(file, size - 1, separators[data[0] % separators.size()]);
    } catch (const tools::LocatedError& fault) {
        promise(fault.place().line >= 1 && fault.place().column >= 1, "a fault has a place");
    }
    return 0;
}

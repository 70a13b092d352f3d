// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a .dicx that describes a text: places for all fields and levels that hang together,
// or a fault that names the file.
#include "target.h"

#include "import/dicx_layout.h"
#include "storage/error.h"

using namespace kelx::testing;
namespace tools = kelx::tools;

namespace {

void check(const tools::DicxLayout& layout) {
    const std::size_t fields = layout.text.fields.size();
    promise(fields > 0 && layout.text.parts.size() == fields &&
                layout.plan.levelOf.size() == fields,
            "fields have their places and levels");
    for (std::size_t i = 0; i < fields; ++i) {
        promise(layout.text.parts[i].width > 0, "a field has a width");
        promise(layout.text.fields[i].shape < layout.plan.shapes.size(), "a field has its lines");
        promise(layout.plan.levelOf[i] < layout.plan.levels.size(), "a field has its level");
    }
    for (std::size_t i = 0; i < layout.plan.levels.size(); ++i) {
        const std::size_t parent = layout.plan.levels[i].parent;
        promise(parent == tools::noLevel || parent < i, "levels come from the top down");
    }
    for (const auto& shape : layout.plan.shapes)
        promise(!shape.empty(), "lines have a level");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = inputFile().write(inputBytes(data, size));
    try {
        const tools::DicxLayout layout = tools::readDicxLayout(file, 1);
        check(layout);
        tools::FixedSource source(file, layout.text, {}); // the layout itself as its text
        while (source.next())
            for (std::size_t i = 0; i < layout.text.fields.size(); ++i)
                if (source.rowFault().empty() && layout.text.fields[i].shape == source.shape())
                    source.value(i);
    } catch (const kelx::storage::FileError&) {
    } catch (const tools::LocatedError&) {
    }
    return 0;
}

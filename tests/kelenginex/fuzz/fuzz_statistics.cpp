// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as what the helper for files of statistics packages says, once as they are and once as
// payloads of frames with right checksums: rows of the fields told, or a fault that names the file.
#include "target.h"

#include "import/statistics_source.h"
#include "storage/error.h"
#include "storage/utf8.h"

#include <algorithm>
#include <stdexcept>

using namespace kelx::testing;
namespace tools = kelx::tools;

namespace {

class Bytes : public tools::FrameBytes {
public:
    explicit Bytes(std::string bytes) : bytes_(std::move(bytes)) {}
    void read(std::span<char> part) override {
        if (part.size() > bytes_.size() - at_)
            throw std::runtime_error("it ends");
        std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(at_), part.size(), part.begin());
        at_ += part.size();
    }
    void finish() override {
        if (at_ != bytes_.size())
            throw std::runtime_error("it does not end");
    }

private:
    std::string bytes_;
    std::size_t at_ = 0;
};

/// A kind and a length in two bytes, then so many bytes, again and again.
std::string framed(const std::string& bytes) {
    std::string frames;
    for (std::size_t at = 0; at + 2 <= bytes.size();) {
        const auto kind = static_cast<unsigned char>(bytes[at]) % 7 + 1;
        const std::size_t length =
            std::min<std::size_t>(static_cast<unsigned char>(bytes[at + 1]), bytes.size() - at - 2);
        frames += tools::encodeFrame(static_cast<tools::FrameKind>(kind),
                                     std::string_view(bytes).substr(at + 2, length));
        at += 2 + length;
    }
    return frames;
}

void consume(std::string bytes) {
    try {
        tools::StatisticsSource source("/fuzz/input.sav", std::make_unique<Bytes>(std::move(bytes)),
                                       {});
        while (source.next())
            for (std::size_t i = 0; i < source.fields().size(); ++i)
                promise(!kelx::storage::firstInvalidUtf8(source.value(i).text), "texts are UTF-8");
        for (const tools::SourceField& field : source.fields())
            promise(!field.plan.name.empty(), "a field has a name");
        source.endFault();
        source.notes();
    } catch (const kelx::storage::FileError& fault) {
        promise(fault.file() == "/fuzz/input.sav", "a fault names the file");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    consume(inputBytes(data, size));
    consume(framed(inputBytes(data, size)));
    return 0;
}

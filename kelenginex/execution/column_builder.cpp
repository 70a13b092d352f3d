// SPDX-License-Identifier: Apache-2.0
#include "execution/column_builder.h"

#include "execution/block_codes.h"
#include "execution/text_builder.h"
#include "storage/block_stats.h"
#include "storage/coding.h"
#include "storage/column_format.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <limits>
#include <stdexcept>
#include <utility>

namespace kelx::execution {
namespace {

using storage::MemoryColumn;
using storage::Physical;
using storage::recordsPerBlock;
using storage::Zone;

class RealBuilder : public ColumnBuilder {
public:
    explicit RealBuilder(std::uint64_t records)
        : ColumnBuilder(ValueType::Real, records), zones_(blocks()),
          values_(untouched(records * sizeof(double))) {
        info_.physical = Physical::Real64;
    }

    void put(std::size_t block, BlockValues& values) override {
        auto* out = reinterpret_cast<double*>(values_.get()) + block * recordsPerBlock;
        std::copy(values.reals.begin(), values.reals.end(), out);
        if (!values.allValid) {
            for (std::size_t i = 0; i < values.size(); ++i)
                if (values.states[i] != state::valid)
                    out[i] = noValueOf(values.states[i]);
        }
        zones_[block] = storage::measureBlock(Physical::Real64, out, values.size());
    }

    std::size_t nextStep() override { return 0; }

    std::shared_ptr<const storage::Column> take(std::uint8_t decimals) override {
        info_.decimals = decimals;
        if (hasNa_)
            info_.naCode = storage::naRealBits;
        return std::make_shared<const MemoryColumn>(info_, std::move(values_), std::move(zones_));
    }

private:
    double noValueOf(std::uint8_t state) {
        if (state != state::blankNotApplicable)
            return std::numeric_limits<double>::quiet_NaN();
        hasNa_ = true;
        return std::bit_cast<double>(storage::naRealBits);
    }

    std::vector<Zone> zones_;
    MemoryColumn::Values values_;
    std::atomic<bool> hasNa_{false};
};

/// Values of a block as codes of their own.
struct Piece {
    Physical physical = Physical::Code8;
    std::int64_t base = 0;
    std::int64_t lowest = 0; ///< over the valid values
    std::int64_t highest = 0;
    bool any = false; ///< there are valid values
    bool hasNa = false;
    std::uint32_t blanks = 0;
    MemoryColumn::Values codes; ///< null: bytes, in the place that all blocks have for such
};

/// Looks over the values of a block; leaves the codes to encode().
Piece measured(const BlockValues& values, const std::string& name) {
    Piece piece;
    std::int64_t lowest = std::numeric_limits<std::int64_t>::max();
    std::int64_t highest = std::numeric_limits<std::int64_t>::min();
    const std::size_t count = values.size();
    const std::int64_t* in = values.integers.data();
    for (std::size_t i = 0; i < count; ++i) {
        const bool valid = values.allValid || values.states[i] == state::valid;
        lowest = valid && in[i] < lowest ? in[i] : lowest;
        highest = valid && in[i] > highest ? in[i] : highest;
    }
    if (!values.allValid) {
        const auto all = [&](std::uint8_t state) {
            return std::count(values.states.begin(), values.states.end(), state);
        };
        piece.blanks = static_cast<std::uint32_t>(all(state::blank));
        piece.hasNa = all(state::blankNotApplicable) > 0;
    }
    if (lowest > highest)
        return piece;
    piece.any = true;
    piece.lowest = lowest;
    piece.highest = highest;
    if (lowest >= 0 && highest <= ColumnBuilder::mostByte)
        return piece;
    const std::uint64_t span = storage::codeOf(highest, lowest);
    if (span > std::numeric_limits<std::uint64_t>::max() - 3)
        throw std::runtime_error(name + " has values too far apart to be kept together.");
    piece.base = lowest;
    piece.physical = storage::physicalFor(span + 1);
    return piece;
}

/// Whole numbers and truth values. Most blocks are bytes that stay where they are written.
class CodeBuilder : public ColumnBuilder {
public:
    CodeBuilder(ValueType type, std::uint64_t records, std::string name)
        : ColumnBuilder(type, records), name_(std::move(name)), pieces_(blocks()), zones_(blocks()),
          bytes_(untouched(records)) {}

    void put(std::size_t block, BlockValues& values) override {
        Piece& piece = pieces_[block] = measured(values, name_);
        if (piece.physical == Physical::Code8 && piece.base == 0)
            return encode(values, 0, bytesOf(block));
        piece.codes = untouched(values.size() * storage::physicalSize(piece.physical));
        storage::withCode(piece.physical, [&]<class Code>(Code) {
            encode(values, piece.base, reinterpret_cast<Code*>(piece.codes.get()));
        });
    }

    std::uint8_t* bytes(std::size_t block) override { return bytesOf(block); }
    void putBytes(std::size_t block) override {
        const Zone zone = storage::measureBlock(Physical::Code8, bytesOf(block), size(block));
        pieces_[block] = {};
        pieces_[block].any = true;
        pieces_[block].lowest = static_cast<std::int64_t>(zone.minCode);
        pieces_[block].highest = static_cast<std::int64_t>(zone.maxCode);
    }

    std::size_t nextStep() override {
        if (std::exchange(settled_, true))
            return 0;
        Piece all;
        for (const Piece& piece : pieces_)
            include(piece, all);
        findForm(all);
        if (info_.physical != Physical::Code8 || info_.base != 0)
            wide_ = untouched(info_.records * storage::physicalSize(info_.physical));
        const bool inPlace =
            std::all_of(pieces_.begin(), pieces_.end(), [&](const Piece& p) { return !p.codes; });
        if (wide_ || !inPlace || all.hasNa)
            return blocks();
        for (std::size_t block = 0; block < pieces_.size(); ++block)
            findZone(block);
        return 0;
    }

    void join(std::size_t block) override {
        findZone(block);
        Piece& piece = pieces_[block];
        if (!piece.codes && !wide_ && !piece.hasNa)
            return;
        storage::withCode(piece.physical, [&]<class From>(From) {
            const auto* from = piece.codes ? reinterpret_cast<const From*>(piece.codes.get())
                                           : reinterpret_cast<const From*>(bytesOf(block));
            storage::withCode(info_.physical, [&]<class To>(To) {
                To* to = reinterpret_cast<To*>(wide_ ? wide_.get() : bytes_.get());
                recode(piece, from, size(block), to + block * recordsPerBlock);
            });
        });
        piece.codes.reset();
    }

    std::shared_ptr<const storage::Column> take(std::uint8_t decimals) override {
        info_.decimals = decimals;
        return std::make_shared<const MemoryColumn>(info_, std::move(wide_ ? wide_ : bytes_),
                                                    std::move(zones_));
    }

private:
    std::uint8_t* bytesOf(std::size_t block) {
        return reinterpret_cast<std::uint8_t*>(bytes_.get()) + block * recordsPerBlock;
    }

    static void include(const Piece& piece, Piece& all) {
        all.hasNa = all.hasNa || piece.hasNa;
        if (!piece.any)
            return;
        all.lowest = all.any ? std::min(all.lowest, piece.lowest) : piece.lowest;
        all.highest = all.any ? std::max(all.highest, piece.highest) : piece.highest;
        all.any = true;
    }

    void findForm(const Piece& all) {
        const std::uint64_t span = storage::codeOf(all.highest, all.lowest);
        if (span > std::numeric_limits<std::uint64_t>::max() - 3)
            throw std::runtime_error(name_ + " has values too far apart to be kept together.");
        auto form = storage::integerForm(all.lowest, all.highest);
        if (all.hasNa && all.highest == std::numeric_limits<std::int64_t>::max())
            form = {all.lowest, storage::physicalFor(span + 1)};
        else if (all.hasNa)
            form = storage::integerForm(all.lowest, all.highest + 1);
        info_.base = form.base;
        info_.physical = form.physical;
        if (all.hasNa)
            info_.naCode = storage::codeOf(all.highest, form.base) + 1;
    }

    void findZone(std::size_t block) {
        const Piece& piece = pieces_[block];
        Zone& zone = zones_[block];
        zone.records = static_cast<std::uint32_t>(size(block));
        zone.blanks = piece.blanks;
        if (piece.any) {
            zone.minCode = storage::codeOf(piece.lowest, info_.base);
            zone.maxCode = storage::codeOf(piece.highest, info_.base);
        }
        if (!piece.hasNa)
            return;
        zone.minCode = piece.any ? zone.minCode : *info_.naCode;
        zone.maxCode = *info_.naCode;
    }

    template <class From, class To>
    void recode(const Piece& piece, const From* from, std::size_t count, To* to) const {
        const auto shift = static_cast<To>(storage::codeOf(piece.base, info_.base));
        const auto na = static_cast<To>(info_.naCode.value_or(0));
        for (std::size_t i = 0; i < count; ++i) {
            const From code = from[i];
            const auto moved = static_cast<To>(static_cast<To>(code) + shift);
            to[i] = code == blankOf<From> ? blankOf<To> : code == naOf<From> ? na : moved;
        }
    }

    std::string name_;
    std::vector<Piece> pieces_;
    std::vector<Zone> zones_;
    MemoryColumn::Values bytes_, wide_;
    bool settled_ = false;
};

} // namespace

std::unique_ptr<ColumnBuilder> ColumnBuilder::create(ValueType type, std::uint64_t records,
                                                     const std::string& name) {
    if (type == ValueType::Real)
        return std::make_unique<RealBuilder>(records);
    if (type == ValueType::String)
        return makeTextBuilder(records);
    return std::make_unique<CodeBuilder>(type, records, name);
}

std::size_t ColumnBuilder::blocks() const {
    return static_cast<std::size_t>((info_.records + recordsPerBlock - 1) / recordsPerBlock);
}

std::size_t ColumnBuilder::size(std::size_t block) const {
    return static_cast<std::size_t>(std::min<std::uint64_t>(
        recordsPerBlock, info_.records - std::uint64_t{block} * recordsPerBlock));
}

} // namespace kelx::execution

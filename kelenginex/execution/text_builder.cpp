// SPDX-License-Identifier: Apache-2.0
#include "execution/text_builder.h"

#include "execution/block_codes.h"
#include "storage/block_stats.h"
#include "storage/column_format.h"

#include <algorithm>
#include <string>
#include <utility>

namespace kelx::execution {
namespace {

using storage::MemoryColumn;
using storage::Physical;
using storage::recordsPerBlock;
using storage::Zone;

/// Texts of the blocks that a part of the alphabet takes, more or less.
constexpr std::size_t textsOfPart = 65536;
/// One text of so many tells where the parts are to end.
constexpr std::size_t textsOfSample = 1024;

/// The texts of a block, ascending, and its codes into them.
struct TextPiece {
    std::vector<std::string> texts;
    std::vector<std::uint64_t> places; ///< of the texts, in their part of the alphabet
    std::vector<std::size_t> ends;     ///< of each part of the alphabet, among the texts
    Physical physical = Physical::Code8;
    bool hasNa = false;
    MemoryColumn::Values codes;
};

/// The blocks' own sorted texts become those of all by parts of the alphabet, each of which takes
/// its stretch out of every block. Then the blocks are given the codes of all.
class TextBuilder : public ColumnBuilder {
public:
    explicit TextBuilder(std::uint64_t records)
        : ColumnBuilder(ValueType::String, records), pieces_(blocks()), zones_(blocks()) {}

    void put(std::size_t block, BlockValues& values) override {
        values.texts->sort();
        TextPiece& piece = pieces_[block];
        piece.texts.assign(values.texts->sorted().begin(), values.texts->sorted().end());
        piece.hasNa =
            std::count(values.states.begin(), values.states.end(), state::blankNotApplicable) > 0;
        for (std::size_t i = 0; i < values.size(); ++i)
            if (values.states[i] == state::valid)
                values.integers[i] =
                    values.texts->ranks()[static_cast<std::size_t>(values.integers[i])];
        piece.physical = storage::physicalFor(piece.texts.size());
        piece.codes = untouched(values.size() * storage::physicalSize(piece.physical));
        storage::withCode(piece.physical, [&]<class Code>(Code) {
            encode(values, 0, reinterpret_cast<Code*>(piece.codes.get()));
        });
    }

    std::size_t nextStep() override {
        switch (step_) {
        case Step::Put:
            findParts();
            step_ = Step::Cut;
            if (blocks() > 0)
                return blocks();
            findForm();
            return 0;
        case Step::Cut:
            step_ = Step::Merge;
            return parts_.size();
        case Step::Merge:
            findForm();
            step_ = Step::Gather;
            return parts_.size();
        case Step::Gather:
            step_ = Step::Recode;
            return blocks();
        case Step::Recode:
            break;
        }
        return 0;
    }

    void join(std::size_t part) override {
        switch (step_) {
        case Step::Cut:
            return cut(pieces_[part]);
        case Step::Merge:
            return merge(part);
        case Step::Gather:
            return gather(parts_[part]);
        default:
            return recode(part);
        }
    }

    std::shared_ptr<const storage::Column> take(std::uint8_t) override {
        return std::make_shared<const MemoryColumn>(info_, std::move(values_), std::move(zones_),
                                                    std::move(texts_));
    }

private:
    enum class Step { Put, Cut, Merge, Gather, Recode };
    /// A stretch of the alphabet.
    struct Part {
        std::string end; ///< the first text behind it; none in the last one
        std::vector<std::string> texts;
        std::uint64_t begin = 0; ///< of its texts among all
    };

    /// Parts of about equal size, as a sample tells.
    void findParts() {
        std::vector<std::string_view> sample;
        std::size_t passed = 0;
        for (const TextPiece& piece : pieces_) {
            for (; passed < piece.texts.size(); passed += textsOfSample)
                sample.push_back(piece.texts[passed]);
            passed -= piece.texts.size();
        }
        std::sort(sample.begin(), sample.end());
        constexpr std::size_t samplesOfPart = textsOfPart / textsOfSample;
        for (std::size_t i = samplesOfPart; i < sample.size(); i += samplesOfPart) {
            if (parts_.empty() || parts_.back().end != sample[i])
                parts_.push_back({std::string(sample[i]), {}, 0});
        }
        parts_.emplace_back();
    }

    void cut(TextPiece& piece) const {
        piece.places.resize(piece.texts.size());
        auto from = piece.texts.begin();
        for (std::size_t part = 0; part + 1 < parts_.size(); ++part) {
            from = std::lower_bound(from, piece.texts.end(), parts_[part].end);
            piece.ends.push_back(static_cast<std::size_t>(from - piece.texts.begin()));
        }
        piece.ends.push_back(piece.texts.size());
    }

    struct Found {
        std::string* text;
        std::uint64_t* place;
    };

    /// All texts of a part, each once; the blocks keep their places and lose the texts.
    void merge(std::size_t number) {
        std::vector<Found> found;
        for (TextPiece& piece : pieces_) {
            const std::size_t end = piece.ends[number];
            for (std::size_t i = number == 0 ? 0 : piece.ends[number - 1]; i < end; ++i)
                found.push_back({&piece.texts[i], &piece.places[i]});
        }
        std::sort(found.begin(), found.end(),
                  [](const Found& a, const Found& b) { return *a.text < *b.text; });
        std::vector<std::string>& texts = parts_[number].texts;
        for (const Found& one : found) {
            if (texts.empty() || texts.back() != *one.text)
                texts.push_back(std::move(*one.text));
            *one.place = texts.size() - 1;
        }
    }

    void findForm() {
        std::uint64_t texts = 0;
        for (Part& part : parts_)
            texts = (part.begin = texts) + part.texts.size();
        texts_.resize(static_cast<std::size_t>(texts));
        const bool hasNa = std::any_of(pieces_.begin(), pieces_.end(),
                                       [](const TextPiece& piece) { return piece.hasNa; });
        const std::uint64_t codes = texts + (hasNa ? 1 : 0);
        info_.physical = storage::physicalFor(codes == 0 ? 0 : codes - 1);
        if (hasNa)
            info_.naCode = texts;
        values_ = untouched(info_.records * storage::physicalSize(info_.physical));
    }

    void gather(Part& part) {
        std::move(part.texts.begin(), part.texts.end(),
                  texts_.begin() + static_cast<std::ptrdiff_t>(part.begin));
        part.texts = {};
    }

    void recode(std::size_t block) {
        TextPiece& piece = pieces_[block];
        const std::vector<std::uint64_t> places = placesOf(piece);
        storage::withCode(piece.physical, [&]<class From>(From) {
            storage::withCode(info_.physical, [&]<class To>(To) {
                recode(places, reinterpret_cast<const From*>(piece.codes.get()), size(block),
                       reinterpret_cast<To*>(values_.get()) + block * recordsPerBlock);
            });
        });
        zones_[block] = storage::measureBlock(
            info_.physical,
            values_.get() + block * recordsPerBlock * storage::physicalSize(info_.physical),
            size(block));
        piece = {};
    }

    /// Where the texts of a block are among all.
    std::vector<std::uint64_t> placesOf(TextPiece& piece) const {
        std::size_t at = 0;
        for (std::size_t part = 0; part < parts_.size(); ++part) {
            for (; at < piece.ends[part]; ++at)
                piece.places[at] += parts_[part].begin;
        }
        return std::move(piece.places);
    }

    template <class From, class To>
    void recode(const std::vector<std::uint64_t>& places, const From* from, std::size_t count,
                To* to) const {
        for (std::size_t i = 0; i < count; ++i) {
            if (from[i] == blankOf<From>)
                to[i] = blankOf<To>;
            else if (from[i] == naOf<From>)
                to[i] = static_cast<To>(*info_.naCode);
            else
                to[i] = static_cast<To>(places[static_cast<std::size_t>(from[i])]);
        }
    }

    Step step_ = Step::Put;
    std::vector<TextPiece> pieces_;
    std::vector<Part> parts_;
    std::vector<Zone> zones_;
    std::vector<std::string> texts_;
    MemoryColumn::Values values_;
};

} // namespace

std::unique_ptr<ColumnBuilder> makeTextBuilder(std::uint64_t records) {
    return std::make_unique<TextBuilder>(records);
}

} // namespace kelx::execution

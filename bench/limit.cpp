// SPDX-License-Identifier: Apache-2.0
#include "limit.h"

#include "kernels.h"

#include <algorithm>
#include <immintrin.h>
#include <stdexcept>

namespace kelx::bench {
namespace {

/// Districts begin to end - 1.
struct Share {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// As many persons for each thread as whole districts allow.
std::vector<Share> sharesOf(const Census& census, unsigned threads) {
    std::vector<Share> shares(threads);
    const auto& first = census.districtPersons;
    for (unsigned thread = 0; thread < threads; ++thread) {
        const std::size_t upTo = census.persons * (thread + 1) / threads;
        const auto after = std::lower_bound(first.begin(), first.end(), upTo) - first.begin();
        shares[thread].begin = thread == 0 ? 0 : shares[thread - 1].end;
        shares[thread].end =
            thread + 1 == threads ? census.districts : static_cast<std::size_t>(after);
    }
    return shares;
}

std::string codeText(std::size_t code, std::size_t notApplicable, std::size_t missing) {
    if (code == notApplicable)
        return "NA";
    return code == missing ? "MV" : std::to_string(code);
}

std::string maritalText(std::size_t code) {
    return codeText(code, 8, 9);
}

std::string ageText(std::size_t code) {
    return codeText(code, 255, 99);
}

/// A question whose kernel adds figures to cells.
template <class Figure>
class CellQuestion : public LimitQuestion {
public:
    using Cells = std::vector<Figure>;
    using Kernel = void (*)(const Census&, std::size_t, std::size_t, Cells&);
    using Name = std::function<std::string(const Census&, std::size_t cell)>;

    CellQuestion(const Census& census, unsigned threads, Kernel kernel, std::size_t cells,
                 Name name)
        : census_(census), kernel_(kernel), name_(std::move(name)),
          shares_(sharesOf(census, threads)), found_(threads, Cells(cells)) {}

    void run(Team& team) override {
        team.run([this](unsigned member) {
            Cells& cells = found_[member];
            std::fill(cells.begin(), cells.end(), Figure{});
            kernel_(census_, shares_[member].begin, shares_[member].end, cells);
        });
        for (std::size_t other = 1; other < found_.size(); ++other) {
            for (std::size_t cell = 0; cell < found_[0].size(); ++cell)
                found_[0][cell] += found_[other][cell];
        }
    }
    Answer answer() const override {
        Answer result;
        for (std::size_t cell = 0; cell < found_[0].size(); ++cell) {
            if (found_[0][cell] != 0)
                result[name_(census_, cell)] += static_cast<double>(found_[0][cell]);
        }
        return result;
    }

private:
    const Census& census_;
    Kernel kernel_;
    Name name_;
    std::vector<Share> shares_;
    std::vector<Cells> found_; ///< by thread
};

/// Medians by the code of the district, which districts of several provinces share.
class MedianQuestion : public LimitQuestion {
public:
    MedianQuestion(const Census& census, unsigned threads)
        : census_(census), shares_(sharesOf(census, threads)), codes_(census.districtCodes) {
        std::sort(codes_.begin(), codes_.end());
        codes_.erase(std::unique(codes_.begin(), codes_.end()), codes_.end());
        for (const std::string& code : census.districtCodes)
            groupOf_.push_back(static_cast<std::size_t>(
                std::lower_bound(codes_.begin(), codes_.end(), code) - codes_.begin()));
    }

    void run(Team& team) override {
        guess();
        const WindowFindings empty{std::vector<std::uint64_t>(codes_.size()),
                                   std::vector<std::uint64_t>(codes_.size()),
                                   std::vector<std::vector<double>>(codes_.size())};
        found_.assign(shares_.size(), empty);
        team.run([this](unsigned member) {
            pickIncomes(census_, shares_[member].begin, shares_[member].end, groupOf_, windows_,
                        found_[member]);
        });
        medians_.assign(codes_.size(), {});
        team.run([this](unsigned member) {
            for (std::size_t group = member; group < codes_.size(); group += shares_.size())
                medians_[group] = medianOf(group);
        });
    }
    Answer answer() const override {
        Answer result;
        for (std::size_t group = 0; group < codes_.size(); ++group)
            result[codes_[group]] = medians_[group];
        return result;
    }

private:
    /// Between two quantiles of a sample, far enough from its median to hold that of all.
    void guess() {
        constexpr std::size_t each = 997;
        std::vector<std::vector<double>> samples(codes_.size());
        for (std::size_t district = 0; district < census_.districts; ++district) {
            const std::size_t end = census_.districtPersons[district + 1];
            for (std::size_t i = census_.districtPersons[district]; i < end; i += each) {
                const double value = census_.income[i];
                if (value == value && value != census_.incomeNotApplicable)
                    samples[groupOf_[district]].push_back(value);
            }
        }
        windows_.assign(codes_.size(), {-1e300, 1e300});
        for (std::size_t group = 0; group < codes_.size(); ++group) {
            auto& sample = samples[group];
            if (sample.size() < 100)
                continue;
            std::sort(sample.begin(), sample.end());
            windows_[group] = {sample[sample.size() * 2 / 5], sample[sample.size() * 3 / 5]};
        }
    }

    double medianOf(std::size_t group) {
        std::vector<double> values;
        std::uint64_t below = 0;
        std::uint64_t valid = 0;
        for (const WindowFindings& found : found_) {
            below += found.below[group];
            valid += found.valid[group];
            values.insert(values.end(), found.inside[group].begin(), found.inside[group].end());
        }
        const std::uint64_t lower = (valid - 1) / 2;
        const std::uint64_t upper = valid / 2;
        if (valid == 0 || lower < below || upper - below >= values.size())
            throw std::runtime_error("a median lies outside its window");
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(lower - below);
        std::nth_element(values.begin(), middle, values.end());
        const double first = *middle;
        return upper == lower ? first : (first + *std::min_element(middle + 1, values.end())) / 2;
    }

    const Census& census_;
    std::vector<Share> shares_;
    std::vector<std::string> codes_;
    std::vector<std::size_t> groupOf_; ///< of each district
    std::vector<Window> windows_;
    std::vector<WindowFindings> found_; ///< by thread
    std::vector<double> medians_;
};

std::string typeAndEducation(const Census&, std::size_t cell) {
    const std::size_t place = cell % educationPlaces;
    return std::to_string(cell / educationPlaces) + "|" +
           codeText(place < 18 ? place : place + 80, 98, 99);
}

std::string districtAndSex(const Census& census, std::size_t cell) {
    const std::size_t district = cell / 256;
    return census.provinceCodes[census.provinceOf[district]] + census.districtCodes[district] +
           "|" + std::to_string(cell % 256);
}

std::string provinceSexAge(const Census& census, std::size_t cell) {
    return census.provinceCodes[cell / 256] + "|" + std::to_string(cell % 256 / 128 + 1) + "|" +
           ageText(cell % 128);
}

} // namespace

Team::Team(unsigned members) {
    for (unsigned member = 1; member < members; ++member)
        threads_.emplace_back([this, member] { follow(member); });
}

Team::~Team() {
    over_ = true;
    for (std::thread& thread : threads_)
        thread.join();
}

void Team::run(const std::function<void(unsigned)>& work) {
    work_ = &work;
    busy_ = static_cast<unsigned>(threads_.size());
    round_.fetch_add(1, std::memory_order_release);
    work(0);
    while (busy_.load(std::memory_order_acquire) > 0)
        _mm_pause();
}

void Team::follow(unsigned member) {
    for (unsigned seen = 0; !over_;) {
        const unsigned round = round_.load(std::memory_order_acquire);
        if (round == seen) {
            _mm_pause();
            continue;
        }
        seen = round;
        (*work_)(member);
        busy_.fetch_sub(1, std::memory_order_release);
    }
}

std::unique_ptr<LimitQuestion> makeLimit(const Census& census, std::size_t question,
                                         unsigned threads) {
    const auto counting = [&](auto kernel, std::size_t cells, auto name) {
        return std::make_unique<CellQuestion<std::uint64_t>>(census, threads, kernel, cells, name);
    };
    const auto plain = [](const Census&, std::size_t code) { return std::to_string(code); };
    switch (question) {
    case 0:
        return counting(countSex, 256, plain);
    case 1:
        return counting(countAge, 256,
                        [](const Census&, std::size_t code) { return ageText(code); });
    case 2:
        return counting(countMaritalBySex, 256, [](const Census&, std::size_t cell) {
            return maritalText((cell - 1) / 2) + "|" + std::to_string(2 - cell % 2);
        });
    case 3:
        return std::make_unique<CellQuestion<double>>(census, threads, weighTypeByEducation, 256,
                                                      typeAndEducation);
    case 4:
        return counting(countDistrictsBySex, census.districts * 256, districtAndSex);
    case 5:
        return counting(countChildren, 256, plain);
    case 6:
        return std::make_unique<MedianQuestion>(census, threads);
    default:
        return counting(countProvinceSexAge, census.provinces * 256, provinceSexAge);
    }
}

} // namespace kelx::bench

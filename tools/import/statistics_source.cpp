// SPDX-License-Identifier: Apache-2.0
#include "import/statistics_source.h"

#include "import/limited_process.h"
#include "import/values.h"
#include "storage/error.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kelx::tools {

namespace {

using storage::ValueType;
namespace fs = std::filesystem;

constexpr std::size_t mostLabels = 2'000'000; ///< of the file, and again of all variables
constexpr std::size_t mostDescription = std::size_t{256} << 20;
constexpr std::size_t mostMissingRanges = 32;
constexpr std::uint64_t bytesPerCpuSecond = 1u << 20;
constexpr double beyondAll = 1e300;

std::vector<std::string> argumentsFor(const StatisticsFile& file) {
    return {upperCase(file.data.extension().string()), file.data.string(), file.encoding,
            file.formats.string()};
}

ProcessLimits limitsFor(const StatisticsFile& file) {
    ProcessLimits limits;
    std::error_code fault;
    const std::uintmax_t bytes = fs::file_size(file.data, fault);
    limits.cpu += std::chrono::seconds(fault ? 0 : bytes / bytesPerCpuSecond);
    limits.silence = file.silence;
    return limits;
}

/// Names of the helper and the file are checked before a process is started for them.
const StatisticsFile& checked(const StatisticsFile& file) {
    std::error_code ignored;
    if (!fs::is_regular_file(file.data, ignored))
        throw storage::FileError(file.data, "cannot be opened");
    if (!file.formats.empty() && !fs::is_regular_file(file.formats, ignored))
        throw storage::FileError(file.formats, "cannot be opened");
    if (file.helper.empty() || !fs::is_regular_file(file.helper, ignored))
        throw storage::FileError(file.data,
                                 "cannot be read: the program kelx-statistics is not there");
    return file;
}

bool isDateFormat(const std::string& format) {
    const std::string upper = upperCase(format);
    const std::array<const char*, 9> dates = {"%T",    "%D",    "DATE", "ADATE",   "EDATE",
                                              "SDATE", "JDATE", "TIME", "DATETIME"};
    return std::any_of(dates.begin(), dates.end(),
                       [&](const char* start) { return upper.starts_with(start); });
}

/// What the helper writes.
class HelperOutput : public FrameBytes {
public:
    explicit HelperOutput(const StatisticsFile& file)
        : process_(file.helper, argumentsFor(file), limitsFor(file)) {}
    void read(std::span<char> bytes) override { process_.read(bytes); }
    void finish() override { process_.finish(); }

private:
    LimitedProcess process_;
};

/// Missing values in words; a bound that no number passes means none.
std::string rangeText(double lowest, double highest) {
    const bool fromAny = !(lowest > -beyondAll);
    const bool toAny = !(highest < beyondAll);
    if (fromAny && toAny)
        return "of all kinds";
    if (fromAny)
        return numberText(highest) + " and below";
    if (toAny)
        return numberText(lowest) + " and above";
    return numberText(lowest) + (lowest == highest ? "" : " to " + numberText(highest));
}

} // namespace

StatisticsSource::StatisticsSource(const StatisticsFile& file, const BytesRead& onRead)
    : StatisticsSource(file.data, std::make_unique<HelperOutput>(checked(file)), onRead) {}

StatisticsSource::StatisticsSource(const fs::path& file, std::unique_ptr<FrameBytes> frames,
                                   const BytesRead& onRead)
    : name_(file.string()), file_(file), onRead_(onRead), frames_(std::move(frames)) {
    std::error_code fault;
    const std::uintmax_t bytes = fs::file_size(file, fault);
    bytes_ = fault ? 0 : bytes;
    while (!ended_ && rowsLeft_ == 0)
        readFrame();
    notes_ = makeNames(fields_);
    for (std::size_t i = 0; i < fields_.size(); ++i)
        settleMissing(i);
    settleCodes();
    values_.resize(fields_.size());
}

void StatisticsSource::readFrame() {
    try {
        decodeFrame([this](std::span<char> bytes) { frames_->read(bytes); }, frame_);
        takeFrame();
    } catch (const StreamFault& fault) {
        throw storage::FileError(file_,
                                 std::string("cannot be read: its reader sends ") + fault.what());
    } catch (const storage::FileError&) {
        throw;
    } catch (const std::runtime_error& fault) {
        throw storage::FileError(file_, std::string("cannot be read: ") + fault.what());
    }
}

void StatisticsSource::takeFrame() {
    PayloadReader payload(frame_.payload);
    if (frame_.kind != FrameKind::Rows &&
        (descriptionBytes_ += frame_.payload.size()) > mostDescription)
        throw StreamFault("more names and labels than any file has");
    switch (frame_.kind) {
    case FrameKind::Size:
        expectedRows_ = payload.get<std::int64_t>();
        break;
    case FrameKind::Variable:
        takeVariable(payload);
        break;
    case FrameKind::Label:
        takeLabel(payload);
        break;
    case FrameKind::Weight: {
        const auto index = payload.get<std::uint32_t>();
        if (index >= fields_.size())
            throw StreamFault("a weight that is no variable");
        if (described_[index].isText)
            throw StreamFault("a weight that is a text");
        fields_[index].plan.role = FieldRole::Weight;
        break;
    }
    case FrameKind::Rows:
        rowsLeft_ = payload.get<std::uint32_t>();
        if (fields_.empty() || rowsLeft_ == 0)
            throw StreamFault("rows without values");
        rows_ = payload;
        return;
    case FrameKind::End:
        finish(payload);
        break;
    case FrameKind::Fault:
        throw std::runtime_error(std::string(payload.getText(longestText)));
    }
    if (!payload.atEnd())
        throw StreamFault("a frame with more than it should hold");
}

void StatisticsSource::takeVariable(PayloadReader& payload) {
    if (row_ > 0 || rows_ || fields_.size() == mostVariables)
        throw StreamFault("too many variables, or one behind the first row");
    if (payload.get<std::uint32_t>() != fields_.size())
        throw StreamFault("variables out of order");
    Described described;
    SourceField field;
    described.isText = payload.get<std::uint8_t>() != 0;
    field.name = payload.getText(longestText);
    field.plan.label = payload.getText(longestText);
    described.hasDates = isDateFormat(std::string(payload.getText(longestText)));
    described.labelSet = payload.getText(longestText);
    const auto ranges = payload.get<std::uint32_t>();
    if (ranges > mostMissingRanges)
        throw StreamFault("too many missing values");
    for (std::uint32_t i = 0; i < ranges; ++i) {
        const auto lowest = payload.get<double>();
        described.missing.push_back({lowest, payload.get<double>()});
    }
    described.hasMissingTexts = payload.get<std::uint8_t>() != 0;
    field.typeKnown = described.isText;
    field.plan.type = described.isText ? ValueType::String : ValueType::Integer;
    fields_.push_back(std::move(field));
    described_.push_back(std::move(described));
}

void StatisticsSource::takeLabel(PayloadReader& payload) {
    if (++labelCount_ > mostLabels)
        throw StreamFault("too many labels");
    const std::string set(payload.getText(longestText));
    Labelled labelled;
    switch (payload.getTag()) {
    case ValueTag::Number:
        labelled.number = payload.get<double>();
        break;
    case ValueTag::Text:
        labelled.isText = true;
        labelled.text = payload.getText(longestText);
        break;
    case ValueTag::Tagged:
        payload.get<char>(); // such values become blanks
        payload.getText(longestText);
        return;
    case ValueTag::Missing:
        throw StreamFault("a label of no value");
    }
    labelled.label = payload.getText(longestText);
    labels_[set].push_back(std::move(labelled));
}

void StatisticsSource::finish(PayloadReader& payload) {
    ended_ = true;
    if (payload.get<std::uint64_t>() != row_)
        throw StreamFault("another number of rows than it says");
    frames_->finish();
}

std::string StatisticsSource::endFault() const {
    if (expectedRows_ < 0 || static_cast<std::uint64_t>(expectedRows_) == row_)
        return {};
    return "the file says that it has " + std::to_string(expectedRows_) + " rows, but it has " +
           std::to_string(row_);
}

bool StatisticsSource::next() {
    while (rowsLeft_ == 0 && !ended_)
        readFrame();
    if (ended_) {
        settleCodes(); // some packages have their labels behind the data
        return false;
    }
    try {
        takeRow();
    } catch (const StreamFault& fault) {
        throw storage::FileError(file_,
                                 std::string("cannot be read: its reader sends ") + fault.what());
    }
    return true;
}

void StatisticsSource::takeRow() {
    for (std::size_t i = 0; i < values_.size(); ++i) {
        const ValueTag tag = rows_->getTag();
        const bool isText = tag == ValueTag::Text;
        if (tag == ValueTag::Missing) {
            values_[i] = {};
        } else if (tag == ValueTag::Tagged) {
            rows_->get<char>();
            ++described_[i].tagged;
            values_[i] = {};
        } else if (isText != described_[i].isText) {
            throw StreamFault("a value of another type than its variable's");
        } else if (isText) {
            const std::string_view text = rows_->getText();
            values_[i] = SourceValue::ofText(text.substr(0, text.find_last_not_of(' ') + 1));
        } else {
            const auto number = rows_->get<double>();
            values_[i] = std::isnan(number) ? SourceValue{} : SourceValue::ofNumber(number);
        }
    }
    --rowsLeft_;
    ++row_;
    if (rowsLeft_ == 0 && !rows_->atEnd())
        throw StreamFault("rows with more than they should hold");
    noteRow();
}

void StatisticsSource::noteRow() {
    if (!onRead_ || expectedRows_ <= 0 || row_ % 1024 != 0)
        return;
    const double share =
        std::min(1.0, static_cast<double>(row_) / static_cast<double>(expectedRows_));
    const auto done = static_cast<std::uint64_t>(share * static_cast<double>(bytes_));
    onRead_(done - std::min(done, told_));
    told_ = std::max(told_, done);
}

bool StatisticsSource::meansNotApplicable(const Described& variable, double code) const {
    const auto set = labels_.find(variable.labelSet);
    if (set == labels_.end())
        return false;
    const auto says = [&](const Labelled& labelled) {
        const std::string label = upperCase(labelled.label);
        const std::array<const char*, 5> words = {"NOT APPLIC", "INAPPLIC", "NOT IN UNIVERSE",
                                                  "NIU", "N/A"};
        return !labelled.isText && labelled.number == code &&
               std::any_of(words.begin(), words.end(),
                           [&](const char* word) { return label.find(word) != std::string::npos; });
    };
    return std::any_of(set->second.begin(), set->second.end(), says);
}

/// A variable has one missing and one not-applicable code: the missing values beyond them become
/// the missing code, so that they stay out of all figures.
void StatisticsSource::settleMissing(std::size_t field) {
    Described& variable = described_[field];
    for (const MissingRange& range : variable.missing) {
        const double code = std::isfinite(range.highest) && range.highest < beyondAll
                                ? range.highest
                                : range.lowest;
        const bool single = range.lowest == range.highest;
        if (single && !variable.notapp && meansNotApplicable(variable, code))
            variable.notapp = code;
        else if (!variable.missingCode || (single && !variable.missingIsSingle)) {
            variable.missingCode = code;
            variable.missingIsSingle = single;
        }
    }
    if (!variable.missingCode)
        return;
    std::string others;
    for (const MissingRange& range : variable.missing) {
        const bool single = range.lowest == range.highest;
        if (single && (range.lowest == variable.missingCode || range.lowest == variable.notapp))
            continue;
        fields_[field].plan.recodes.push_back({range.lowest, range.highest, *variable.missingCode});
        others += (others.empty() ? "" : ", ") + rangeText(range.lowest, range.highest);
    }
    if (variable.notapp) // within a range of missing values, it stays what it is
        fields_[field].plan.recodes.insert(fields_[field].plan.recodes.begin(),
                                           {*variable.notapp, *variable.notapp, *variable.notapp});
    if (!others.empty())
        notes_.push_back(fields_[field].plan.name + ": the missing values " + others +
                         " became the missing code " + numberText(*variable.missingCode));
}

void StatisticsSource::settleCodes() {
    std::size_t codes = 0;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        FieldPlan& plan = fields_[i].plan;
        const Described& variable = described_[i];
        plan.codes.clear();
        const auto set = labels_.find(variable.labelSet);
        if (set != labels_.end())
            for (const Labelled& labelled : set->second)
                addCode(plan, variable, labelled);
        addSpecial(plan, variable.missingCode, CodeMeaning::Missing);
        addSpecial(plan, variable.notapp, CodeMeaning::NotApplicable);
        if ((codes += plan.codes.size()) > mostLabels)
            throw storage::FileError(file_, "has more labels than can be held");
    }
}

void StatisticsSource::addCode(FieldPlan& plan, const Described& variable,
                               const Labelled& labelled) {
    if (labelled.isText != variable.isText || labelled.label.empty() ||
        (!labelled.isText && !std::isfinite(labelled.number)))
        return;
    for (const Recode& recode : plan.recodes)
        if (!labelled.isText && labelled.number >= recode.lowest &&
            labelled.number <= recode.highest && labelled.number != recode.code)
            return; // no such value is left
    CodeEntry entry;
    entry.code = labelled.isText ? labelled.text.substr(0, labelled.text.find_last_not_of(' ') + 1)
                                 : numberText(labelled.number);
    entry.label = labelled.label;
    plan.codes.push_back(std::move(entry));
}

void StatisticsSource::addSpecial(FieldPlan& plan, const std::optional<double>& code,
                                  CodeMeaning meaning) {
    if (!code)
        return;
    const std::string text = numberText(*code);
    const auto found = std::find_if(plan.codes.begin(), plan.codes.end(),
                                    [&](const CodeEntry& entry) { return entry.code == text; });
    if (found != plan.codes.end())
        found->meaning = meaning;
    else
        plan.codes.push_back({text, "", meaning});
}

std::vector<std::string> StatisticsSource::notes() const {
    std::vector<std::string> notes = notes_;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const std::string& name = fields_[i].plan.name;
        if (described_[i].tagged > 0)
            notes.push_back(name + ": " + std::to_string(described_[i].tagged) +
                            " missing values with a letter became blank");
        if (described_[i].hasMissingTexts)
            notes.push_back(name + ": texts that mean missing stay as they are");
        if (described_[i].hasDates && !described_[i].isText)
            notes.push_back(name + " holds dates or times as the package's numbers");
    }
    return notes;
}

} // namespace kelx::tools

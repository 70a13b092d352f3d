// SPDX-License-Identifier: Apache-2.0
// A file of a statistics package, read by a helper process.
#pragma once

#include "import/row_source.h"
#include "import/statistics_stream.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kelx::tools {

struct StatisticsFile {
    std::filesystem::path data;
    std::filesystem::path formats; ///< labels of a .sas7bdat; may be empty
    std::string encoding;          ///< empty: what the file says
    std::filesystem::path helper;
    std::chrono::seconds silence{60};
};

/// Rows and variables count from 1 in places. Values without a number that a package can mark as
/// missing become blanks. Throws storage::FileError that names the file where its reader fails.
class StatisticsSource : public RowSource {
public:
    StatisticsSource(const StatisticsFile& file, const BytesRead& onRead);
    /// What a helper says of the file.
    StatisticsSource(const std::filesystem::path& file, std::unique_ptr<FrameBytes> frames,
                     const BytesRead& onRead);

    const std::string& name() const override { return name_; }
    const std::vector<SourceField>& fields() const override { return fields_; }
    bool next() override;
    SourceValue value(std::size_t field) const override { return values_[field]; }
    Place place(std::size_t field) const override { return {row_, field + 1}; }
    std::string endFault() const override;
    std::vector<std::string> notes() const override;

private:
    struct Labelled {
        bool isText = false;
        double number = 0;
        std::string text, label;
    };
    struct MissingRange {
        double lowest = 0, highest = 0;
    };
    struct Described {
        bool isText = false;
        std::string labelSet;
        std::vector<MissingRange> missing;
        std::optional<double> missingCode, notapp;
        bool missingIsSingle = false; ///< the code is one of the package's, not a bound
        bool hasMissingTexts = false;
        bool hasDates = false;
        std::uint64_t tagged = 0; ///< values that are missing with a letter
    };

    void readFrame();
    void takeFrame();
    void takeVariable(PayloadReader& payload);
    void takeLabel(PayloadReader& payload);
    void takeRow();
    void finish(PayloadReader& payload);
    void settleMissing(std::size_t field);
    void settleCodes();
    static void addCode(FieldPlan& plan, const Described& variable, const Labelled& labelled);
    static void addSpecial(FieldPlan& plan, const std::optional<double>& code, CodeMeaning meaning);
    bool meansNotApplicable(const Described& variable, double code) const;
    void noteRow();

    std::string name_;
    std::filesystem::path file_;
    BytesRead onRead_;
    std::uint64_t bytes_ = 0, told_ = 0;
    std::int64_t expectedRows_ = -1;
    std::unique_ptr<FrameBytes> frames_;
    Frame frame_;
    std::optional<PayloadReader> rows_;
    std::uint32_t rowsLeft_ = 0;
    bool ended_ = false;
    std::uint64_t row_ = 0;
    std::vector<SourceField> fields_;
    std::vector<Described> described_;
    std::map<std::string, std::vector<Labelled>> labels_;
    std::size_t labelCount_ = 0, descriptionBytes_ = 0;
    std::vector<SourceValue> values_;
    std::vector<std::string> notes_;
};

} // namespace kelx::tools

// SPDX-License-Identifier: Apache-2.0
#include "storage/column_writer.h"

#include "storage/coding.h"
#include "storage/column_file.h"
#include "storage/spool.h"
#include "storage/text_table.h"

#include <limits>

namespace kelx::storage {

namespace {

/// Refuses what a kind of column does not hold.
class WriterBase : public ColumnWriter {
public:
    explicit WriterBase(std::filesystem::path file) : file_(std::move(file)) {}
    void addInteger(std::int64_t) override { refuse("whole numbers"); }
    void addReal(double) override { refuse("real numbers"); }
    void addText(std::string_view) override { refuse("texts"); }

protected:
    [[noreturn]] void refuse(const char* what) const {
        throw FileError(file_, std::string("is a column that holds no ") + what);
    }
    std::filesystem::path file_;
};

/// Gathers values to blocks for a file whose form is known.
template <class T>
class BlockWriter {
public:
    BlockWriter(const std::filesystem::path& file, const ColumnFileBuilder::Form& form,
                const std::shared_ptr<const Secret>& key)
        : builder_(file, form, key), block_(recordsPerBlock) {}

    void add(T value) {
        block_[fill_] = value;
        if (++fill_ == recordsPerBlock)
            flush();
    }
    std::uint64_t records() const { return records_ + fill_; }
    ColumnFileBuilder& finish() {
        if (fill_ > 0)
            flush();
        return builder_;
    }

private:
    void flush() {
        builder_.addBlock(block_.data(), fill_);
        records_ += fill_;
        fill_ = 0;
    }
    ColumnFileBuilder builder_;
    std::vector<T> block_;
    std::size_t fill_ = 0;
    std::uint64_t records_ = 0;
};

/// Whole numbers or truth values within bounds known beforehand.
template <class Code>
class DirectWriter final : public WriterBase {
public:
    DirectWriter(const std::filesystem::path& file, const ColumnPlan& plan, std::int64_t lowest,
                 std::int64_t highest)
        : WriterBase(file), lowest_(lowest), highest_(highest),
          base_(integerForm(lowest, highest).base),
          blocks_(file, {plan.type, integerForm(lowest, highest).physical, base_, plan.decimals},
                  plan.key) {}

    void addInteger(std::int64_t value) override {
        if (value < lowest_ || value > highest_)
            throw FileError(file_, "cannot hold " + std::to_string(value) +
                                       ", which lies outside " + std::to_string(lowest_) + " to " +
                                       std::to_string(highest_));
        blocks_.add(static_cast<Code>(codeOf(value, base_)));
    }
    void addBlank() override { blocks_.add(std::numeric_limits<Code>::max()); }
    std::uint64_t records() const override { return blocks_.records(); }
    void commit() override { blocks_.finish().commit(); }

private:
    std::int64_t lowest_;
    std::int64_t highest_;
    std::int64_t base_;
    BlockWriter<Code> blocks_;
};

class RealWriter final : public WriterBase {
public:
    RealWriter(const std::filesystem::path& file, const ColumnPlan& plan)
        : WriterBase(file),
          blocks_(file, {plan.type, Physical::Real64, 0, plan.decimals}, plan.key) {}

    void addReal(double value) override { blocks_.add(value); }
    void addBlank() override { blocks_.add(std::numeric_limits<double>::quiet_NaN()); }
    std::uint64_t records() const override { return blocks_.records(); }
    void commit() override { blocks_.finish().commit(); }

private:
    BlockWriter<double> blocks_;
};

/// Writes what a spool holds, each value turned into its code by codeFor, and then complete.
template <class CodeFor, class Complete>
void drain(Spool& spool, const std::filesystem::path& file, const ColumnFileBuilder::Form& form,
           const std::shared_ptr<const Secret>& key, CodeFor codeFor, Complete complete) {
    withCode(form.physical, [&]<class Code>(Code) {
        BlockWriter<Code> blocks(file, form, key);
        spool.replay([&](const std::int64_t* values, const std::uint8_t* blank, std::size_t count) {
            for (std::size_t i = 0; i < count; ++i)
                blocks.add(blank[i] != 0 ? std::numeric_limits<Code>::max()
                                         : static_cast<Code>(codeFor(values[i])));
        });
        complete(blocks.finish());
    });
}

class SpooledWriter final : public WriterBase {
public:
    SpooledWriter(const std::filesystem::path& file, const ColumnPlan& plan)
        : WriterBase(file), plan_(plan), spool_(file) {}

    void addInteger(std::int64_t value) override { spool_.add(value); }
    void addBlank() override { spool_.addBlank(); }
    std::uint64_t records() const override { return spool_.records(); }
    void commit() override {
        spool_.finish();
        const auto form = integerForm(spool_.lowest(), spool_.highest());
        drain(
            spool_, file_, {plan_.type, form.physical, form.base, plan_.decimals}, plan_.key,
            [&](std::int64_t value) { return codeOf(value, form.base); },
            [](ColumnFileBuilder& builder) { builder.commit(); });
    }

private:
    ColumnPlan plan_;
    Spool spool_;
};

/// Texts are numbered as they come and renumbered by their order at the end.
class TextWriter final : public WriterBase {
public:
    TextWriter(const std::filesystem::path& file, const ColumnPlan& plan)
        : WriterBase(file), plan_(plan), spool_(file), texts_(file) {}

    void addText(std::string_view utf8) override { spool_.add(texts_.numberOf(utf8)); }
    void addBlank() override { spool_.addBlank(); }
    std::uint64_t records() const override { return spool_.records(); }
    void commit() override {
        spool_.finish();
        texts_.sort();
        const auto physical = physicalFor(texts_.size() == 0 ? 0 : texts_.size() - 1);
        drain(
            spool_, file_, {plan_.type, physical, 0, plan_.decimals}, plan_.key,
            [&](std::int64_t number) { return texts_.ranks()[static_cast<std::size_t>(number)]; },
            [&](ColumnFileBuilder& builder) {
                builder.addTexts(texts_.sorted());
                builder.commit();
            });
    }

private:
    ColumnPlan plan_;
    Spool spool_;
    TextTable texts_;
};

std::unique_ptr<ColumnWriter> directWriter(const std::filesystem::path& file,
                                           const ColumnPlan& plan, std::int64_t lowest,
                                           std::int64_t highest) {
    if (lowest > highest)
        throw FileError(file, "cannot be created: its lowest value is above its highest");
    requireCodes(lowest, highest, file);
    return withCode(integerForm(lowest, highest).physical,
                    [&]<class Code>(Code) -> std::unique_ptr<ColumnWriter> {
                        return std::make_unique<DirectWriter<Code>>(file, plan, lowest, highest);
                    });
}

} // namespace

std::unique_ptr<ColumnWriter> ColumnWriter::create(const std::filesystem::path& file,
                                                   const ColumnPlan& plan) {
    switch (plan.type) {
    case ValueType::Integer:
        if (plan.lowest && plan.highest)
            return directWriter(file, plan, *plan.lowest, *plan.highest);
        return std::make_unique<SpooledWriter>(file, plan);
    case ValueType::Boolean:
        return directWriter(file, plan, 0, 1);
    case ValueType::Real:
        return std::make_unique<RealWriter>(file, plan);
    case ValueType::String:
        return std::make_unique<TextWriter>(file, plan);
    case ValueType::None:
        break;
    }
    throw FileError(file, "cannot be created: a column needs a type");
}

} // namespace kelx::storage

// SPDX-License-Identifier: Apache-2.0
// Where values come from: constants, columns, codes of areas, and spreading to records below.
#include "execution/kernels.h"
#include "execution/node.h"
#include "execution/typed_data.h"
#include "execution/value_states.h"
#include "plan/area_codes.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace kelx::execution {
namespace {

class ConstantNode : public Node {
public:
    explicit ConstantNode(const language::Constant& constant)
        : Node(typeOf(constant), nullptr), constant_(constant) {
        result_.constant = true;
        if (const auto* text = std::get_if<std::string>(&constant_))
            result_.texts = {*text};
        else if (const auto* flag = std::get_if<bool>(&constant_))
            result_.truths = {*flag ? truth : std::uint8_t{0}};
        else if (const auto* real = std::get_if<double>(&constant_))
            result_.reals = {*real};
        else
            result_.integers = {std::get<std::int64_t>(constant_)};
    }

    bool mayBeTrue(const plan::RecordRange&) const override {
        return type() != ValueType::Boolean || result_.truths[0] != 0;
    }

protected:
    void work(Frames&, std::size_t) override {}

private:
    static ValueType typeOf(const language::Constant& constant) {
        constexpr ValueType types[] = {ValueType::Integer, ValueType::Real, ValueType::String,
                                       ValueType::Boolean};
        return types[constant.index()];
    }
    language::Constant constant_;
};

/// The stored values of a variable with their states.
class VariableNode : public Node {
public:
    explicit VariableNode(const catalog::Variable& variable)
        : Node(variable.column()->info().type, variable.entity), column_(variable.column()),
          states_(variable) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        const Frame frame = frames.frame(*entity());
        const void* data = column_->read(frame.begin, count, scratch_);
        const bool mayBeBlank = column_->info().blanks > 0 || column_->info().naCode;
        result_.allValid = !mayBeBlank && !states_.any();
        result_.states.resize(count);
        if (type() == ValueType::Real)
            return readReals(static_cast<const double*>(data), count);
        withCodes(data, column_->info().physical, [&](const auto* codes) {
            if (type() == ValueType::Integer)
                readIntegers(codes, count);
            else if (type() == ValueType::String)
                readTexts(codes, count);
            else
                readTruths(codes, count);
        });
    }

private:
    void readReals(const double* values, std::size_t count) {
        result_.reals.assign(values, values + count);
        if (result_.allValid)
            return;
        for (std::size_t i = 0; i < count; ++i)
            result_.states[i] = std::isnan(values[i]) ? state::blank : states_.ofNumber(values[i]);
        if (!column_->info().naCode)
            return;
        for (std::size_t i = 0; i < count; ++i) {
            if (std::bit_cast<std::uint64_t>(values[i]) == storage::naRealBits)
                result_.states[i] = state::blankNotApplicable;
        }
    }

    template <class Code>
    void readIntegers(const Code* codes, std::size_t count) {
        const auto base = static_cast<std::uint64_t>(column_->info().base);
        result_.integers.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            result_.integers[i] = static_cast<std::int64_t>(base + codes[i]);
        if (result_.allValid)
            return;
        for (std::size_t i = 0; i < count; ++i)
            result_.states[i] =
                isBlank(codes[i]) ? state::blank : states_.ofInteger(result_.integers[i]);
        markNotApplicable(codes, count);
    }

    /// What has the column's own code for NA has no stored code.
    template <class Code>
    void markNotApplicable(const Code* codes, std::size_t count) {
        if (!column_->info().naCode)
            return;
        const auto na = static_cast<Code>(*column_->info().naCode);
        for (std::size_t i = 0; i < count; ++i) {
            if (codes[i] == na)
                result_.states[i] = state::blankNotApplicable;
        }
    }

    template <class Code>
    void readTruths(const Code* codes, std::size_t count) {
        result_.truths.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            const bool blank = isBlank(codes[i]);
            result_.truths[i] = !blank && codes[i] != 0 ? truth : 0;
            result_.states[i] = blank ? state::blank : states_.ofInteger(codes[i] != 0 ? 1 : 0);
        }
        markNotApplicable(codes, count);
    }

    template <class Code>
    void readTexts(const Code* codes, std::size_t count) {
        result_.texts.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            const bool blank = isBlank(codes[i]);
            result_.texts[i] = blank ? std::string_view{} : column_->text(codes[i]);
            result_.states[i] = blank ? state::blank : states_.ofText(result_.texts[i]);
        }
        markNotApplicable(codes, count);
    }

    template <class Code>
    static bool isBlank(Code code) {
        return code == static_cast<Code>(~Code{0});
    }

    std::shared_ptr<const storage::Column> column_;
    storage::ColumnScratch scratch_;
    ValueStates states_;
};

class CompoundCodeNode : public Node {
public:
    explicit CompoundCodeNode(const Entity& entity)
        : Node(ValueType::String, &entity), codes_(entity) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        const Frame frame = frames.frame(*entity());
        result_.made.resize(count);
        result_.texts.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            result_.made[i] = codes_.at(frame.begin + i);
            result_.texts[i] = result_.made[i];
        }
    }

private:
    plan::CompoundCodes codes_;
};

/// Values of an upper entity for each record of a lower one, as runs.
class SpreadNode : public Node {
public:
    SpreadNode(Node& from, const Entity& at)
        : Node(from.type(), &at), from_(from), path_(*from.entity(), at) {}

    bool mayBeTrue(const plan::RecordRange& records) const override {
        const std::uint64_t first = path_.above(records.begin);
        return from_.mayBeTrue({first, path_.above(records.end - 1, first) + 1});
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Vector& upper = from_.value(frames);
        const auto& ends = frames.runEnds(*from_.entity(), *entity());
        result_.allValid = upper.allValid;
        switch (type()) {
        case ValueType::Integer:
            spread(upper.integers, ends, count, result_.integers);
            break;
        case ValueType::Real:
            spread(upper.reals, ends, count, result_.reals);
            break;
        case ValueType::String:
            spread(upper.texts, ends, count, result_.texts);
            break;
        default:
            spread(upper.truths, ends, count, result_.truths);
        }
        if (!upper.allValid)
            spread(upper.states, ends, count, result_.states);
    }

private:
    template <class T>
    static void spread(const std::vector<T>& values, const std::vector<std::uint32_t>& ends,
                       std::size_t count, std::vector<T>& out) {
        out.resize(count + expandSlack / sizeof(T));
        if constexpr (std::is_same_v<T, std::uint8_t>) {
            kernels().code8.expand(values.data(), ends.data(), ends.size(), out.data());
        } else if constexpr (std::is_same_v<T, double>) {
            kernels().expandReal(values.data(), ends.data(), ends.size(), out.data());
        } else {
            std::size_t begin = 0;
            for (std::size_t run = 0; run < ends.size(); ++run) {
                std::fill(out.begin() + static_cast<std::ptrdiff_t>(begin),
                          out.begin() + static_cast<std::ptrdiff_t>(ends[run]), values[run]);
                begin = ends[run];
            }
        }
        out.resize(count);
    }

    Node& from_;
    plan::DescentPath path_;
};

} // namespace

std::unique_ptr<Node> makeConstant(const language::Constant& constant) {
    return std::make_unique<ConstantNode>(constant);
}

std::unique_ptr<Node> makeVariable(const catalog::Variable& variable) {
    return std::make_unique<VariableNode>(variable);
}

std::unique_ptr<Node> makeCompoundCode(const Entity& entity) {
    return std::make_unique<CompoundCodeNode>(entity);
}

std::unique_ptr<Node> makeSpread(Node& from, const Entity& at) {
    return std::make_unique<SpreadNode>(from, at);
}

} // namespace kelx::execution

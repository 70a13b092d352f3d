// SPDX-License-Identifier: Apache-2.0
// SWITCH: the value of the first case that holds.
#include "execution/case_lookups.h"

#include <stdexcept>
#include <utility>

namespace kelx::execution {
namespace {

using language::Expression;

class SwitchNode : public Node {
public:
    struct Test {
        Node* node;
        Choice number;
    };

    SwitchNode(Choices choices, std::vector<std::unique_ptr<CaseLookup>> lookups,
               std::vector<Test> tests, const Entity* entity)
        : Node(choices.type(), entity), choices_(std::move(choices)), lookups_(std::move(lookups)),
          tests_(std::move(tests)) {
        result_.constant = entity == nullptr;
        for (const Test& test : tests_) {
            if (test.node->type() != ValueType::Boolean)
                throw std::runtime_error("CASE takes truth values only.");
        }
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        chosen_.assign(count, choices_.rest());
        for (const auto& lookup : lookups_)
            lookup->choose(frames, chosen_);
        std::size_t open = 0; // records before it have a case that goes before all that follow
        for (const Test& test : tests_) {
            while (open < count && chosen_[open] < test.number)
                ++open;
            if (open == count)
                break;
            take(test.node->value(frames), test.number, open);
        }
        choices_.fill(frames, chosen_, result_);
    }

private:
    void take(const Vector& test, Choice number, std::size_t begin) {
        const std::size_t step = test.constant ? 0 : 1;
        for (std::size_t i = begin; i < chosen_.size(); ++i) {
            const bool holds = test.truths[i * step] != 0 && test.stateAt(i) == state::valid;
            chosen_[i] = holds && number < chosen_[i] ? number : chosen_[i];
        }
    }

    Choices choices_;
    std::vector<std::unique_ptr<CaseLookup>> lookups_;
    std::vector<Test> tests_; ///< ascending
    std::vector<Choice> chosen_;
};

} // namespace

std::unique_ptr<Node> makeSwitch(const Expression& expression, const NodeOf& nodeOf) {
    const auto& arguments = expression.arguments;
    std::vector<Node*> values;
    for (std::size_t i = 1; i < arguments.size(); i += 2)
        values.push_back(&nodeOf(*arguments[i]));
    const bool hasElse = arguments.size() % 2 == 1;
    if (hasElse)
        values.push_back(&nodeOf(*arguments.back()));
    Choices choices(std::move(values), hasElse);
    std::vector<SingleCase> singles;
    std::vector<std::unique_ptr<CaseLookup>> lookups;
    if (expression.entity != nullptr) {
        CaseSorter sorter(*expression.entity, choices.rest());
        for (std::size_t i = 0; i + 1 < arguments.size(); i += 2)
            sorter.add(*arguments[i], static_cast<Choice>(i / 2));
        lookups = sorter.lookups(nodeOf);
        singles = sorter.singles();
    } else {
        for (std::size_t i = 0; i + 1 < arguments.size(); i += 2)
            singles.push_back({arguments[i].get(), static_cast<Choice>(i / 2)});
    }
    std::vector<SwitchNode::Test> tests;
    for (const SingleCase& single : singles)
        tests.push_back({&nodeOf(*single.test), single.number});
    return std::make_unique<SwitchNode>(std::move(choices), std::move(lookups), std::move(tests),
                                        expression.entity);
}

} // namespace kelx::execution

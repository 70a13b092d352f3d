// SPDX-License-Identifier: Apache-2.0
// Expressions made ready to run: a tree of nodes, each of which works on whole stretches.
#pragma once

#include "execution/frames.h"
#include "execution/vector.h"
#include "language/bound.h"
#include "plan/same_expression.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace kelx::execution {

/// A part of an expression. It belongs to an entity and has a value for each record of that
/// entity's frame. One for each thread.
class Node {
public:
    /// A null entity is that of a constant.
    Node(ValueType type, const Entity* entity) : entity_(entity) { result_.type = type; }
    virtual ~Node() = default;
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    ValueType type() const { return result_.type; }
    const Entity* entity() const { return entity_; }
    /// The values over the current frame; worked out once a step.
    const Vector& value(Frames& frames);
    /// False where no record of a range of the node's entity can be true, as the zones of columns
    /// tell. The range is not empty; a constant takes any.
    virtual bool mayBeTrue(const plan::RecordRange& /*records*/) const { return true; }

protected:
    /// Fills result_; count is the length of the entity's frame, 1 for a constant.
    virtual void work(Frames& frames, std::size_t count) = 0;
    Vector result_;

private:
    const Entity* entity_;
    std::uint64_t serial_ = 0;
};

class LowerConditions;

/// Makes nodes and keeps them. Equal expressions become the same node, so that tables of a pass
/// share their work.
class NodePool {
public:
    /// Conditions on entities below are asked of lower, which must outlive the pool's filters.
    explicit NodePool(const LowerConditions* lower = nullptr) : lower_(lower) {}
    /// The node of an expression, its values spread to the records of entity at, which is at or
    /// below the expression's own. Throws storage::FileError, or std::runtime_error on what is not
    /// supported.
    Node& at(const language::Expression& expression, const Entity& at);
    /// The node with values for its own entity's records.
    Node& own(const language::Expression& expression);
    const LowerConditions* lower() const { return lower_; }
    std::size_t size() const { return nodes_.size(); } ///< how many nodes there are

private:
    std::unique_ptr<Node> make(const language::Expression& expression);
    std::unique_ptr<Node> makeMergedOr(const language::Expression& expression);
    Node& argument(const language::Expression& argument, const language::Expression& of);
    std::vector<Node*> argumentsOf(const language::Expression& expression);
    Node& keep(std::unique_ptr<Node> node);

    const LowerConditions* lower_;
    std::vector<std::unique_ptr<Node>> nodes_;
    std::vector<std::unique_ptr<language::Expression>> made_; ///< expressions of some nodes
    plan::ExpressionMap<Node*> known_;
    std::map<std::pair<Node*, const Entity*>, Node*> spread_;
};

// Makers of the kinds of nodes, by the file that has them.
std::unique_ptr<Node> makeConstant(const language::Constant& constant);
std::unique_ptr<Node> makeVariable(const catalog::Variable& variable);
std::unique_ptr<Node> makeCompoundCode(const Entity& entity);
std::unique_ptr<Node> makeSpread(Node& from, const Entity& at);
/// Null where the comparison cannot be made on codes.
std::unique_ptr<Node> makeCodeTest(const language::Expression& expression);
std::unique_ptr<Node> makeComparison(const language::Expression& expression, Node& left,
                                     Node& right);
std::unique_ptr<Node> makeIn(const language::Expression& expression, Node& operand);
std::unique_ptr<Node> makeLogic(language::Operation operation, std::vector<Node*> operands,
                                const Entity* entity);
std::unique_ptr<Node> makeArithmetic(language::Operation operation, std::vector<Node*> operands,
                                     const Entity* entity);
std::unique_ptr<Node> makeFunction(const std::string& name, std::vector<Node*> arguments,
                                   const Entity* entity);
/// Records that nothing takes are MV and untaken.
std::unique_ptr<Node> makeRecode(const language::Expression& expression,
                                 std::vector<Node*> arguments);
using NodeOf = std::function<Node&(const language::Expression&)>;
std::unique_ptr<Node> makeSwitch(const language::Expression& expression, const NodeOf& nodeOf);
/// NUMBER, SAMPLE and the record's number.
std::unique_ptr<Node> makeRecordNode(const language::Expression& expression);

/// A view of numbers (or truth values) as doubles or integers, converted where need be.
class NumberView {
public:
    const double* reals(const Vector& vector);
    const std::int64_t* integers(const Vector& vector);

private:
    std::vector<double> reals_;
    std::vector<std::int64_t> integers_;
};

/// States for two operands together; fills result.states unless all are valid.
void combineStates(const Vector& a, const Vector& b, std::size_t count, Vector& result);
bool isNumber(ValueType type);

} // namespace kelx::execution

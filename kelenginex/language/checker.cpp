// SPDX-License-Identifier: Apache-2.0
#include "language/checker.h"

#include "language/definition_checker.h"
#include "language/expression_checker.h"
#include "language/program_caller.h"
#include "language/run_checker.h"
#include "language/table_checker.h"
#include "language/uses.h"

namespace kelx::language {

namespace {

class Checker {
public:
    explicit Checker(CheckerContext& context)
        : context_(context), expressions_(context), runs_(context, expressions_),
          definitions_(context, expressions_), tables_(context, expressions_, bound_),
          calls_(context), settings_(runs_.defaults()) {}

    BoundProgram run(const ast::Program& program) {
        takeAll(program);
        tables_.finish();
        bound_.lastSettings = settings_.settings;
        markUsed(bound_);
        context_.files().report(context_);
        return std::move(bound_);
    }

private:
    void takeAll(const ast::Program& program) {
        for (const ast::Command& command : program)
            std::visit([this](const auto& c) { take(c); }, command);
    }
    void take(const ast::RunDefinition& run) { settings_ = runs_.check(run); }
    void take(const ast::WeightCommand& command) {
        settings_ = runs_.setWeight(expressions_.number(*command.weight, "WEIGHT"), settings_);
    }
    void take(const ast::StyleCommand& style) { settings_ = runs_.setStyle(style, settings_); }
    void take(const ast::Definition& definition) {
        definitions_.check(definition, settings_, bound_);
    }
    void take(const ast::Table& table) { tables_.check(table, settings_); }

    void take(const ast::Execute& command) {
        calls_.call(command, [this](const ast::Program& program) { takeAll(program); });
    }

    CheckerContext& context_;
    ExpressionChecker expressions_;
    RunChecker runs_;
    DefinitionChecker definitions_;
    BoundProgram bound_;
    TableChecker tables_;
    ProgramCaller calls_;
    CheckedSettings settings_;
};

} // namespace

BoundProgram check(const ast::Program& program, CheckerContext& context) {
    return Checker(context).run(program);
}

} // namespace kelx::language

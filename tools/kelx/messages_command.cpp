// SPDX-License-Identifier: Apache-2.0
#include "commands.h"
#include "language/message_reference.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

namespace kelx::tool {

namespace {

int showMessages(const std::string& name) {
    if (name.empty()) {
        std::cout << language::messageReference();
        return success;
    }
    const language::MessageEntry* entry = language::findMessage(name);
    if (entry == nullptr)
        throw std::runtime_error("there is no message \"" + name + "\"");
    std::cout << language::describe(*entry);
    return success;
}

} // namespace

void addMessages(CLI::App& app, Action& action) {
    CLI::App* command =
        app.add_subcommand("messages", "Tell what the messages about a program mean");
    auto name = std::make_shared<std::string>();
    command->add_option("name", *name, "One message, such as KEL_E_UNKNOWN_VARIABLE");
    command->callback([&action, name] { action = [name] { return showMessages(*name); }; });
}

} // namespace kelx::tool

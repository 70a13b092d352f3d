// SPDX-License-Identifier: Apache-2.0
// The messages of the language as a document: docs/messages.md is this text.
#pragma once

#include "language/message_table.h"

#include <string>

namespace kelx::language {

/// Markdown, with a section for each message.
std::string messageReference();
/// One message as plain text: name, pattern, what it means. %1 and the like become dots.
std::string describe(const MessageEntry& entry);
/// By symbolic name in any case, with or without KEL_; null where there is none.
const MessageEntry* findMessage(const std::string& name);

} // namespace kelx::language

// SPDX-License-Identifier: Apache-2.0
// Marks what the engine library exports.
#pragma once

#define KEL_EXPORT __attribute__((visibility("default")))

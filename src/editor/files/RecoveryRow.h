// SPDX-License-Identifier: GPL-3.0-or-later
// What the user is told of a recovery copy before he decides on it.
#pragma once

#include <QString>

struct RecoveryCopy;

/// How the file of a copy stands to it now.
enum class RecoveryOrigin { Untitled, Gone, Unreadable, Same, Older, Newer };

/// Reads the file.
RecoveryOrigin originOf(const RecoveryCopy& copy);
/// For the user.
QString originText(RecoveryOrigin origin);
/// The first line that is not blank, cut where it is long.
QString previewOf(const QString& text);

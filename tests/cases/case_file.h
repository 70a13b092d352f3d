// SPDX-License-Identifier: GPL-3.0-or-later
// A case: a program, the database that it runs on, and what must come of it. README.md describes
// the form of the files.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kelx::test {

using Cells = std::vector<std::string>;

/// A table that a program must give.
struct ExpectedTable {
    std::string name;
    int line = 0;                             ///< in the case's file
    std::map<std::string, std::string> facts; ///< of lines "@fact value"
    std::vector<Cells> rows;
    double tolerance = 0; ///< relative, of figures; 0: the same text
};

struct Case {
    std::string title;
    std::filesystem::path file;
    int line = 0;
    std::string database;
    bool autoWeight = true;            ///< of the configuration
    bool intermediate = false;         ///< the same
    std::vector<std::string> programs; ///< run one after the other; the last one's tables count
    std::vector<std::pair<std::string, std::string>> files; ///< names and texts, in its folder
    bool hasTables = false;                                 ///< else tables are not compared
    std::vector<ExpectedTable> tables;
    std::vector<std::string> messages; ///< "KEL_E_NAME 1:2", and perhaps a part of the text
};

/// Throws std::runtime_error with file and line where the text is no case.
std::vector<Case> readCases(const std::filesystem::path& file);

/// The cells of a line, without the blanks around them and without the quotes of a quoted one.
Cells splitRow(const std::string& line);
/// The line of some cells; those that need quotes have them.
std::string joinRow(const Cells& cells);

} // namespace kelx::test

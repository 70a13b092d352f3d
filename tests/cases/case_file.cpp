// SPDX-License-Identifier: GPL-3.0-or-later
#include "case_file.h"

#include <fstream>
#include <set>
#include <stdexcept>

namespace kelx::test {

namespace {

constexpr std::size_t indent = 4;

std::string trimmed(const std::string& text) {
    const auto begin = text.find_first_not_of(" \t");
    return begin == std::string::npos
               ? std::string()
               : text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

class Reader {
public:
    explicit Reader(const std::filesystem::path& file) : file_(file), stream_(file) {
        if (!stream_)
            throw std::runtime_error("cannot open " + file.string());
    }

    std::vector<Case> read() {
        while (next()) {
            if (line_.empty() || line_[0] == '#')
                continue;
            const auto blank = line_.find(' ');
            const std::string word = line_.substr(0, blank);
            const std::string rest = blank == std::string::npos ? "" : trimmed(line_.substr(blank));
            if (word == "database" && cases_.empty())
                database_ = rest;
            else if (word == "case")
                begin(rest);
            else if (cases_.empty())
                fail("expected a case");
            else
                readPart(word, rest);
        }
        if (cases_.empty())
            fail("no cases");
        return std::move(cases_);
    }

private:
    bool next() {
        if (again_) {
            again_ = false;
            return true;
        }
        ++number_;
        return static_cast<bool>(std::getline(stream_, line_));
    }

    [[noreturn]] void fail(const std::string& problem) const {
        throw std::runtime_error(file_.string() + ":" + std::to_string(number_) + ": " + problem);
    }

    void begin(const std::string& title) {
        if (title.empty() || !titles_.insert(title).second)
            fail("a case needs a title of its own");
        Case made;
        made.title = title;
        made.file = file_;
        made.line = number_;
        made.database = database_;
        cases_.push_back(std::move(made));
    }

    void readPart(const std::string& word, const std::string& rest) {
        Case& current = cases_.back();
        if (word == "database")
            current.database = rest;
        else if (word == "program")
            current.programs.push_back(block());
        else if (word == "file")
            current.files.emplace_back(rest, block());
        else if (word == "table")
            readTable(rest);
        else if (word == "tables" && rest == "none")
            current.hasTables = true;
        else if (word == "messages")
            current.messages = lines();
        else if (word == "config")
            configure(current, rest);
        else if (word == "check")
            block(); // how figures.py makes the table above
        else
            fail("unknown word " + word);
    }

    void configure(Case& current, const std::string& setting) {
        if (setting == "noweight")
            current.autoWeight = false;
        else if (setting == "intermediate")
            current.intermediate = true;
        else
            fail("unknown setting " + setting);
    }

    /// The indented lines that follow; blank lines inside belong to them.
    std::vector<std::string> lines() {
        std::vector<std::string> result;
        std::size_t kept = 0;
        while (next()) {
            const bool blank = line_.find_first_not_of(' ') == std::string::npos;
            if (!blank && !line_.starts_with(std::string(indent, ' '))) {
                again_ = true;
                break;
            }
            result.push_back(blank ? "" : line_.substr(indent));
            kept = blank ? kept : result.size();
        }
        result.resize(kept);
        return result;
    }

    std::string block() {
        std::string text;
        for (const std::string& line : lines())
            text += line + "\n";
        return text;
    }

    void readTable(const std::string& name) {
        ExpectedTable table;
        table.name = name;
        table.line = number_;
        for (const std::string& line : lines()) {
            if (line.starts_with("---")) {
                if (table.rows.size() != 1)
                    fail("one line of names stands above ---");
                table.facts["names"] = joinRow(table.rows[0]);
                table.rows.clear();
            } else if (line.starts_with("@")) {
                addFact(table, line);
            } else {
                table.rows.push_back(splitRow(line));
            }
        }
        cases_.back().hasTables = true;
        cases_.back().tables.push_back(std::move(table));
    }

    void addFact(ExpectedTable& table, const std::string& line) {
        const auto blank = line.find(' ');
        const std::string name = line.substr(1, blank - 1);
        const std::string value = blank == std::string::npos ? "" : trimmed(line.substr(blank));
        if (name == "tolerance")
            table.tolerance = std::stod(value);
        else
            table.facts[name] =
                value.find('|') == std::string::npos ? value : joinRow(splitRow(value));
    }

    std::filesystem::path file_;
    std::ifstream stream_;
    std::string line_, database_;
    int number_ = 0;
    bool again_ = false;
    std::set<std::string> titles_;
    std::vector<Case> cases_;
};

} // namespace

std::vector<Case> readCases(const std::filesystem::path& file) {
    return Reader(file).read();
}

Cells splitRow(const std::string& line) {
    Cells cells;
    std::size_t begin = 0;
    while (begin <= line.size()) {
        const std::size_t end = std::min(line.find('|', begin), line.size());
        std::string cell = trimmed(line.substr(begin, end - begin));
        if (cell.size() >= 2 && cell.front() == '"' && cell.back() == '"')
            cell = cell.substr(1, cell.size() - 2);
        cells.push_back(std::move(cell));
        begin = end + 1;
    }
    return cells;
}

std::string joinRow(const Cells& cells) {
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string& cell = cells[i];
        const bool quoted = cell != trimmed(cell) || (cell.size() >= 2 && cell.front() == '"');
        line += (i > 0 ? " | " : "") + (quoted ? '"' + cell + '"' : cell);
    }
    return line;
}

} // namespace kelx::test

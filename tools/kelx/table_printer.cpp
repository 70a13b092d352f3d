// SPDX-License-Identifier: Apache-2.0
#include "table_printer.h"

#include "storage/atomic_file.h"
#include "storage/error.h"

#include <array>
#include <charconv>
#include <iostream>
#include <set>
#include <string_view>

namespace kelx::tool {

namespace {

namespace fs = std::filesystem;

std::string secondsText(double seconds) {
    std::array<char, 64> buffer{};
    const auto [end, fault] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), seconds,
                                            std::chars_format::fixed, 3);
    return fault == std::errc() ? std::string(buffer.data(), end) : std::string();
}

void show(const output::Table& table, const TablePrinting& printing, const output::TextSink& sink) {
    if (printing.format == "json")
        return output::writeJson(table, sink);
    if (printing.format == "csv")
        return output::writeCsv(table, sink);
    output::writeText(table, sink);
    if (printing.time)
        sink("Time: " + secondsText(table.seconds) + " s\n");
}

void toStandardOutput(std::string_view text) {
    std::cout << text;
}

void printJson(const std::vector<output::Table>& tables) {
    std::cout << '[';
    const char* separator = "\n";
    for (const output::Table& table : tables) {
        std::cout << separator;
        output::writeJson(table, toStandardOutput);
        separator = ",\n";
    }
    std::cout << "\n]\n";
}

void printAll(const std::vector<output::Table>& tables, const TablePrinting& printing) {
    if (printing.format == "json") {
        printJson(tables);
        return;
    }
    const bool csv = printing.format == "csv";
    const std::string lineEnd = csv ? "\r\n" : "\n";
    std::string separator;
    for (const output::Table& table : tables) {
        std::cout << separator;
        if (csv && tables.size() > 1) // its rows alone do not tell which table they are
            std::cout << table.name << lineEnd;
        show(table, printing, toStandardOutput);
        separator = lineEnd;
    }
}

/// The table's name as a file name, numbered where another table has it.
std::string fileNameOf(const output::Table& table, std::set<std::string>& taken) {
    std::string stem;
    for (const char c : table.name)
        stem += std::string_view("/\\:*?\"<>|").find(c) == std::string_view::npos &&
                        static_cast<unsigned char>(c) >= 0x20
                    ? c
                    : '_';
    if (stem.empty() || stem.starts_with('.'))
        stem.insert(0, "_");
    std::string name = stem;
    for (int n = 2; !taken.insert(name).second; ++n)
        name = stem + "_" + std::to_string(n);
    return name;
}

std::vector<fs::path> filesOf(const std::vector<output::Table>& tables,
                              const TablePrinting& printing) {
    std::set<std::string> taken;
    std::vector<fs::path> files;
    const std::string extension = printing.format == "text" ? ".txt" : "." + printing.format;
    for (const output::Table& table : tables)
        files.push_back(printing.folder / (fileNameOf(table, taken) + extension));
    return files;
}

void printNames(const std::vector<output::Table>& tables, const TablePrinting& printing) {
    for (const fs::path& file : filesOf(tables, printing))
        std::cout << file.string() << '\n';
}

/// CSV has no place for them, and JSON is the same whenever it is made.
void tellTimes(const std::vector<output::Table>& tables) {
    for (const output::Table& table : tables)
        std::cerr << table.name << ": " << secondsText(table.seconds) << " s\n";
}

} // namespace

void stageFiles(const std::vector<output::Table>& tables, const TablePrinting& printing,
                storage::StagedFiles& files, const storage::Pulse& pulse) {
    if (printing.folder.empty())
        return;
    std::error_code fault;
    fs::create_directories(printing.folder, fault);
    if (fault)
        throw storage::FileError(printing.folder, "the folder cannot be made: " + fault.message());
    const std::vector<fs::path> names = filesOf(tables, printing);
    for (std::size_t i = 0; i < tables.size(); ++i) {
        files.write(names[i], [&](const fs::path& staged) {
            storage::AtomicFile out(staged);
            show(tables[i], printing, [&](std::string_view part) {
                out.write(part);
                pulse();
            });
            if (printing.format == "json")
                out.write("\n");
            out.commit();
        });
    }
}

void print(const std::vector<output::Table>& tables, const TablePrinting& printing) {
    printing.folder.empty() ? printAll(tables, printing) : printNames(tables, printing);
    if (printing.time && printing.format != "text")
        tellTimes(tables);
}

} // namespace kelx::tool

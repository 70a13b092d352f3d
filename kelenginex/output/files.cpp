// SPDX-License-Identifier: Apache-2.0
#include "output/files.h"

#include "language/message_table.h"
#include "storage/atomic_file.h"
#include "storage/posix_io.h"

#include <algorithm>

namespace kelx::output {
namespace {

void addFile(const std::filesystem::path& path, TableFile::Form form, const Table& table,
             std::vector<TableFile>& files) {
    const auto real = storage::realFile(path);
    const auto known = std::find_if(files.begin(), files.end(), [&](const TableFile& file) {
        return storage::realFile(file.path) == real;
    });
    if (known == files.end())
        files.push_back({path, form, {&table}});
    else
        known->tables.push_back(&table);
}

void writeJsonFile(const TableFile& file, const TextSink& sink) {
    const bool several = file.tables.size() > 1;
    const char* separator = several ? "[\n" : "";
    for (const Table* table : file.tables) {
        sink(separator);
        writeJson(*table, sink);
        separator = ",\n";
    }
    sink(several ? "\n]\n" : "\n");
}

void writeCsvFile(const TableFile& file, const TextSink& sink) {
    const bool several = file.tables.size() > 1; // rows alone do not tell which table they are of
    const char* separator = "";
    for (const Table* table : file.tables) {
        if (several)
            sink(separator + table->name + "\r\n");
        writeCsv(*table, sink);
        separator = "\r\n";
    }
}

} // namespace

std::vector<TableFile> jsonFiles(const std::vector<Table>& tables,
                                 const language::BoundProgram& program) {
    std::vector<TableFile> files;
    for (const Table& table : tables) {
        for (const std::string& path : program.tables.at(table.command).jsonFiles)
            addFile(path, TableFile::Form::Json, table, files);
    }
    return files;
}

void requireCsv(const language::BoundProgram& program, language::Messages& messages) {
    using Format = language::OutputFile::Format;
    for (const language::TableCommand& command : program.tables) {
        if (!command.isOutput || !command.outfile || command.outfile->format == Format::Csv)
            continue;
        const char* name = command.outfile->format == Format::Xlsx ? "XLSX" : "PDF";
        messages.add(language::makeMessage(language::Error::OutfileWorkbench,
                                           command.outfile->position,
                                           {name, command.outfile->path}));
    }
}

std::vector<TableFile> csvFiles(const std::vector<Table>& tables,
                                const language::BoundProgram& program) {
    std::vector<TableFile> files;
    for (const Table& table : tables) {
        if (const auto& outfile = program.tables.at(table.command).outfile)
            addFile(outfile->path, TableFile::Form::Csv, table, files);
    }
    return files;
}

void stageFiles(const std::vector<TableFile>& files, storage::StagedFiles& staged,
                const storage::Pulse& pulse) {
    for (const TableFile& file : files) {
        staged.write(file.path, [&](const std::filesystem::path& name) {
            storage::AtomicFile written(name);
            const auto sink = [&](std::string_view part) {
                written.write(part);
                if (pulse)
                    pulse();
            };
            if (file.form == TableFile::Form::Json)
                writeJsonFile(file, sink);
            else
                writeCsvFile(file, sink);
            written.commit();
        });
    }
}

} // namespace kelx::output

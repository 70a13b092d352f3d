// SPDX-License-Identifier: Apache-2.0
#include "language/output_clauses.h"

#include "language/files.h"
#include "language/text.h"

#include <algorithm>

namespace kelx::language {

namespace {

std::string absolute(const std::string& file, const CheckerContext& context) {
    return resolvedFile(file, context.options().baseFolder).string();
}

std::string typeOf(const ast::OutFile& out) {
    if (!out.type.empty())
        return out.type;
    const std::string extension = std::filesystem::path(out.file).extension().string();
    return extension.empty() ? "" : lowerCase(extension.substr(1));
}

bool isText(const std::string& type) {
    for (const char* other : {"html", "htm", "xml", "text", "txt"}) {
        if (type == other)
            return true;
    }
    return false;
}

OutputFile::Format formatOf(const std::string& type) {
    if (type == "xls" || type == "xlsx")
        return OutputFile::Format::Xlsx;
    return type == "pdf" ? OutputFile::Format::Pdf : OutputFile::Format::Csv;
}

TargetFiles::Form targetForm(OutputFile::Format format) {
    if (format == OutputFile::Format::Xlsx)
        return TargetFiles::Form::Xlsx;
    return format == OutputFile::Format::Pdf ? TargetFiles::Form::Pdf : TargetFiles::Form::Csv;
}

void takeOutfile(const ast::OutFile& out, CheckerContext& context, TableCommand& command) {
    const std::string type = typeOf(out);
    const std::string path = absolute(out.file, context);
    if (isText(type))
        context.report(Warning::OutfileType, out.position, {upperCase(type)});
    const OutputFile::Format format = formatOf(type);
    const bool asText = format == OutputFile::Format::Csv; // JSON too
    if (asText && (out.format == "ascii" || out.format == "unicode"))
        context.report(Warning::OutfileFormat, out.formatPosition, {upperCase(out.format)});
    if (type == "json")
        command.jsonFiles.push_back(path);
    else
        command.outfile = OutputFile{path, format, out.overwrite, out.position};
}

std::optional<std::string> styleOf(const std::optional<std::string>& own,
                                   const std::optional<std::string>& run,
                                   const CheckerContext& context) {
    return own ? std::optional(absolute(*own, context)) : run;
}

} // namespace

void takeFiles(const ast::Table& table, CheckerContext& context, TableCommand& command) {
    if (table.outfile)
        takeOutfile(*table.outfile, context, command);
    if (!table.save)
        return;
    std::filesystem::path file = absolute(*table.save, context);
    if (!file.has_extension())
        file += ".json";
    if (std::find(command.jsonFiles.begin(), command.jsonFiles.end(), file.string()) ==
        command.jsonFiles.end())
        command.jsonFiles.push_back(file.string());
}

void noteFiles(const ast::Table& table, const TableCommand& command, CheckerContext& context) {
    using Form = TargetFiles::Form;
    TargetFiles& files = context.files();
    if (command.outfile)
        files.written(command.outfile->path, targetForm(command.outfile->format),
                      command.outfile->overwrite, table.outfile->filePosition);
    bool ofOutfile = table.outfile && !command.outfile; // JSON, which comes first
    for (const std::string& file : command.jsonFiles) {
        if (ofOutfile)
            files.written(file, Form::Json, table.outfile->overwrite, table.outfile->filePosition);
        else
            files.written(file, Form::Json, false, table.savePosition);
        ofOutfile = false;
    }
}

void takeStyles(const ast::Table& table, const CheckerContext& context, TableCommand& command) {
    const RunSettings& run = *command.settings;
    command.tableStyle = styleOf(table.tableStyle, run.tableStyle, context);
    command.graphStyle = styleOf(table.graphStyle, run.graphStyle, context);
    command.mapStyle = styleOf(table.mapStyle, run.mapStyle, context);
}

void numberFiles(TableCommand& command, std::size_t number) {
    for (std::string& file : command.jsonFiles) {
        const std::filesystem::path path = file;
        const std::string name =
            path.stem().string() + "_" + std::to_string(number) + path.extension().string();
        file = (path.parent_path() / name).string();
    }
}

} // namespace kelx::language

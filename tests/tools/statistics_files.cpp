// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics_files.h"

#include <readstat.h>

#include <fstream>
#include <memory>
#include <stdexcept>

namespace kelx::test {

namespace {

using Writer = std::unique_ptr<readstat_writer_t, decltype(&readstat_writer_free)>;

void require(readstat_error_t error) {
    if (error != READSTAT_OK)
        throw std::runtime_error(readstat_error_message(error));
}

ssize_t append(const void* data, size_t length, void* stream) {
    static_cast<std::ofstream*>(stream)->write(static_cast<const char*>(data),
                                               static_cast<std::streamsize>(length));
    return static_cast<ssize_t>(length);
}

Writer makeWriter() {
    Writer writer(readstat_writer_init(), readstat_writer_free);
    require(readstat_set_data_writer(writer.get(), append));
    return writer;
}

readstat_variable_t* addVariable(readstat_writer_t* writer, const StatisticsVariable& variable,
                                 bool isDta) {
    readstat_variable_t* added = readstat_add_variable(
        writer, variable.name.c_str(),
        variable.isText ? READSTAT_TYPE_STRING : READSTAT_TYPE_DOUBLE, variable.isText ? 20 : 0);
    readstat_variable_set_label(added, variable.label.c_str());
    if (!variable.format.empty())
        readstat_variable_set_format(added, variable.format.c_str());
    if (!variable.labels.empty()) {
        readstat_label_set_t* set = readstat_add_label_set(
            writer, isDta ? READSTAT_TYPE_INT32 : READSTAT_TYPE_DOUBLE, variable.name.c_str());
        for (const auto& [value, label] : variable.labels) {
            if (isDta)
                readstat_label_int32_value(set, static_cast<int>(value), label.c_str());
            else
                readstat_label_double_value(set, value, label.c_str());
        }
        readstat_variable_set_label_set(added, set);
    }
    for (const auto& [lowest, highest] : variable.missing) {
        if (lowest == highest)
            require(readstat_variable_add_missing_double_value(added, lowest));
        else
            require(readstat_variable_add_missing_double_range(added, lowest, highest));
    }
    return added;
}

void writeValue(readstat_writer_t* writer, const readstat_variable_t* added,
                const StatisticsVariable& variable, std::size_t row) {
    if (row == 0 && variable.tagAt0 != 0)
        require(readstat_insert_tagged_missing_value(writer, added, variable.tagAt0));
    else if (variable.isText)
        require(readstat_insert_string_value(writer, added, variable.texts[row].c_str()));
    else if (!variable.numbers[row])
        require(readstat_insert_missing_value(writer, added));
    else
        require(readstat_insert_double_value(writer, added, *variable.numbers[row]));
}

void begin(const std::string& extension, readstat_writer_t* writer, std::ofstream& stream,
           long rows, bool packed) {
    if (packed)
        require(readstat_writer_set_compression(writer, READSTAT_COMPRESS_ROWS));
    if (extension == ".zsav")
        require(readstat_writer_set_compression(writer, READSTAT_COMPRESS_BINARY));
    if (extension == ".dta")
        require(readstat_begin_writing_dta(writer, &stream, rows));
    else if (extension == ".sas7bdat")
        require(readstat_begin_writing_sas7bdat(writer, &stream, rows));
    else
        require(readstat_begin_writing_sav(writer, &stream, rows));
}

} // namespace

void writeStatistics(const std::filesystem::path& file,
                     const std::vector<StatisticsVariable>& variables, const std::string& weight,
                     bool packed) {
    const std::string extension = file.extension().string();
    std::ofstream stream(file, std::ios::binary);
    const Writer writer = makeWriter();
    std::vector<readstat_variable_t*> added;
    for (const StatisticsVariable& variable : variables) {
        added.push_back(addVariable(writer.get(), variable, extension == ".dta"));
        if (variable.name == weight)
            require(readstat_writer_set_fweight_variable(writer.get(), added.back()));
    }
    const StatisticsVariable& first = variables.front();
    const std::size_t rows = first.isText ? first.texts.size() : first.numbers.size();
    begin(extension, writer.get(), stream, static_cast<long>(rows), packed);
    for (std::size_t row = 0; row < rows; ++row) {
        require(readstat_begin_row(writer.get()));
        for (std::size_t i = 0; i < variables.size(); ++i)
            writeValue(writer.get(), added[i], variables[i], row);
        require(readstat_end_row(writer.get()));
    }
    require(readstat_end_writing(writer.get()));
}

void writeFormats(const std::filesystem::path& file, const std::string& set,
                  const std::vector<std::pair<double, std::string>>& labels) {
    std::ofstream stream(file, std::ios::binary);
    const Writer writer = makeWriter();
    readstat_label_set_t* added =
        readstat_add_label_set(writer.get(), READSTAT_TYPE_DOUBLE, set.c_str());
    for (const auto& [value, label] : labels)
        readstat_label_double_value(added, value, label.c_str());
    require(readstat_begin_writing_sas7bcat(writer.get(), &stream));
    require(readstat_end_writing(writer.get()));
}

} // namespace kelx::test

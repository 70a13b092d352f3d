// SPDX-License-Identifier: Apache-2.0
// kelx-statistics FORMAT FILE ENCODING FORMATS: writes what a file of a statistics package holds to
// standard output, as frames. A process of its own, since a damaged file may bring the library
// down that reads it; whoever starts it bounds its memory and time.
#include "import/sav_file.h"
#include "import/statistics_stream.h"
#include "import/text_encoding.h"

#include <readstat.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

using namespace kelx::tools;

constexpr std::size_t fullFrame = 1u << 16;
constexpr const char* anyBytes = "ISO-8859-1";

void writeFully(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (count <= 0)
            std::exit(1); // nobody listens
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void writeFrame(FrameKind kind, std::string_view payload) {
    writeFully(encodeFrame(kind, payload));
}

void tellFault(std::string_view text) {
    PayloadWriter payload;
    payload.putText(text);
    writeFrame(FrameKind::Fault, payload.bytes());
}

/// What the callbacks of one parse share.
class Parse {
public:
    explicit Parse(bool isSas) : isSas_(isSas) {}

    /// Texts come as they stand in the file.
    void convertFrom(const std::string& encoding) { converter_.emplace(encoding); }
    /// The library does not know the number of rows, but the file does.
    void askForSize(const SavFile& file) { sized_ = &file; }

    void size(std::int64_t rows) {
        if (sized_ != nullptr)
            rows = sized_->cases();
        PayloadWriter payload;
        payload.put(rows);
        writeFrame(FrameKind::Size, payload.bytes());
    }

    void variable(const readstat_variable_t* variable, const char* labelSet) {
        PayloadWriter payload;
        payload.put(variables_++);
        const bool isText =
            readstat_variable_get_type_class(variable) == READSTAT_TYPE_CLASS_STRING;
        payload.put(static_cast<std::uint8_t>(isText));
        const std::string format(textOf(readstat_variable_get_format(variable)));
        payload.putText(textOf(readstat_variable_get_name(variable)));
        payload.putText(textOf(readstat_variable_get_label(variable)));
        payload.putText(format);
        payload.putText(setName(std::string(textOf(labelSet)), format));
        putMissing(payload, variable, isText);
        writeFrame(FrameKind::Variable, payload.bytes());
    }

    void label(const char* set, readstat_value_t value, const char* label) {
        PayloadWriter payload;
        payload.putText(textOf(set));
        if (readstat_value_is_tagged_missing(value)) {
            payload.putTag(ValueTag::Tagged);
            payload.put(readstat_value_tag(value));
        } else if (readstat_value_type_class(value) == READSTAT_TYPE_CLASS_STRING) {
            payload.putTag(ValueTag::Text);
            payload.putText(textOf(readstat_string_value(value)));
        } else if (readstat_value_is_system_missing(value)) {
            return;
        } else {
            payload.putTag(ValueTag::Number);
            payload.put(readstat_double_value(value));
        }
        payload.putText(textOf(label));
        writeFrame(FrameKind::Label, payload.bytes());
    }

    void weight(const readstat_variable_t* variable) {
        PayloadWriter payload;
        payload.put(static_cast<std::uint32_t>(readstat_variable_get_index(variable)));
        writeFrame(FrameKind::Weight, payload.bytes());
    }

    /// False where values do not come row by row in the order of the variables.
    bool value(int row, const readstat_variable_t* variable, readstat_value_t value) {
        const int index = readstat_variable_get_index(variable);
        if (row < 0 || static_cast<std::uint64_t>(row) != rows_ || index != nextVariable_)
            return false;
        putValue(value);
        if (static_cast<std::uint32_t>(++nextVariable_) < variables_)
            return true;
        nextVariable_ = 0;
        ++rows_;
        ++pendingRows_;
        if (pending_.bytes().size() >= fullFrame)
            flush();
        return true;
    }

    void end(bool withinRow) {
        flush();
        if (nextVariable_ != 0 || withinRow)
            return tellFault("its last row is not complete");
        if (rows_ == std::numeric_limits<int>::max())
            return tellFault("it has more rows than can be read");
        PayloadWriter payload;
        payload.put(rows_);
        writeFrame(FrameKind::End, payload.bytes());
    }

    std::uint64_t rows() const { return rows_; }

private:
    std::string_view textOf(const char* text) {
        if (text == nullptr || !converter_)
            return text == nullptr ? std::string_view() : std::string_view(text);
        try {
            return converter_->convert(text);
        } catch (const std::runtime_error& fault) {
            tellFault(fault.what()); // the library is no place to throw through
            std::exit(0);
        }
    }

    /// SAS names the labels of a variable by its format: "SEXFMT2." means the set SEXFMT.
    std::string setName(const std::string& set, const std::string& format) const {
        if (!isSas_)
            return set;
        const std::size_t end = format.find_last_not_of("0123456789.");
        return format.substr(0, end == std::string::npos ? 0 : end + 1);
    }

    static void putMissing(PayloadWriter& payload, const readstat_variable_t* variable,
                           bool isText) {
        const int count = readstat_variable_get_missing_ranges_count(variable);
        payload.put(static_cast<std::uint32_t>(isText ? 0 : count));
        for (int i = 0; i < count && !isText; ++i) {
            payload.put(readstat_double_value(readstat_variable_get_missing_range_lo(variable, i)));
            payload.put(readstat_double_value(readstat_variable_get_missing_range_hi(variable, i)));
        }
        payload.put(static_cast<std::uint8_t>(isText && count > 0));
    }

    void putValue(readstat_value_t value) {
        if (readstat_value_is_tagged_missing(value)) {
            pending_.putTag(ValueTag::Tagged);
            pending_.put(readstat_value_tag(value));
        } else if (readstat_value_is_system_missing(value)) {
            pending_.putTag(ValueTag::Missing);
        } else if (readstat_value_type_class(value) == READSTAT_TYPE_CLASS_STRING) {
            pending_.putTag(ValueTag::Text);
            pending_.putText(textOf(readstat_string_value(value)));
        } else {
            pending_.putTag(ValueTag::Number);
            pending_.put(readstat_double_value(value));
        }
    }

    void flush() {
        if (pendingRows_ == 0)
            return;
        PayloadWriter payload;
        payload.put(pendingRows_);
        payload.bytes().append(pending_.bytes());
        writeFrame(FrameKind::Rows, payload.bytes());
        pending_.bytes().clear();
        pendingRows_ = 0;
    }

    bool isSas_;
    std::optional<TextConverter> converter_;
    const SavFile* sized_ = nullptr;
    std::uint32_t variables_ = 0;
    int nextVariable_ = 0;
    std::uint64_t rows_ = 0;
    std::uint32_t pendingRows_ = 0;
    PayloadWriter pending_;
};

Parse& parseOf(void* context) {
    return *static_cast<Parse*>(context);
}

int onMetadata(readstat_metadata_t* metadata, void* context) {
    parseOf(context).size(readstat_get_row_count(metadata));
    return READSTAT_HANDLER_OK;
}

int onVariable(int /*index*/, readstat_variable_t* variable, const char* labels, void* context) {
    parseOf(context).variable(variable, labels);
    return READSTAT_HANDLER_OK;
}

int onWeight(readstat_variable_t* variable, void* context) {
    parseOf(context).weight(variable);
    return READSTAT_HANDLER_OK;
}

int onLabel(const char* labels, readstat_value_t value, const char* label, void* context) {
    parseOf(context).label(labels, value, label);
    return READSTAT_HANDLER_OK;
}

int onValue(int row, readstat_variable_t* variable, readstat_value_t value, void* context) {
    return parseOf(context).value(row, variable, value) ? READSTAT_HANDLER_OK
                                                        : READSTAT_HANDLER_ABORT;
}

using Parser = std::unique_ptr<readstat_parser_t, decltype(&readstat_parser_free)>;
using ParseFile = readstat_error_t (*)(readstat_parser_t*, const char*, void*);

/// The library keeps the encoding's name, which must live on; an empty one is none.
Parser makeParser(const char* encoding) {
    Parser parser(readstat_parser_init(), readstat_parser_free);
    if (parser == nullptr)
        std::exit(1);
    readstat_set_value_label_handler(parser.get(), onLabel);
    if (*encoding != '\0')
        readstat_set_file_character_encoding(parser.get(), encoding);
    return parser;
}

Parser makeDataParser(const char* encoding) {
    Parser parser = makeParser(encoding);
    readstat_set_metadata_handler(parser.get(), onMetadata);
    readstat_set_variable_handler(parser.get(), onVariable);
    readstat_set_fweight_handler(parser.get(), onWeight);
    readstat_set_value_handler(parser.get(), onValue);
    return parser;
}

/// Where the file is none of its kind the library says that it cannot read from it.
std::string inWords(readstat_error_t error, const std::string& kind) {
    if (error == READSTAT_ERROR_READ || error == READSTAT_ERROR_PARSE)
        return "it is no " + kind + " file, or is cut short";
    if (error == READSTAT_ERROR_UNSUPPORTED_FILE_FORMAT_VERSION)
        return "it is no " + kind + " file, or of a version that cannot be read";
    return std::string("the reader says: ") + readstat_error_message(error);
}

bool failed(readstat_error_t error, std::string kind) {
    if (error == READSTAT_OK)
        return false;
    std::transform(kind.begin(), kind.end(), kind.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    const bool isText =
        error == READSTAT_ERROR_CONVERT || error == READSTAT_ERROR_CONVERT_BAD_STRING ||
        error == READSTAT_ERROR_CONVERT_SHORT_STRING || error == READSTAT_ERROR_UNSUPPORTED_CHARSET;
    tellFault(inWords(error, kind) +
              (isText ? "; --encoding NAME tells how its texts are written" : ""));
    return true;
}

bool isSav(std::string_view format) {
    return format == ".SAV" || format == ".ZSAV";
}

ParseFile parserFor(std::string_view format) {
    if (isSav(format))
        return readstat_parse_sav;
    if (format == ".DTA")
        return readstat_parse_dta;
    return format == ".SAS7BDAT" ? readstat_parse_sas7bdat : nullptr;
}

/// False where the file cannot be read.
bool parseFormats(const std::string& file, const std::string& encoding, Parse& parse) {
    const Parser formats = makeParser(encoding.c_str());
    return !failed(readstat_parse_sas7bcat(formats.get(), file.c_str(), &parse), ".sas7bcat");
}

/// The library converts texts of such a file only where a record in it speaks of encodings, so
/// with an encoding given it is told of one that leaves every byte as it is.
void parseSav(const std::string& file, const std::string& encoding, Parse& parse) {
    SavFile sav;
    const Parser parser = makeDataParser(encoding.empty() ? "" : anyBytes);
    if (!encoding.empty()) {
        readstat_set_handler_character_encoding(parser.get(), anyBytes);
        parse.convertFrom(encoding);
    }
    sav.serve(parser.get());
    parse.askForSize(sav);
    if (failed(readstat_parse_sav(parser.get(), file.c_str(), &parse), ".sav"))
        return;
    const bool allRead =
        sav.cases() >= 0 && parse.rows() == static_cast<std::uint64_t>(sav.cases());
    parse.end(sav.endsWithinRow() && !allRead);
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, argv + argc);
    const ParseFile parseFile = argc == 5 ? parserFor(arguments[1]) : nullptr;
    if (parseFile == nullptr)
        return 2;
    const std::string& encoding = arguments[3];
    Parse parse(arguments[1] == ".SAS7BDAT");
    if (!arguments[4].empty() && !parseFormats(arguments[4], encoding, parse))
        return 0;
    if (isSav(arguments[1])) {
        parseSav(arguments[2], encoding, parse);
        return 0;
    }
    const Parser parser = makeDataParser(encoding.c_str());
    if (!failed(parseFile(parser.get(), arguments[2].c_str(), &parse), arguments[1]))
        parse.end(false);
    return 0;
}

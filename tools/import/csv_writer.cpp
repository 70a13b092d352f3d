// SPDX-License-Identifier: Apache-2.0
#include "import/csv_writer.h"

namespace kelx::tools {

void CsvWriter::field(std::string_view text) {
    if (!first_)
        pending_ += ',';
    first_ = false;
    if (text.find_first_of("\",\r\n") == std::string_view::npos) {
        pending_ += text;
        return;
    }
    pending_ += '"';
    for (const char c : text) {
        if (c == '"')
            pending_ += '"';
        pending_ += c;
    }
    pending_ += '"';
}

void CsvWriter::endRecord() {
    if (pending_.size() == recordBegin_)
        pending_ += "\"\""; // a line without any byte would not be read as a record
    pending_ += '\n';
    first_ = true;
    if (pending_.size() >= chunk) {
        file_.write(pending_);
        pending_.clear();
    }
    recordBegin_ = pending_.size();
}

void CsvWriter::commit() {
    file_.write(pending_);
    pending_.clear();
    file_.commit();
}

} // namespace kelx::tools

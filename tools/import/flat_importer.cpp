// SPDX-License-Identifier: Apache-2.0
#include "import/flat_importer.h"

#include "import/csv_source.h"
#include "import/database_builder.h"
#include "import/dicx_layout.h"
#include "import/flat_writer.h"
#include "import/statistics_source.h"
#include "import/text_encoding.h"
#include "import/values.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace kelx::tools {

namespace {

using storage::ValueType;
namespace fs = std::filesystem;

class FlatImporter {
public:
    explicit FlatImporter(const FlatRequest& request)
        : request_(request), faults_(request.tolerant) {}

    ImportReport run() {
        checkEncoding();
        std::error_code fault;
        const std::uintmax_t bytes = fs::file_size(request_.data, fault);
        bytesToRead_ = fault ? 0 : 2 * bytes;
        chooseSource();
        const std::unique_ptr<RowSource> source = open_(onRead_);
        std::vector<SourceField> fields = source->fields();
        planLevels(fields);
        FlatScan scan(*source, std::move(fields), plan_, faults_);
        scan.run();
        checkWeights(scan, *source);
        report_.notes = layout_ ? layout_->notes : source->notes();
        for (std::string& note : scan.notes())
            report_.notes.push_back(std::move(note));
        build(scan);
        builder_->write([&](const fs::path& folder) { write(scan, folder); });
        report_.take(faults_);
        return std::move(report_);
    }

private:
    void noteBytes(std::uint64_t bytes) {
        bytesRead_ += bytes;
        if (request_.progress)
            request_.progress(bytesRead_, bytesToRead_);
    }

    void checkEncoding() const {
        if (request_.encoding.empty())
            return;
        if (!request_.layout.empty() || !isStatisticsFile(request_.data))
            throw std::runtime_error("Only files of statistics packages have an encoding to be "
                                     "given; other texts are UTF-8.");
        if (!isEncoding(request_.encoding))
            throw std::runtime_error("There is no encoding " + inQuotes(request_.encoding) + ".");
    }

    void chooseSource() {
        if (!request_.layout.empty()) {
            layout_ = readDicxLayout(request_.layout, request_.recordTypeColumn);
            open_ = [this](const BytesRead& onRead) {
                return std::make_unique<FixedSource>(request_.data, layout_->text, onRead);
            };
        } else if (isStatisticsFile(request_.data)) {
            open_ = [this](const BytesRead& onRead) {
                return std::make_unique<StatisticsSource>(
                    StatisticsFile{request_.data, request_.formats, request_.encoding,
                                   request_.helper},
                    onRead);
            };
        } else {
            open_ = [this](const BytesRead& onRead) {
                return std::make_unique<CsvSource>(request_.data, onRead, request_.separator);
            };
        }
    }

    void planLevels(std::vector<SourceField>& fields) {
        rootName_ = upperCase(request_.root);
        if (layout_) {
            if (!request_.levels.empty() || !request_.codebook.empty())
                throw std::runtime_error("The levels and codes of a text stand in its .dicx.");
            plan_ = layout_->plan;
            if (rootName_.empty()) {
                rootName_ = layout_->rootName;
                rootLabel_ = layout_->rootLabel;
            }
        } else {
            std::optional<Codebook> book;
            if (!request_.codebook.empty())
                book = readCodebook(request_.codebook);
            plan_ = chainPlan(wishes(book), fields);
            if (book)
                applyCodebook(*book, fields);
        }
        if (rootName_.empty())
            rootName_ = "DATABASE";
        placeFields(fields);
        checkNames();
    }

    std::vector<LevelWish> wishes(const std::optional<Codebook>& book) const {
        if (!request_.levels.empty())
            return parseLevels(request_.levels);
        if (!book)
            return {{"RECORD", "", ""}};
        std::string text;
        for (const LevelPlan& level : book->levels) {
            if (level.name == book->root && level.fields.empty())
                continue;
            const FieldPlan* key = level.withRole(FieldRole::Key);
            text += (text.empty() ? "" : ",") + level.name + (key ? ":" + key->name : "");
        }
        return parseLevels(text);
    }

    void applyCodebook(const Codebook& book, std::vector<SourceField>& fields) {
        if (rootName_.empty() && book.root)
            rootName_ = *book.root;
        for (const LevelPlan& level : book.levels) {
            if (level.name == rootName_)
                rootLabel_ = level.label;
            if (level.name == rootName_ && level.fields.empty())
                continue;
            const std::size_t number = levelNamed(level.name);
            plan_.levels[number].plan.label = level.label;
            for (const FieldPlan& described : level.fields)
                if (described.role != FieldRole::ParentKey)
                    applyField(described, number, fields);
        }
    }

    void applyField(const FieldPlan& described, std::size_t level,
                    std::vector<SourceField>& fields) {
        const std::size_t at = fieldNamed(fields, described.name);
        const FieldRole role = fields[at].plan.role;
        fields[at].plan = described;
        fields[at].typeKnown = true;
        if (role != FieldRole::Value)
            fields[at].plan.role = role;
        const bool isKey = plan_.levels[level].key == at;
        if (described.role == FieldRole::Key && !isKey)
            throw std::runtime_error(described.name + " is a key in the codebook, but " +
                                     plan_.levels[level].plan.name + " is given another one.");
        if (isKey)
            plan_.levels[level].integerKey = described.type == ValueType::Integer;
        place(at, level, fields);
    }

    void place(std::size_t field, std::size_t level, const std::vector<SourceField>& fields) {
        std::size_t& before = plan_.levelOf[field];
        if (before != noLevel && before != level)
            throw std::runtime_error("The field " + fields[field].plan.name + " belongs to " +
                                     plan_.levels[before].plan.name + ", not to " +
                                     plan_.levels[level].plan.name + ".");
        before = level;
    }

    std::size_t levelNamed(const std::string& name) const {
        for (std::size_t i = 0; i < plan_.levels.size(); ++i)
            if (plan_.levels[i].plan.name == upperCase(name))
                return i;
        throw std::runtime_error(name + " is none of the levels.");
    }

    void placeFields(std::vector<SourceField>& fields) {
        for (const auto& [field, level] : request_.places)
            place(fieldNamed(fields, field), levelNamed(level), fields);
        if (!request_.weight.empty()) {
            SourceField& weight = fields[fieldNamed(fields, request_.weight)];
            if (weight.plan.role != FieldRole::Value && weight.plan.role != FieldRole::Weight)
                throw std::runtime_error("A key or a label cannot be the weight.");
            weight.plan.role = FieldRole::Weight;
        }
    }

    static void checkWeights(const FlatScan& scan, const RowSource& source) {
        for (std::size_t i = 0; i < scan.fields().size(); ++i) {
            const FieldPlan& plan = scan.fields()[i].plan;
            if (plan.role != FieldRole::Weight || plan.type != ValueType::String)
                continue;
            const auto& culprit = scan.culprit(i);
            if (culprit)
                throw LocatedError(source.name(), culprit->place,
                                   plan.name + " cannot be the weight: " + inQuotes(culprit->text) +
                                       " " + culprit->why);
            throw std::runtime_error(plan.name + " cannot be the weight, since it holds texts.");
        }
    }

    void checkNames() const {
        if (!isName(rootName_))
            throw std::runtime_error(inQuotes(rootName_) + " cannot be the name of the root.");
        for (const FlatLevel& level : plan_.levels)
            if (level.plan.name == rootName_)
                throw std::runtime_error("The root " + rootName_ + " must not be a level too.");
    }

    void build(const FlatScan& scan) {
        builder_.emplace(request_, rootName_, rootLabel_);
        for (const FlatLevel& level : plan_.levels) {
            catalog::Entity& parent =
                level.parent == noLevel ? builder_->root() : *entities_[level.parent];
            const bool selectable = level.key.has_value() && !level.below.empty();
            entities_.push_back(&builder_->addEntity(parent, level.plan, selectable));
            for (std::size_t i = 0; i < level.fields.size(); ++i)
                builder_->addVariable(*entities_.back(), level.plan.fields[i],
                                      scan.summary(level.fields[i]).decimals);
        }
    }

    void write(const FlatScan& scan, const fs::path& folder) {
        faults_.mute();
        const std::unique_ptr<RowSource> source = open_(onRead_);
        FlatWriter writer(plan_, scan, entities_, folder, request_.key);
        writer.write(*source, faults_);
        report_.levels = writer.report();
    }

    const FlatRequest& request_;
    Faults faults_;
    ImportReport report_;
    std::optional<DicxLayout> layout_;
    SourceOpener open_;
    FlatPlan plan_;
    std::string rootName_, rootLabel_;
    std::optional<DatabaseBuilder> builder_;
    std::vector<catalog::Entity*> entities_;
    std::uint64_t bytesRead_ = 0, bytesToRead_ = 0;
    const BytesRead onRead_ = [this](std::uint64_t bytes) { noteBytes(bytes); };
};

} // namespace

bool isStatisticsFile(const fs::path& file) {
    const std::string extension = upperCase(file.extension().string());
    return extension == ".SAV" || extension == ".ZSAV" || extension == ".DTA" ||
           extension == ".SAS7BDAT";
}

ImportReport importFlat(const FlatRequest& request) {
    return FlatImporter(request).run();
}

} // namespace kelx::tools

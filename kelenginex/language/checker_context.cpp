// SPDX-License-Identifier: Apache-2.0
#include "language/checker_context.h"

#include "language/text.h"
#include "storage/error.h"

#include <algorithm>

namespace kelx::language {

namespace {

std::string keyOf(const std::string& entity, const std::string& name) {
    return lowerCase(entity) + "." + lowerCase(name);
}

} // namespace

CheckerContext::Place CheckerContext::moveTo(Place place) {
    Place before{program_, std::move(options_.baseFolder)};
    program_ = place.program;
    options_.baseFolder = std::move(place.folder);
    return before;
}

bool CheckerContext::mayKeep(std::size_t bytes, Position position) {
    constexpr std::size_t most = std::size_t{256} << 20;
    const bool hadRoom = kept_ <= most;
    kept_ = std::min(kept_ + bytes, most + 1);
    if (kept_ > most && hadRoom)
        report(Error::TooMuchText, position, {std::to_string(most)});
    return kept_ <= most;
}

void CheckerContext::expectName(const std::string& entity, const std::string& name) {
    expected_.insert(keyOf(entity, name));
    expected_.insert(keyOf("", name));
}

bool CheckerContext::isExpected(const std::string& entity, const std::string& name) const {
    return expected_.contains(keyOf(entity, name));
}

void CheckerContext::define(const catalog::Variable& variable) {
    names_.define(variable);
    checked_[&variable] = true;
}

void CheckerContext::setDefining(const std::string& entity, const std::string& name) {
    definingEntity_ = lowerCase(entity);
    definingName_ = lowerCase(name);
}

bool CheckerContext::isDefining(const std::string& entity, const std::string& name) const {
    return !definingName_.empty() && lowerCase(name) == definingName_ &&
           (entity.empty() || lowerCase(entity) == definingEntity_);
}

bool CheckerContext::checkData(const catalog::Variable& variable, Position position) {
    const auto [entry, isNew] = checked_.emplace(&variable, true);
    if (!isNew)
        return entry->second;
    entry->second = false;
    if (!variable.fileFound()) {
        report(Error::DataFileMissing, position,
               {variable.fullName(), variable.filePath().string()});
        return false;
    }
    try {
        entry->second = typeOf(variable) != ValueType::None;
        if (!entry->second)
            report(Error::DataFileDamaged, position,
                   {variable.fullName(), "neither the dictionary nor the file tells their type."});
    } catch (const storage::FileError& fault) {
        report(Error::DataFileDamaged, position, {variable.fullName(), fault.what()});
    }
    return entry->second;
}

ValueType CheckerContext::typeOf(const catalog::Variable& variable) const {
    return variable.type == ValueType::None ? variable.column()->info().type : variable.type;
}

} // namespace kelx::language

// SPDX-License-Identifier: Apache-2.0
#include "TKelVariable.h"

#include "boundary/state.h"
#include "boundary/variants.h"
#include "catalog/names.h"
#include "catalog/payload.h"
#include "catalog/type_names.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

namespace catalog = kelx::catalog;

static_assert(static_cast<int>(eVarType::BOOLEAN) == static_cast<int>(catalog::ValueType::Boolean));
static_assert(static_cast<int>(eVarType::STRING) == static_cast<int>(catalog::ValueType::String));

void checkFree(const catalog::Variable& variable, const std::string& name) {
    kelx::boundary::checkNewName("a variable", name);
    for (const auto& other : variable.entity->variables) {
        if (other.get() != &variable && catalog::sameName(other->name, name)) {
            throw std::invalid_argument(variable.entity->name + " already has a variable " +
                                        other->name + ".");
        }
    }
}

} // namespace

TKelVariable::TKelVariable(TKelEntity* entity) : d(std::make_unique<Data>()) {
    d->own = std::make_unique<catalog::Variable>();
    d->variable = d->own.get();
    d->entity = entity;
}

TKelVariable::TKelVariable(const TKelVariable& other) : TKelVariable(other.d->entity) {
    d->variable->copyDescription(*other.d->variable);
}

TKelVariable::~TKelVariable() = default;

TKelEntity* TKelVariable::entity(bool real) const {
    return real && d->entity != nullptr ? d->entity->realEntity() : d->entity;
}

const eVarType& TKelVariable::type() const {
    d->type = static_cast<eVarType>(d->variable->type);
    return d->type;
}

void TKelVariable::setType(const eVarType& type) {
    const int number = static_cast<int>(type);
    d->variable->type = number < 0 || number > static_cast<int>(eVarType::BOOLEAN)
                            ? catalog::ValueType::None
                            : static_cast<catalog::ValueType>(number);
    d->touch();
}

std::string TKelVariable::typeName() const {
    return catalog::typeName(d->variable->type);
}

const std::string& TKelVariable::name() const {
    return d->variable->name;
}

void TKelVariable::setName(const std::string& name) {
    if (d->state != nullptr) {
        checkFree(*d->variable, name);
    }
    d->variable->name = name;
    d->touch();
}

int TKelVariable::size() const {
    return d->variable->size;
}

void TKelVariable::setSize(int size) {
    d->variable->size = size;
    d->touch();
}

const std::string& TKelVariable::label() const {
    return d->variable->label;
}

void TKelVariable::setLabel(const std::string& label) {
    d->variable->label = label;
    d->touch();
}

const std::string& TKelVariable::alias() const {
    return d->variable->alias;
}

void TKelVariable::setAlias(const std::string& alias) {
    d->variable->alias = alias;
    d->touch();
}

const std::string& TKelVariable::group() const {
    return d->variable->group;
}

void TKelVariable::setGroup(const std::string& group) {
    d->variable->group = group;
    d->touch();
}

const std::string& TKelVariable::fileName() const {
    return d->variable->fileName;
}

void TKelVariable::setFileName(const std::string& fileName) {
    d->variable->fileName = fileName;
    d->variable->closeColumn();
    d->touch();
}

const std::optional<double>& TKelVariable::notapp() const {
    return d->variable->notapp;
}

void TKelVariable::setNotapp(const std::optional<double>& code) {
    d->variable->notapp = code;
    d->touch();
}

const std::optional<double>& TKelVariable::missing() const {
    return d->variable->missing;
}

void TKelVariable::setMissing(const std::optional<double>& code) {
    d->variable->missing = code;
    d->touch();
}

eVarState TKelVariable::state() const {
    return static_cast<eVarState>(d->variable->state);
}

void TKelVariable::setState(eVarState state) {
    d->variable->state = static_cast<int>(state);
    d->touch();
}

bool TKelVariable::active() const {
    return d->variable->active;
}

void TKelVariable::setActive(bool active) {
    d->variable->active = active;
    d->touch();
}

bool TKelVariable::define() const {
    return d->variable->define;
}

void TKelVariable::setDefine(bool define) {
    d->variable->define = define;
    d->touch();
}

std::string TKelVariable::metadata() const {
    return d->variable->metadata;
}

void TKelVariable::setMetadata(const std::string& metadata) {
    d->variable->metadata = metadata;
    d->touch();
}

std::string TKelVariable::documentation() const {
    return d->variable->documentation;
}

void TKelVariable::setDocumentation(const std::string& documentation) {
    d->variable->documentation = documentation;
    d->touch();
}

int TKelVariable::tag() const {
    return d->variable->tag;
}

void TKelVariable::setTag(int tag) {
    d->variable->tag = tag;
    d->touch();
}

bool TKelVariable::local() const {
    return d->variable->local;
}

std::string TKelVariable::info() {
    const std::string entity = d->entity != nullptr ? d->entity->name() + "." : std::string();
    const std::string label = d->variable->label.empty() ? "" : ", " + d->variable->label;
    return entity + name() + ", " + catalog::typeName(d->variable->type) + label;
}

bool TKelVariable::addValueLabel(const std::string& value, const std::string& label) {
    auto& labels = d->variable->valueLabels;
    const auto found = std::find_if(labels.begin(), labels.end(),
                                    [&](const auto& entry) { return entry.first == value; });
    if (found == labels.end()) {
        labels.emplace_back(value, label);
    } else {
        found->second = label;
    }
    d->touch();
    return true;
}

void TKelVariable::setValueLabels(const TKelValueLabels& labels) {
    d->variable->valueLabels.assign(labels.begin(), labels.end());
    d->touch();
}

std::string TKelVariable::labelOf(const TKelVariant& value) {
    return labelOf(kelx::boundary::toText(value));
}

std::string TKelVariable::labelOf(const std::string& value) {
    const std::string* label = d->variable->labelOf(value);
    return label != nullptr ? *label : std::string();
}

bool TKelVariable::isMissingValue(const double& value) {
    return std::isnan(value) || d->variable->missing == value;
}

bool TKelVariable::isNotAppValue(const double& value) {
    return d->variable->notapp == value;
}

std::string TKelVariable::asJson() {
    return catalog::describeVariable(*d->variable);
}

const std::vector<std::pair<std::string, std::string>>& TKelVariable::valueLabels() const {
    return d->variable->valueLabels;
}

std::optional<int> TKelVariable::decimals() const {
    return d->variable->decimals;
}

const std::vector<TKelRange>& TKelVariable::ranges() const {
    auto& shown = d->ranges;
    shown.clear();
    for (const catalog::Range& range : d->variable->ranges) {
        shown.push_back({range.kind, range.minimum, range.maximum});
    }
    return shown;
}

std::optional<int> TKelVariable::sensitive() const {
    return d->variable->sensitive;
}

bool TKelVariable::hidden() const {
    return d->variable->hidden;
}

void TKelVariable::setHidden(bool hidden) {
    d->variable->hidden = hidden;
    d->touch();
}

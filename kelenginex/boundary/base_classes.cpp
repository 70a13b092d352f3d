// SPDX-License-Identifier: Apache-2.0
// The parts of the boundary's base classes that the engine itself holds.
#include "kel.h"

TKelUIProvider::~TKelUIProvider() = default;

TKelConfig::~TKelConfig() = default;

bool TKelConfig::tab_show_intermediate() {
    return false;
}

TKelSpcErrorsListener::~TKelSpcErrorsListener() = default;

TKelOutputSortConfig::TKelOutputSortConfig() = default;
TKelOutputSortConfig::TKelOutputSortConfig(const TKelOutputSortConfig& other) = default;
TKelOutputSortConfig& TKelOutputSortConfig::operator=(const TKelOutputSortConfig& other) = default;
TKelOutputSortConfig::~TKelOutputSortConfig() = default;

TKelField::TKelField(std::string name, std::string label, std::string format)
    : name_(std::move(name)), label_(std::move(label)), format_(std::move(format)) {}

TKelField::~TKelField() = default;

std::string TKelField::name() const {
    return name_;
}

std::string TKelField::label() const {
    return label_;
}

std::string TKelField::format() const {
    return format_;
}

TKelDataset::~TKelDataset() = default;

std::vector<std::string> TKelDataset::valueNames() const {
    return listValueNames();
}

TKelRunSelection::TKelRunSelection(std::string label) : label_(std::move(label)) {}

TKelRunSelection::~TKelRunSelection() = default;

std::string TKelRunSelection::label() const {
    return label_;
}

TKelRunDefinition::TKelRunDefinition(std::shared_ptr<TKelRunSelection> selection,
                                     std::optional<std::string> universalFilter)
    : selection_(selection != nullptr ? std::move(selection)
                                      : std::make_shared<TKelRunSelection>(std::string())),
      universalFilter_(std::move(universalFilter)) {}

TKelRunDefinition::~TKelRunDefinition() = default;

std::shared_ptr<TKelRunSelection> TKelRunDefinition::selection() const {
    return selection_;
}

const std::optional<std::string>& TKelRunDefinition::universalFilter() const {
    return universalFilter_;
}

// SPDX-License-Identifier: Apache-2.0
#include "import/staging.h"

#include "storage/error.h"

#include <random>

namespace kelx::tools {

namespace fs = std::filesystem;

Staging::Staging(const fs::path& target, std::vector<std::string> fileNames, bool overwrite)
    : target_(fs::absolute(target).parent_path()), fileNames_(std::move(fileNames)) {
    std::error_code fault;
    fs::create_directories(target_, fault);
    if (fault)
        throw storage::FileError(target_, "the folder cannot be made: " + fault.message());
    for (const std::string& name : fileNames_)
        if (!overwrite && fs::exists(target_ / name, fault))
            throw storage::FileError(target_ / name, "exists already");
    std::random_device random;
    folder_ = target_ / (".kelx-" + std::to_string(random()));
    if (!fs::create_directory(folder_, fault))
        throw storage::FileError(folder_, "the folder cannot be made: " + fault.message());
}

Staging::~Staging() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void Staging::publish() {
    for (const std::string& name : fileNames_) {
        std::error_code fault;
        fs::rename(folder_ / name, target_ / name, fault);
        if (fault)
            throw storage::FileError(target_ / name, "cannot be written: " + fault.message());
    }
}

} // namespace kelx::tools

// SPDX-License-Identifier: Apache-2.0
// A set of files that appears only once all of it is written.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kelx::tools {

/// A folder beside the target's files, gone with this object. Folders that processes left behind
/// which are gone themselves are removed first. All functions throw storage::FileError.
class Staging {
public:
    /// Refuses where one of the files exists in the target's folder, unless overwriting is meant.
    /// Makes the target's folder where it is not there; without publish() it goes again.
    Staging(const std::filesystem::path& target, std::vector<std::string> fileNames,
            bool overwrite);
    ~Staging();
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    const std::filesystem::path& folder() const { return folder_; }
    /// Moves the files to their place, in the order of their names given, and syncs that folder.
    void publish();

private:
    void requireNone(const std::filesystem::path& target) const;
    void makeFolder();

    std::filesystem::path target_, folder_;
    std::vector<std::string> fileNames_;
    bool madeTarget_ = false;
    int lock_ = -1; ///< the folder, locked as long as its process lives
};

} // namespace kelx::tools

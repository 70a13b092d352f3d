// SPDX-License-Identifier: GPL-3.0-or-later
// A folder of a test's own, and files as texts.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>

namespace kelx::test {

inline void writeFile(const std::filesystem::path& file, const std::string& text) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

/// Throws std::runtime_error where the file cannot be opened.
inline std::string readFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot open " + file.string());
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// New and empty; gone, with all that is in it, with this object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "kelx-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    std::filesystem::path write(const std::string& name, const std::string& text) const {
        writeFile(path_ / name, text);
        return path_ / name;
    }
    std::string read(const std::string& name) const { return readFile(path_ / name); }

    /// All files below a folder and what is in them, by relative name.
    static std::map<std::string, std::string> contents(const std::filesystem::path& folder) {
        std::map<std::string, std::string> files;
        if (std::filesystem::exists(folder))
            for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
                if (entry.is_regular_file())
                    files[entry.path().lexically_relative(folder).string()] =
                        readFile(entry.path());
        return files;
    }

private:
    std::filesystem::path path_;
};

} // namespace kelx::test

// SPDX-License-Identifier: GPL-3.0-or-later
// A folder of a test's own and its files as texts.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "kelx-test-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        path_ = name;
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << text;
        return path_ / name;
    }
    std::string read(const std::string& name) const { return readFile(path_ / name); }

    static std::string readFile(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        EXPECT_TRUE(stream) << file;
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }
    /// All files below a folder and what is in them.
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

// SPDX-License-Identifier: Apache-2.0
#include "catalog/reader.h"

#include "catalog/assembly.h"
#include "catalog/data_files.h"
#include "catalog/names.h"
#include "storage/atomic_file.h"
#include "storage/error.h"
#include "storage/folder_lock.h"
#include "storage/kxdb_file.h"
#include "storage/posix_io.h"

#include <algorithm>
#include <fstream>
#include <system_error>

namespace kelx::catalog {

namespace {

namespace fs = std::filesystem;

std::string readText(const fs::path& file) {
    std::error_code error;
    const auto size = fs::file_size(file, error);
    if (error) {
        throw storage::FileError(file, "cannot be read: " + error.message());
    }
    if (size > Limits::fileBytes) {
        throw storage::FileError(file, "larger than any dictionary (256 MB)");
    }
    std::string text(static_cast<std::size_t>(size), '\0');
    std::ifstream stream(file, std::ios::binary);
    if (!stream.read(text.data(), static_cast<std::streamsize>(text.size()))) {
        throw storage::FileError(file, "cannot be read to its end");
    }
    return text;
}

bool looksLikeXml(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    char first[4] = {};
    stream.read(first, sizeof first);
    const std::string_view bytes(first, static_cast<std::size_t>(stream.gcount()));
    return bytes.find('<') != std::string_view::npos;
}

bool isDicx(const fs::path& file) {
    const std::string extension = lowerCase(file.extension().string());
    return extension == ".dicx" || (extension != ".kxdb" && looksLikeXml(file));
}

/// Names may come with a relative path; what is opened later must not hang on the working folder.
fs::path absoluteFile(const fs::path& file) {
    std::error_code error;
    const fs::path result = fs::absolute(file, error).lexically_normal();
    return error ? file : result;
}

std::unique_ptr<Dictionary> readBinary(const fs::path& file, const Questions& questions) {
    const auto password = [&]() -> std::string {
        if (!questions.password) {
            throw storage::FileError(file, "protected by a password");
        }
        return questions.password(file.stem().string());
    };
    const storage::KxdbContent content = storage::readKxdb(file, password);
    auto dictionary = parsePayload(content.payload, file);
    dictionary->key = content.key;
    return dictionary;
}

void askForDataFolder(Dictionary& dictionary, const Questions& questions) {
    if (!questions.dataFolder || !namesAnyFile(dictionary) || findsAnyFile(dictionary)) {
        return;
    }
    const std::string name =
        dictionary.name.empty() ? dictionary.file.stem().string() : dictionary.name;
    const std::string folder = questions.dataFolder(name);
    if (folder.empty()) {
        throw std::runtime_error("Missing data location.");
    }
    dictionary.dataFolder = absoluteFile(folder);
}

/// The form is that of the name which the file is to have.
void write(const Dictionary& dictionary, const fs::path& file, const fs::path& name) {
    if (sameName(name.extension().string(), ".dicx")) {
        storage::AtomicFile output(file);
        output.write(writeDicx(dictionary));
        output.commit();
    } else {
        storage::writeKxdb(file, {writePayload(dictionary), dictionary.key});
    }
}

} // namespace

std::unique_ptr<Dictionary> readAgain(const Dictionary& earlier) {
    const fs::path& file = earlier.file;
    storage::awaitWholeFolderOf(file);
    std::unique_ptr<Dictionary> dictionary;
    if (isDicx(file)) {
        dictionary = parseDicx(readText(file), file);
    } else {
        const storage::KxdbContent content = storage::readKxdbAgain(file, earlier.key);
        dictionary = parsePayload(content.payload, file);
        dictionary->key = content.key;
    }
    dictionary->dataFolder = earlier.dataFolder;
    describeFromData(*dictionary);
    return dictionary;
}

std::unique_ptr<Dictionary> readDictionary(const fs::path& file, const Questions& questions) {
    if (file.empty()) {
        throw std::runtime_error("The file of the dictionary has no name.");
    }
    const fs::path path = absoluteFile(file);
    storage::awaitWholeFolderOf(path);
    auto dictionary = isDicx(path) ? parseDicx(readText(path), path) : readBinary(path, questions);
    askForDataFolder(*dictionary, questions);
    describeFromData(*dictionary);
    return dictionary;
}

void saveDictionary(Dictionary& dictionary, const fs::path& file) {
    const fs::path path = absoluteFile(file);
    FileNameMove move(dictionary, path.parent_path());
    write(dictionary, path, path);
    move.keep();
    dictionary.file = path;
    dictionary.dataFolder = path.parent_path();
    dictionary.dirty = false;
}

void stageDictionary(const Dictionary& dictionary, storage::StagedFiles& files) {
    files.keepJournal(storage::targetOf(dictionary.file).parent_path());
    files.write(dictionary.file,
                [&](const fs::path& staged) { write(dictionary, staged, dictionary.file); });
}

} // namespace kelx::catalog

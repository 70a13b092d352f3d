// SPDX-License-Identifier: Apache-2.0
// Which records of an entity belong to which record of the entity above.
#pragma once

#include "storage/mapped_file.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

namespace kelx::storage {

/// A .kpt file: parents() + 1 ascending offsets; the children of parent i are the records
/// first(i) to first(i + 1) - 1. Read-only and safe to use from several threads.
class PointerFile {
public:
    virtual ~PointerFile() = default;

    /// Opens and checks the file, its order included. Throws FileError.
    static std::shared_ptr<const PointerFile> open(const std::filesystem::path& file);
    /// One parent (the root) above all records; for entities whose parent has a single record.
    static std::shared_ptr<const PointerFile> single(std::uint64_t children);

    std::uint64_t parents() const { return parents_; }
    std::uint64_t children() const { return children_; }
    bool isWide() const { return wide_ != nullptr; }
    /// The offsets, parents() + 1 of them; narrow() where isWide() is false.
    const std::uint64_t* wide() const { return wide_; }
    const std::uint32_t* narrow() const { return narrow_; }
    std::uint64_t first(std::uint64_t parent) const {
        return wide_ != nullptr ? wide_[parent] : narrow_[parent];
    }
    /// The parent of a child record.
    std::uint64_t parentOf(std::uint64_t child) const;
    /// Of the file; none for single().
    virtual std::optional<FileIdentity> identity() const { return std::nullopt; }

protected:
    std::uint64_t parents_ = 0;
    std::uint64_t children_ = 0;
    const std::uint64_t* wide_ = nullptr;
    const std::uint32_t* narrow_ = nullptr;
};

/// Writes a .kpt file, one parent after the other; nothing stands under its name before commit().
class PointerWriter {
public:
    explicit PointerWriter(const std::filesystem::path& file);
    ~PointerWriter();
    void addParent(std::uint64_t childCount); ///< the next parent has so many children
    void commit();

private:
    struct Data;
    std::unique_ptr<Data> d_;
};

} // namespace kelx::storage

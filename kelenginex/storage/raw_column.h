// SPDX-License-Identifier: Apache-2.0
// .bin files: values alone, in the type and size that a dictionary gives.
#pragma once

#include "storage/column.h"
#include "storage/pulse.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace kelx::storage {

/// datasetType of a dictionary.
enum class RawType : std::uint8_t { Chr, Dbl, Bin, Pck, Lng, Sng, Byte, Uni, Bool, Int };

std::optional<RawType> rawTypeFromName(const std::string& name); ///< "CHR", "DBL", ...
const char* rawTypeName(RawType type);

/// How a .bin file is to be read.
struct RawLayout {
    RawType type = RawType::Byte;
    int size = 1;     ///< characters for CHR and UNI, bits for BIN, digits for PCK, else bytes
    int decimals = 0; ///< implied decimals of PCK and CHR numbers
    ValueType valueType = ValueType::Integer;
};

/// Opens a .bin file of so many records as a column; throws FileError where the size of the file
/// and the layout contradict each other.
std::shared_ptr<const Column> openRawColumn(const std::filesystem::path& file,
                                            const RawLayout& layout, std::uint64_t records);

/// The checked description beside a .bin file (file name + ".desc"); null where there is none.
/// Throws FileError where it is damaged or does not fit the data file.
std::optional<RawLayout> readRawDescription(const std::filesystem::path& binFile);
void writeRawDescription(const std::filesystem::path& binFile, const RawLayout& layout,
                         std::uint64_t records);
/// Writes a column as a .bin file, atomically, with a pulse for each block. Throws FileError where
/// a value does not fit.
void writeRawColumn(const std::filesystem::path& file, const Column& column,
                    const RawLayout& layout, const Pulse& pulse = {});

} // namespace kelx::storage

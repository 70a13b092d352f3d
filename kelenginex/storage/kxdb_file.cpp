// SPDX-License-Identifier: Apache-2.0
#include "storage/kxdb_file.h"

#include "storage/atomic_file.h"
#include "storage/mapped_file.h"

#include <algorithm>
#include <functional>
#include <zstd.h>

namespace kelx::storage {

namespace {

constexpr Magic dictionaryMagic = magicOf("KXD");
constexpr std::uint64_t mostPayload = std::uint64_t{256} << 20;
constexpr int compressionLevel = 9;
constexpr int largestWindow = 27;

struct KxdbHeader {
    Preamble preamble;
    std::uint32_t flags = 0;
    std::uint32_t unused = 0;
    std::uint64_t payloadLength = 0; ///< as the catalog wrote it
    std::uint64_t storedLength = 0;  ///< compressed and perhaps sealed, to the end of the file
    std::uint64_t storedHash = 0;
    std::array<std::uint8_t, 16> salt{};
    std::uint64_t operations = 0;
    std::uint64_t memory = 0;
    std::array<std::uint8_t, 32> reserved{};
    std::uint64_t hash = 0;
};
static_assert(sizeof(KxdbHeader) == 128);

/// The header vouches for itself through the sealed payload; its two hashes cannot.
std::vector<std::byte> contextOf(KxdbHeader header) {
    header.storedHash = 0;
    header.hash = 0;
    const auto bytes = bytesOf(header);
    return {bytes.begin(), bytes.end()};
}

std::vector<std::byte> compress(const std::string& payload, const std::filesystem::path& file) {
    if (payload.size() > mostPayload)
        throw FileError(file, "cannot be written: the dictionary is larger than 256 MiB");
    std::vector<std::byte> packed(ZSTD_compressBound(payload.size()));
    const auto size = ZSTD_compress(packed.data(), packed.size(), payload.data(), payload.size(),
                                    compressionLevel);
    if (ZSTD_isError(size) != 0)
        throw FileError(file, std::string("cannot be compressed: ") + ZSTD_getErrorName(size));
    packed.resize(size);
    return packed;
}

/// Grows with what really comes out, and stops at the length that the header announces.
std::string decompress(std::span<const std::byte> packed, std::uint64_t length,
                       const std::filesystem::path& file) {
    const std::unique_ptr<ZSTD_DCtx, decltype(&ZSTD_freeDCtx)> context(ZSTD_createDCtx(),
                                                                       &ZSTD_freeDCtx);
    ZSTD_DCtx_setParameter(context.get(), ZSTD_d_windowLogMax, largestWindow);
    std::string payload;
    std::vector<char> piece(ZSTD_DStreamOutSize());
    ZSTD_inBuffer in{packed.data(), packed.size(), 0};
    for (std::size_t state = 1; state != 0;) {
        ZSTD_outBuffer out{piece.data(), piece.size(), 0};
        const auto consumed = in.pos;
        state = ZSTD_decompressStream(context.get(), &out, &in);
        if (ZSTD_isError(state) != 0)
            throw FileError(file, std::string("is damaged: ") + ZSTD_getErrorName(state));
        if (out.pos > length - payload.size() || (out.pos == 0 && in.pos == consumed && state != 0))
            throw FileError(file, "is damaged: its content has another length than announced");
        payload.append(piece.data(), out.pos);
    }
    if (payload.size() != length || in.pos != in.size)
        throw FileError(file, "is damaged: its content has another length than announced");
    return payload;
}

void checkKxdb(const KxdbHeader& header, const std::filesystem::path& file) {
    if ((header.flags & ~1u) != 0)
        throw FileError(file, "is damaged: its flags are unknown");
    if (header.payloadLength > mostPayload)
        throw FileError(file, "is damaged: its content is announced as larger than 256 MiB");
    if (header.storedLength != header.preamble.fileSize - sizeof(KxdbHeader))
        throw FileError(file, "is damaged: its content does not fill the file");
}

std::shared_ptr<const Secret> deriveKey(const KxdbHeader& header, const PasswordPrompt& prompt,
                                        const std::filesystem::path& file) {
    if (!prompt)
        throw FileError(file, "is protected by a password");
    const auto password = prompt();
    try {
        return Secret::derive(password, {header.salt, header.operations, header.memory});
    } catch (const std::runtime_error& problem) {
        throw FileError(file, problem.what());
    }
}

} // namespace

namespace {

using FindKey = std::function<std::shared_ptr<const Secret>(const KxdbHeader& header)>;

KxdbContent readWith(const std::filesystem::path& file, const FindKey& findKey) {
    const MappedFile map(file);
    const auto header = readHeader<KxdbHeader>(map, dictionaryMagic, "dictionary file");
    checkKxdb(header, file);
    auto stored = map.part(sizeof(KxdbHeader), header.storedLength, "its content");
    if (hash64(stored) != header.storedHash)
        throw FileError(file, "is damaged: its content does not match its checksum");
    KxdbContent content;
    std::vector<std::byte> opened;
    if ((header.flags & 1u) != 0) {
        if (stored.size() < Secret::overhead)
            throw FileError(file, "is damaged: its content is too short");
        content.key = findKey(header);
        opened.resize(stored.size() - Secret::overhead);
        if (!content.key->open(stored, contextOf(header), opened))
            throw std::runtime_error("Wrong password.");
        stored = opened;
    }
    content.payload = decompress(stored, header.payloadLength, file);
    return content;
}

bool isRecipeOf(const KxdbHeader& header, const Secret& key) {
    const KeyRecipe& recipe = key.recipe();
    return recipe.salt == header.salt && recipe.operations == header.operations &&
           recipe.memory == header.memory;
}

} // namespace

KxdbContent readKxdb(const std::filesystem::path& file, const PasswordPrompt& prompt) {
    return readWith(file,
                    [&](const KxdbHeader& header) { return deriveKey(header, prompt, file); });
}

KxdbContent readKxdbAgain(const std::filesystem::path& file,
                          const std::shared_ptr<const Secret>& key) {
    return readWith(file, [&](const KxdbHeader& header) {
        if (key == nullptr || !isRecipeOf(header, *key))
            throw FileError(file, "has got another password meanwhile");
        return key;
    });
}

void writeKxdb(const std::filesystem::path& file, const KxdbContent& content) {
    auto stored = compress(content.payload, file);
    KxdbHeader header;
    header.payloadLength = content.payload.size();
    header.storedLength = stored.size();
    if (content.key != nullptr) {
        const auto& recipe = content.key->recipe();
        header.flags = 1;
        header.salt = recipe.salt;
        header.operations = recipe.operations;
        header.memory = recipe.memory;
        header.storedLength += Secret::overhead;
        sealHeader(header, dictionaryMagic, sizeof(header) + header.storedLength);
        stored = content.key->seal(stored, contextOf(header));
    }
    header.storedHash = hash64(stored);
    sealHeader(header, dictionaryMagic, sizeof(header) + stored.size());
    AtomicFile out(file);
    out.write(bytesOf(header));
    out.write(stored);
    out.commit();
}

} // namespace kelx::storage

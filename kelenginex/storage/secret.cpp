// SPDX-License-Identifier: Apache-2.0
#include "storage/secret.h"

#include <sodium.h>
#include <stdexcept>

namespace kelx::storage {

namespace {

constexpr std::size_t nonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr std::size_t tagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;
static_assert(nonceSize + tagSize == Secret::overhead);
static_assert(crypto_pwhash_SALTBYTES == 16);
static_assert(crypto_aead_xchacha20poly1305_ietf_KEYBYTES == 32);

/// What a file may ask of us: enough for any recipe of ours, no stop of the machine.
constexpr std::uint64_t mostOperations = 16;
constexpr std::uint64_t mostMemory = std::uint64_t{1} << 30;

void startSodium() {
    if (sodium_init() < 0)
        throw std::runtime_error("The encryption library cannot be started.");
}

const unsigned char* raw(std::span<const std::byte> bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

unsigned char* raw(std::byte* bytes) {
    return reinterpret_cast<unsigned char*>(bytes);
}

} // namespace

KeyRecipe Secret::newRecipe() {
    startSodium();
    KeyRecipe recipe;
    randombytes_buf(recipe.salt.data(), recipe.salt.size());
    recipe.operations = crypto_pwhash_OPSLIMIT_INTERACTIVE;
    recipe.memory = crypto_pwhash_MEMLIMIT_INTERACTIVE;
    return recipe;
}

std::shared_ptr<const Secret> Secret::derive(const std::string& password, const KeyRecipe& recipe) {
    startSodium();
    if (recipe.operations < crypto_pwhash_OPSLIMIT_MIN || recipe.operations > mostOperations ||
        recipe.memory < crypto_pwhash_MEMLIMIT_MIN || recipe.memory > mostMemory)
        throw std::runtime_error("The costs of the key derivation are unreasonable.");
    std::shared_ptr<Secret> secret(new Secret);
    secret->recipe_ = recipe;
    if (crypto_pwhash(secret->key_.data(), secret->key_.size(), password.data(), password.size(),
                      recipe.salt.data(), recipe.operations,
                      static_cast<std::size_t>(recipe.memory), crypto_pwhash_ALG_ARGON2ID13) != 0)
        throw std::runtime_error("There is not enough memory to derive the key.");
    return secret;
}

Secret::~Secret() {
    sodium_memzero(key_.data(), key_.size());
}

std::vector<std::byte> Secret::seal(std::span<const std::byte> plain,
                                    std::span<const std::byte> context) const {
    std::vector<std::byte> sealed(plain.size() + overhead);
    randombytes_buf(sealed.data(), nonceSize);
    crypto_aead_xchacha20poly1305_ietf_encrypt(raw(sealed.data() + nonceSize), nullptr, raw(plain),
                                               plain.size(), raw(context), context.size(), nullptr,
                                               raw(sealed.data()), key_.data());
    return sealed;
}

bool Secret::open(std::span<const std::byte> sealed, std::span<const std::byte> context,
                  std::span<std::byte> out) const {
    if (sealed.size() < overhead || out.size() != sealed.size() - overhead)
        return false;
    return crypto_aead_xchacha20poly1305_ietf_decrypt(
               raw(out.data()), nullptr, nullptr, raw(sealed.subspan(nonceSize)),
               sealed.size() - nonceSize, raw(context), context.size(),
               raw(sealed.first(nonceSize)), key_.data()) == 0;
}

} // namespace kelx::storage

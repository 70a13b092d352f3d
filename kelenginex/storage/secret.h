// SPDX-License-Identifier: Apache-2.0
// The key of a protected database, and what is done with it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace kelx::storage {

/// Parameters of the key derivation, stored in clear beside what they protect.
struct KeyRecipe {
    std::array<std::uint8_t, 16> salt{};
    std::uint64_t operations = 0; ///< Argon2id passes
    std::uint64_t memory = 0;     ///< Argon2id memory in bytes
};

/// An XChaCha20-Poly1305 key; wiped when it goes away.
class Secret {
public:
    /// A recipe with a fresh random salt and the usual interactive costs.
    static KeyRecipe newRecipe();
    /// Throws std::runtime_error where the recipe's costs are unreasonable.
    static std::shared_ptr<const Secret> derive(const std::string& password,
                                                const KeyRecipe& recipe);
    ~Secret();
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;

    static constexpr std::size_t overhead = 24 + 16; ///< nonce and tag, in bytes
    /// Plain text to nonce, cipher text and tag. The context is authenticated with it.
    std::vector<std::byte> seal(std::span<const std::byte> plain,
                                std::span<const std::byte> context) const;
    /// False where key, context or bytes do not belong together; out has sealed.size()-overhead.
    bool open(std::span<const std::byte> sealed, std::span<const std::byte> context,
              std::span<std::byte> out) const;
    const KeyRecipe& recipe() const { return recipe_; }

private:
    Secret() = default;
    std::array<std::uint8_t, 32> key_{};
    KeyRecipe recipe_;
};

} // namespace kelx::storage

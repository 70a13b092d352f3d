// SPDX-License-Identifier: Apache-2.0
// Numbers in files: little-endian, which every machine that we build for is.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

namespace kelx::storage {

static_assert(std::endian::native == std::endian::little, "files are mapped in place");

/// Number i of an array that may lie unaligned.
template <class T>
T load(const void* array, std::size_t i = 0) {
    static_assert(std::is_trivially_copyable_v<T>);
    T value;
    std::memcpy(&value, static_cast<const std::byte*>(array) + i * sizeof(T), sizeof(T));
    return value;
}

template <class T>
void store(void* array, std::size_t i, const T& value) {
    static_assert(std::is_trivially_copyable_v<T>);
    std::memcpy(static_cast<std::byte*>(array) + i * sizeof(T), &value, sizeof(T));
}

template <class T>
std::span<const std::byte> bytesOf(const T& value) {
    static_assert(std::is_trivially_copyable_v<T>);
    return {reinterpret_cast<const std::byte*>(&value), sizeof(T)};
}

/// XXH3, 64 bits: finds damage, and is no protection against intent.
std::uint64_t hash64(std::span<const std::byte> bytes);

} // namespace kelx::storage

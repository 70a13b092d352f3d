// SPDX-License-Identifier: Apache-2.0
// Frees large memory on a thread of its own: nobody who waits for the end of a run, cancelled or
// not, waits for that.
#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace kelx::execution {

/// The one thread that frees. It runs while there is something to free, between open() and
/// close(); all else is freed at once, by who gives it.
class Discards {
public:
    static void open();
    /// Waits until all is freed.
    static void close();
    /// Only what owns nothing but memory.
    static void take(std::shared_ptr<void> what) noexcept;
};

/// A vector that is freed elsewhere where it holds many bytes, or items that hold much themselves.
template <class T, std::size_t Least = (std::size_t{1} << 20) / sizeof(T)>
class LargeVector : public std::vector<T> {
    using Base = std::vector<T>;
    static_assert(std::is_nothrow_move_constructible_v<Base>);

public:
    using Base::Base;
    LargeVector() = default;
    LargeVector(Base&& other) noexcept : Base(std::move(other)) {}
    LargeVector(const LargeVector& other) = default;
    LargeVector(LargeVector&& other) noexcept = default;
    LargeVector& operator=(const LargeVector& other) = default;
    LargeVector& operator=(LargeVector&& other) noexcept {
        this->swap(other);
        other.discard();
        return *this;
    }
    ~LargeVector() { discard(); }

    /// Leaves it empty.
    void discard() noexcept {
        if (this->capacity() >= Least) {
            try {
                auto away = std::make_shared<Base>();
                away->swap(*this);
                Discards::take(std::move(away));
            } catch (const std::bad_alloc&) { // then here
            }
        }
        Base().swap(*this);
    }
};

} // namespace kelx::execution

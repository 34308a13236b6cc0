#pragma once

#include "nyxrender/Export.h"

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

namespace nyx {

/// The renderer's allocator of returned arrays. Memory crosses the library boundary through it.
struct NYXRENDER_EXPORT Unique_array_helper {
    /// Memory for `bytes` bytes, aligned for every fundamental type; null for 0 bytes.
    /// Throws std::bad_alloc.
    [[nodiscard]] static void* allocate(std::size_t bytes);
    /// Releases what `allocate` returned; null is ignored.
    static void free(void* memory) noexcept;
};

/// An owned array that the renderer returned: a pointer and a count, move-only, released through
/// Unique_array_helper::free. An index is not checked.
template <class T>
class Unique_array {
    static_assert(std::is_trivially_copyable_v<T>);

public:
    using value_type = T;
    using const_iterator = T const*;

    Unique_array() = default;
    /// Copies `size` elements into memory of its own.
    Unique_array(T const* source, std::size_t size)
        : data_(static_cast<T*>(Unique_array_helper::allocate(size * sizeof(T)))), size_(size) {
        if (size != 0) {
            std::memcpy(static_cast<void*>(data_), source, size * sizeof(T));
        }
    }
    Unique_array(Unique_array&& other) noexcept
        : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}
    Unique_array& operator=(Unique_array&& other) noexcept {
        if (this != &other) {
            Unique_array_helper::free(data_);
            data_ = std::exchange(other.data_, nullptr);
            size_ = std::exchange(other.size_, 0);
        }
        return *this;
    }
    Unique_array(Unique_array const&) = delete;
    Unique_array& operator=(Unique_array const&) = delete;
    ~Unique_array() { Unique_array_helper::free(data_); }

    [[nodiscard]] T* data() { return data_; }
    [[nodiscard]] T const* data() const { return data_; }
    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    T& operator[](std::size_t index) { return data_[index]; }
    T const& operator[](std::size_t index) const { return data_[index]; }
    [[nodiscard]] T* begin() { return data_; }
    [[nodiscard]] T* end() { return data_ + size_; }
    [[nodiscard]] T const* begin() const { return data_; }
    [[nodiscard]] T const* end() const { return data_ + size_; }

private:
    T* data_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace nyx

#pragma once

#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <type_traits>

namespace nyx {

/// A read-only view of elements that somebody else owns: a pointer and a count. It is valid as long
/// as the container that it was made from neither changes nor goes away. An index is not checked.
template <class T>
class Span {
public:
    using value_type = T;
    using const_iterator = T const*;

    constexpr Span() = default;
    constexpr Span(T const* data, std::size_t size) : data_(data), size_(size) {}

    /// Views any contiguous container of T.
    template <class Container>
    requires(!std::same_as<std::remove_cvref_t<Container>, Span> &&
             requires(Container const& c) {
                 { std::data(c) } -> std::convertible_to<T const*>;
                 { std::size(c) } -> std::convertible_to<std::size_t>;
             }) constexpr Span(Container const& container)
        : data_(std::data(container)), size_(static_cast<std::size_t>(std::size(container))) {}

    /// Views a braced list; valid until the end of the full expression that wrote it.
    constexpr Span(std::initializer_list<T> const& list) : Span(list.begin(), list.size()) {}

    [[nodiscard]] constexpr T const* data() const { return data_; }
    [[nodiscard]] constexpr std::size_t size() const { return size_; }
    [[nodiscard]] constexpr bool empty() const { return size_ == 0; }
    constexpr T const& operator[](std::size_t index) const { return data_[index]; }
    [[nodiscard]] constexpr T const* begin() const { return data_; }
    [[nodiscard]] constexpr T const* end() const { return data_ + size_; }

private:
    T const* data_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace nyx

#pragma once

#include "host/Arguments.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <system_error>

namespace app {

/// The id that a word names. "=4711" is that number whatever the scene holds. For any other word,
/// `find(word, id)` says what it means, `id` being its number or the invalid id; CommandError when
/// that finds nothing, with `expected` as the kind of thing that the scene lacks.
template <class Id, class Find>
Id idOf(std::string const& word, char const* expected, Find const& find) {
    bool const asIs = word.starts_with('=');
    std::uint32_t number = 0;
    char const* const begin = word.data() + (asIs ? 1 : 0);
    char const* const end = word.data() + word.size();
    auto const [last, error] = std::from_chars(begin, end, number);
    bool const isNumber = error == std::errc() && last == end;
    if (asIs && isNumber) {
        return Id(number);
    }
    Id const id = find(word, isNumber ? Id(number) : Id());
    if (!id.isValid()) {
        throw CommandError("the scene has no " + std::string(expected) + " \"" + word + "\"");
    }
    return id;
}

} // namespace app

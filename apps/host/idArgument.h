#pragma once

#include "host/Arguments.h"
#include "host/didYouMean.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

namespace app {

/// The id that a word names. "=4711" is that number whatever the scene holds. For any other word,
/// `find(word, id)` says what it means, `id` being its number or the invalid id; CommandError when
/// that finds nothing, with `expected` as the kind of thing that the scene lacks, and what may have
/// been meant out of `names()`.
template <class Id, class Find, class Names>
Id idOf(std::string const& word, char const* expected, Find const& find, Names const& names) {
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
        throw CommandError("the scene has no " + std::string(expected) + " \"" + word + '"' +
                           didYouMean(word, names()));
    }
    return id;
}

/// The names of all records of a kind.
template <class Records>
std::vector<std::string> recordNames(Records const& records) {
    std::vector<std::string> names;
    for (auto const id : records.ids()) {
        names.push_back(records.record(id)->name);
    }
    return names;
}

} // namespace app

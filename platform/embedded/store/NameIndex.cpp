#include "store/NameIndex.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace nyx::embedded {

NameIndex::Split NameIndex::split(std::string_view name) {
    std::size_t const blank = name.find_last_not_of("0123456789");
    if (blank == std::string_view::npos || blank == 0 || name[blank] != ' ' ||
        blank + 1 == name.size()) {
        return {name, 0};
    }
    std::int32_t number = 0;
    char const* const end = name.data() + name.size();
    if (std::from_chars(name.data() + blank + 1, end, number).ec != std::errc()) {
        return {name, 0};
    }
    bool const plain = name[blank + 1] != '0';
    return {name.substr(0, blank), plain ? static_cast<std::uint32_t>(number) : 0};
}

void NameIndex::take(Runs& runs, std::uint32_t number) {
    auto next = runs.upper_bound(number);
    std::uint32_t first = number;
    std::uint32_t last = number;
    if (next != runs.begin()) {
        auto const before = std::prev(next);
        if (before->second + 1 == number) {
            first = before->first;
        }
    }
    if (next != runs.end() && next->first == number + 1) {
        last = next->second;
        runs.erase(next);
    }
    runs[first] = last;
}

void NameIndex::drop(Runs& runs, std::uint32_t number) {
    auto const run = std::prev(runs.upper_bound(number));
    auto const [first, last] = *run;
    if (first == number) {
        runs.erase(run);
    } else {
        run->second = number - 1;
    }
    if (last != number) {
        runs[number + 1] = last;
    }
}

void NameIndex::add(std::string const& name, nyx::ColorId id) {
    if (name.empty()) {
        return;
    }
    std::vector<nyx::ColorId>& ids = holders_[name];
    ids.insert(std::upper_bound(ids.begin(), ids.end(), id), id);
    if (Split const parts = split(name); ids.size() == 1 && parts.number != 0) {
        take(numbers_[std::string(parts.base)], parts.number);
    }
}

void NameIndex::remove(std::string const& name, nyx::ColorId id) {
    auto const entry = holders_.find(name);
    if (entry == holders_.end()) {
        return;
    }
    std::vector<nyx::ColorId>& ids = entry->second;
    auto const place = std::lower_bound(ids.begin(), ids.end(), id);
    if (place == ids.end() || *place != id) {
        return;
    }
    ids.erase(place);
    if (!ids.empty()) {
        return;
    }
    if (Split const parts = split(name); parts.number != 0) {
        auto const runs = numbers_.find(std::string(parts.base));
        drop(runs->second, parts.number);
        if (runs->second.empty()) {
            numbers_.erase(runs);
        }
    }
    holders_.erase(entry);
}

nyx::Span<nyx::ColorId> NameIndex::holders(std::string const& name) const {
    auto const entry = holders_.find(name);
    return entry == holders_.end() ? nyx::Span<nyx::ColorId>() : entry->second;
}

std::string NameIndex::unique(std::string const& name, nyx::Span<nyx::ColorId> ignored,
                              std::function<std::string const*(nyx::ColorId)> const& nameOf) const {
    std::vector<nyx::ColorId> dontCount(ignored.begin(), ignored.end());
    std::sort(dontCount.begin(), dontCount.end());
    auto const isFree = [&](std::string const& candidate) {
        nyx::Span<nyx::ColorId> const ids = holders(candidate);
        return std::includes(dontCount.begin(), dontCount.end(), ids.begin(), ids.end());
    };
    if (isFree(name)) {
        return name;
    }
    std::string const base(split(name).base);
    auto const runs = numbers_.find(base);
    std::uint32_t number = 1;
    if (runs != numbers_.end() && runs->second.begin()->first == 1) {
        number = runs->second.begin()->second + 1;
    }
    for (nyx::ColorId const id : ignored) {
        std::string const* const held = nameOf(id);
        if (held == nullptr) {
            continue;
        }
        Split const parts = split(*held);
        if (parts.number != 0 && parts.number < number && parts.base == base && isFree(*held)) {
            number = parts.number;
        }
    }
    return base + ' ' + std::to_string(number);
}

} // namespace nyx::embedded

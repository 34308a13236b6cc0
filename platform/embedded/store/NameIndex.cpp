#include "store/NameIndex.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
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
    auto const [entry, isNew] = holders_.try_emplace(name);
    Holders& holders = entry->second;
    if (!isNew) {
        if (holders.all) {
            holders.all->insert(id);
        } else {
            holders.all = std::make_unique<std::set<nyx::ColorId>>(
                std::initializer_list<nyx::ColorId>{holders.only, id});
        }
        return;
    }
    holders.only = id;
    if (Split const parts = split(name); parts.number != 0) {
        take(numbers_[std::string(parts.base)], parts.number);
    }
}

void NameIndex::remove(std::string const& name, nyx::ColorId id) {
    auto const entry = holders_.find(name);
    if (entry == holders_.end()) {
        return;
    }
    Holders& holders = entry->second;
    if (holders.all) {
        holders.all->erase(id);
        if (!holders.all->empty()) {
            return;
        }
    } else if (holders.only != id) {
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

std::vector<nyx::ColorId> NameIndex::holders(std::string const& name) const {
    auto const entry = holders_.find(name);
    if (entry == holders_.end()) {
        return {};
    }
    auto const& all = entry->second.all;
    return all ? std::vector<nyx::ColorId>(all->begin(), all->end())
               : std::vector<nyx::ColorId>{entry->second.only};
}

bool NameIndex::isHeldOnlyBy(std::string const& name,
                             std::vector<nyx::ColorId> const& sorted) const {
    auto const entry = holders_.find(name);
    if (entry == holders_.end()) {
        return true;
    }
    auto const& all = entry->second.all;
    return all ? std::includes(sorted.begin(), sorted.end(), all->begin(), all->end())
               : std::binary_search(sorted.begin(), sorted.end(), entry->second.only);
}

std::string NameIndex::unique(std::string const& name, nyx::Span<nyx::ColorId> ignored,
                              std::function<std::string const*(nyx::ColorId)> const& nameOf) const {
    std::vector<nyx::ColorId> dontCount(ignored.begin(), ignored.end());
    std::sort(dontCount.begin(), dontCount.end());
    auto const isFree = [&](std::string const& candidate) {
        return isHeldOnlyBy(candidate, dontCount);
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
        if (!held) {
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

#include "colors/parameterBlock.h"

#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene.h"
#include "nyxrender/nyx_memory.h"

#include <algorithm>
#include <cstring>

namespace zsg::parameterBlock {

namespace {

// What the renderer's own list code expects of a list's memory.
constexpr std::size_t listAlignment = 32;

std::string_view nameOf(nyxParameter_entry const& entry) {
    void const* const end = std::memchr(entry.name, '\0', sizeof entry.name);
    return {entry.name, end ? static_cast<std::size_t>(static_cast<char const*>(end) - entry.name)
                            : sizeof entry.name};
}

std::string_view storedText(nyxParameter_entry const& entry) {
    return entry.value.text ? std::string_view(entry.value.text) : std::string_view();
}

} // namespace

void findEntries(nyxParameter_edit const& block, std::span<std::string_view const> names,
                 std::span<nyxParameter_entry*> found) {
    if (!block.entries) {
        return;
    }
    for (std::int32_t i = 0; i < block.count; ++i) {
        auto const known = std::find(names.begin(), names.end(), nameOf(block.entries[i]));
        if (known != names.end()) {
            found[static_cast<std::size_t>(known - names.begin())] = &block.entries[i];
        }
    }
}

std::uint32_t word(nyxParameter_entry const* entry, std::uint32_t missing) {
    return entry ? entry->value.word : missing;
}

std::string text(nyxParameter_entry const* entry) {
    return entry ? std::string(storedText(*entry)) : std::string();
}

nyx::Span<nyx::ColorId> ids(nyxParameter_entry const* entry) {
    if (!entry || !entry->value.list.ids || entry->value.list.count <= 0) {
        return {};
    }
    return {entry->value.list.ids, static_cast<std::size_t>(entry->value.list.count)};
}

bool setWord(nyxParameter_entry* entry, std::uint32_t value) {
    if (!entry || entry->value.word == value) {
        return false;
    }
    entry->value.word = value;
    return true;
}

bool setText(nyxParameter_entry* entry, nyxRT_api* api, std::string const& text) {
    if (!entry || storedText(*entry) == std::string_view(text.c_str())) {
        return false;
    }
    nyxScene* const scene = api ? api->scene() : nullptr;
    if (!scene) {
        return false;
    }
    // The former text stays the scene's.
    entry->value.text = nyx_string_dup(*scene, text.c_str());
    return true;
}

bool setIds(nyxParameter_entry* entry, nyx::Span<nyx::ColorId> list) {
    if (!entry || std::ranges::equal(ids(entry), list)) {
        return false;
    }
    nyx::ColorId* copy = nullptr;
    if (!list.empty()) {
        copy = static_cast<nyx::ColorId*>(
            nyx_malloc_aligned(list.size() * sizeof(nyx::ColorId), listAlignment));
        std::copy(list.begin(), list.end(), copy);
    }
    nyx_free_aligned(entry->value.list.ids);
    entry->value.list = {copy, static_cast<std::int32_t>(list.size())};
    return true;
}

} // namespace zsg::parameterBlock

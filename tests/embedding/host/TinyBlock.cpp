#include "TinyBlock.h"

#include "nyxrender/nyx_memory.h"

#include <cstring>
#include <span>

namespace {

enum class Holds { Word, NoId, Text, Color, List };
struct Entry {
    char const* name;
    Holds holds;
};
constexpr Entry color[] = {
    {"id", Holds::NoId},        {"display_name", Holds::Text}, {"original_name", Holds::Text},
    {"color", Holds::Color},    {"flags", Holds::Word},        {"sub_colors", Holds::List},
    {"active_sub", Holds::NoId}};
constexpr Entry colorway[] = {{"id", Holds::NoId},
                              {"display_name", Holds::Text},
                              {"multi_colors", Holds::List},
                              {"active_sub_indices", Holds::List},
                              {"flags", Holds::Word}};
constexpr Entry settings[] = {{"active_colorway_id", Holds::NoId}};

std::span<Entry const> entriesOf(int kind) {
    switch (kind) {
    case nyxParameter_edit::ColorKind:
        return color;
    case nyxParameter_edit::ColorwayKind:
        return colorway;
    default:
        return settings;
    }
}

} // namespace

nyxParameter_edit* makeBlock(int kind, std::uint32_t record) {
    auto const entries = entriesOf(kind);
    auto block = std::make_unique<nyxParameter_edit>();
    block->record_id = record;
    block->kind = kind;
    block->entries = new nyxParameter_entry[entries.size()];
    block->count = static_cast<int>(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        nyxParameter_value& value = block->entries[i].value;
        std::strcpy(block->entries[i].name, entries[i].name);
        if (entries[i].holds == Holds::NoId) {
            value.word = nyx::ColorId::invalidValue;
        } else if (entries[i].holds == Holds::Color) {
            value.rgba[3] = 1;
        }
    }
    if (kind != nyxParameter_edit::ColorSettingsKind) {
        block->entries[0].value.word = record;
    }
    return block.release();
}

void copyValues(nyxParameter_edit const& from, nyxParameter_edit& to) {
    auto const entries = entriesOf(from.kind);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        nyxParameter_value const& source = from.entries[i].value;
        nyxParameter_value& target = to.entries[i].value;
        if (entries[i].holds != Holds::List) {
            target = source;
            continue;
        }
        auto const bytes = static_cast<std::size_t>(source.list.count) * sizeof(nyx::ColorId);
        void* const copy = nyx_malloc_aligned(bytes, nyxParameter_edit::ListAlignment);
        if (bytes != 0) {
            std::memcpy(copy, source.list.ids, bytes);
        }
        nyx_free_aligned(target.list.ids);
        target.list = {static_cast<nyx::ColorId*>(copy), source.list.count};
    }
}

void freeBlock(nyxParameter_edit* block) {
    if (!block) {
        return;
    }
    auto const entries = entriesOf(block->kind);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].holds == Holds::List) {
            nyx_free_aligned(block->entries[i].value.list.ids);
        }
    }
    delete[] block->entries;
    delete block;
}

nyxParameter_value& valueOf(nyxParameter_edit& block, char const* name) {
    int i = 0;
    while (std::strcmp(block.entries[i].name, name) != 0) {
        ++i;
    }
    return block.entries[i].value;
}

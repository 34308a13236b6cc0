#include "api/ParameterBlocks.h"

#include "store/StringPool.h"

#include "nyxrender/Span.h"
#include "nyxrender/nyx_memory.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace nyx::embedded {

namespace {

/// Exactly that name, which may fill the field only when it is longer than any that is known.
template <std::size_t N>
bool isNamed(nyxParameter_entry const& entry, char const (&name)[N]) {
    static_assert(N <= sizeof entry.name);
    return entry.name[0] == name[0] && std::memcmp(entry.name, name, N) == 0;
}

bool isList(nyxParameter_entry const& entry) {
    return isNamed(entry, "sub_colors") || isNamed(entry, "multi_colors") ||
           isNamed(entry, "active_sub_indices");
}

bool isScalar(nyxParameter_entry const& entry) {
    return isNamed(entry, "id") || isNamed(entry, "display_name") ||
           isNamed(entry, "original_name") || isNamed(entry, "color") || isNamed(entry, "flags") ||
           isNamed(entry, "active_sub") || isNamed(entry, "active_colorway_id");
}

/// What a block is beyond what is exchanged: its own entries, whatever `entries` points to by then.
struct Block final : nyxParameter_edit {
    Block(std::uint32_t recordId, std::int32_t blockKind, std::size_t entryCount)
        : size(entryCount) {
        record_id = recordId;
        kind = blockKind;
        if (size > few.size()) {
            many.resize(size);
            manyAsList.resize(size);
        }
        entries = own();
        count = static_cast<std::int32_t>(size);
    }

    [[nodiscard]] nyxParameter_entry* own() { return size > few.size() ? many.data() : few.data(); }
    /// Whether the entry was made as a list, whatever its name says now.
    [[nodiscard]] std::uint8_t& madeAsList(std::size_t i) {
        return size > few.size() ? manyAsList[i] : fewAsList[i];
    }

    nyxParameter_entry& add(char const* name) {
        nyxParameter_entry& entry = own()[used];
        std::strcpy(entry.name, name);
        madeAsList(used++) = isList(entry);
        return entry;
    }

    // No block of the renderer's own has more than seven entries.
    std::array<nyxParameter_entry, 7> few;
    std::array<std::uint8_t, 7> fewAsList{};
    std::vector<nyxParameter_entry> many;
    std::vector<std::uint8_t> manyAsList;
    std::size_t size;
    std::size_t used = 0;
    unsigned generation = 0;
};

nyx::Span<nyxParameter_entry> entriesOf(nyxParameter_edit const& block) {
    if (!block.entries || block.count <= 0) {
        return {};
    }
    return {block.entries, static_cast<std::size_t>(block.count)};
}

nyx::Span<nyx::ColorId> listOf(nyxParameter_entry const& entry) {
    if (!entry.value.list.ids || entry.value.list.count <= 0) {
        return {};
    }
    return {entry.value.list.ids, static_cast<std::size_t>(entry.value.list.count)};
}

void setList(nyxParameter_entry& entry, nyx::Span<nyx::ColorId> ids) {
    entry.value.list = {nullptr, 0};
    if (!ids.empty()) {
        std::size_t const bytes = ids.size() * sizeof(nyx::ColorId);
        entry.value.list.ids =
            static_cast<nyx::ColorId*>(nyx_malloc_aligned(bytes, nyxParameter_edit::ListAlignment));
        entry.value.list.count = static_cast<std::int32_t>(ids.size());
        std::memcpy(static_cast<void*>(entry.value.list.ids), ids.data(), bytes);
    }
}

/// By name, since entries may have changed places; a list under a name that says nothing is freed
/// where it was made.
void freeLists(Block& block) {
    for (std::size_t i = 0; i < block.size; ++i) {
        nyxParameter_entry const& entry = block.own()[i];
        if (isList(entry) || (block.madeAsList(i) != 0 && !isScalar(entry))) {
            nyx_free_aligned(entry.value.list.ids);
        }
    }
}

/// So that lists made for a block that cannot be finished are not lost.
struct BlockDeleter {
    void operator()(Block* block) const {
        freeLists(*block);
        delete block;
    }
};
using BlockPointer = std::unique_ptr<Block, BlockDeleter>;

void readText(nyxParameter_entry const& entry, std::string& into) {
    into = entry.value.text ? entry.value.text : "";
}

void readList(nyxParameter_entry const& entry, std::vector<nyx::ColorId>& into) {
    nyx::Span<nyx::ColorId> const ids = listOf(entry);
    into.assign(ids.begin(), ids.end());
}

} // namespace

nyxParameter_edit* makeColorBlock(ColorRecord const& record, StringPool& strings) {
    BlockPointer block(new Block(record.id.toUint(), nyxParameter_edit::ColorKind, 7));
    block->add("id").value.word = record.id.toUint();
    block->add("display_name").value.text = strings.intern(record.name);
    block->add("original_name").value.text = strings.intern(record.originalName);
    nyxColor_rgba const& value = record.value;
    float* const rgba = block->add("color").value.rgba;
    rgba[0] = value.r;
    rgba[1] = value.g;
    rgba[2] = value.b;
    rgba[3] = value.a;
    block->add("flags").value.word = record.flags;
    setList(block->add("sub_colors"), record.subColors);
    block->add("active_sub").value.word = record.activeSub.toUint();
    return block.release();
}

nyxParameter_edit* makeColorwayBlock(ColorwayRecord const& record, StringPool& strings) {
    BlockPointer block(new Block(record.id.toUint(), nyxParameter_edit::ColorwayKind, 5));
    block->add("id").value.word = record.id.toUint();
    block->add("display_name").value.text = strings.intern(record.name);
    setList(block->add("multi_colors"), record.multiColors);
    setList(block->add("active_sub_indices"), record.activeSubs);
    block->add("flags").value.word = record.flags;
    return block.release();
}

nyxParameter_edit* makeSettingsBlock(nyx::ColorwayId activeColorway) {
    BlockPointer block(
        new Block(nyx::ColorId::invalidValue, nyxParameter_edit::ColorSettingsKind, 1));
    block->add("active_colorway_id").value.word = activeColorway.toUint();
    return block.release();
}

void setGeneration(nyxParameter_edit& block, unsigned generation) {
    static_cast<Block&>(block).generation = generation;
}

unsigned generationOf(nyxParameter_edit const& block) {
    return static_cast<Block const&>(block).generation;
}

nyxParameter_edit* cloneBlock(nyxParameter_edit const& source, bool copyValues) {
    nyx::Span<nyxParameter_entry> const entries = entriesOf(source);
    BlockPointer clone(new Block(source.record_id, source.kind, entries.size()));
    clone->generation = generationOf(source);
    for (nyxParameter_entry const& entry : entries) {
        bool const list = isList(entry);
        nyxParameter_entry& copy = clone->own()[clone->used];
        std::memcpy(copy.name, entry.name, sizeof copy.name);
        if (copyValues && list) {
            setList(copy, listOf(entry));
        } else if (copyValues) {
            copy.value = entry.value;
        }
        clone->madeAsList(clone->used++) = list;
    }
    return clone.release();
}

void releaseBlock(nyxParameter_edit* block) { BlockPointer(static_cast<Block*>(block)); }

void readBlock(nyxParameter_edit const& block, ColorRecord& record) {
    for (nyxParameter_entry const& entry : entriesOf(block)) {
        if (isNamed(entry, "display_name")) {
            readText(entry, record.name);
        } else if (isNamed(entry, "original_name")) {
            readText(entry, record.originalName);
        } else if (isNamed(entry, "color")) {
            float const* const rgba = entry.value.rgba;
            record.value = {rgba[0], rgba[1], rgba[2], rgba[3]};
        } else if (isNamed(entry, "flags")) {
            record.flags = entry.value.word;
        } else if (isNamed(entry, "sub_colors")) {
            readList(entry, record.subColors);
        } else if (isNamed(entry, "active_sub")) {
            record.activeSub = nyx::ColorId(entry.value.word);
        }
    }
}

void readBlock(nyxParameter_edit const& block, ColorwayRecord& record) {
    for (nyxParameter_entry const& entry : entriesOf(block)) {
        if (isNamed(entry, "display_name")) {
            readText(entry, record.name);
        } else if (isNamed(entry, "multi_colors")) {
            readList(entry, record.multiColors);
        } else if (isNamed(entry, "active_sub_indices")) {
            readList(entry, record.activeSubs);
        } else if (isNamed(entry, "flags")) {
            record.flags = entry.value.word;
        }
    }
}

void readBlock(nyxParameter_edit const& block, nyx::ColorwayId& activeColorway) {
    for (nyxParameter_entry const& entry : entriesOf(block)) {
        if (isNamed(entry, "active_colorway_id")) {
            activeColorway = nyx::ColorwayId(entry.value.word);
        }
    }
}

} // namespace nyx::embedded

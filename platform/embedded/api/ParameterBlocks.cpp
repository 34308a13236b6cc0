#include "api/ParameterBlocks.h"

#include "nyxrender/Span.h"
#include "nyxrender/nyx_memory.h"
#include "store/StringPool.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <string_view>
#include <vector>

namespace nyx::embedded {

namespace {

bool isList(std::string_view name) {
    return name == "sub_colors" || name == "multi_colors" || name == "active_sub_indices";
}

bool isScalar(std::string_view name) {
    static constexpr std::string_view names[] = {
        "id",    "display_name", "original_name",     "color",
        "flags", "active_sub",   "active_colorway_id"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// What a block is beyond what is exchanged: its own entries, whatever `entries` points to by then.
struct Block final : nyxParameter_edit {
    Block(std::uint32_t recordId, std::int32_t blockKind, std::size_t entryCount)
        : storage(entryCount) {
        record_id = recordId;
        kind = blockKind;
        entries = storage.data();
        count = static_cast<std::int32_t>(entryCount);
    }

    nyxParameter_entry& add(char const* name) {
        nyxParameter_entry& entry = storage[used];
        std::strcpy(entry.name, name);
        madeAsList[used++] = isList(name);
        return entry;
    }

    std::vector<nyxParameter_entry> storage;
    std::vector<bool> madeAsList = std::vector<bool>(storage.size());
    std::size_t used = 0;
};

/// The name, also when a stray writer took away its closing zero.
std::string_view nameOf(nyxParameter_entry const& entry) {
    auto const* const end = static_cast<char const*>(std::memchr(entry.name, 0, sizeof entry.name));
    return {entry.name,
            end == nullptr ? sizeof entry.name : static_cast<std::size_t>(end - entry.name)};
}

nyx::Span<nyxParameter_entry> entriesOf(nyxParameter_edit const& block) {
    if (block.entries == nullptr || block.count <= 0) {
        return {};
    }
    return {block.entries, static_cast<std::size_t>(block.count)};
}

nyx::Span<nyx::ColorId> listOf(nyxParameter_entry const& entry) {
    if (entry.value.list.ids == nullptr || entry.value.list.count <= 0) {
        return {};
    }
    return {entry.value.list.ids, static_cast<std::size_t>(entry.value.list.count)};
}

void setList(nyxParameter_entry& entry, nyx::Span<nyx::ColorId> ids) {
    entry.value.list = {nullptr, static_cast<std::int32_t>(ids.size())};
    if (!ids.empty()) {
        std::size_t const bytes = ids.size() * sizeof(nyx::ColorId);
        entry.value.list.ids =
            static_cast<nyx::ColorId*>(nyx_malloc_aligned(bytes, nyxParameter_edit::ListAlignment));
        std::memcpy(static_cast<void*>(entry.value.list.ids), ids.data(), bytes);
    }
}

/// By name, since entries may have changed places; a list under a name that says nothing is freed
/// where it was made.
void freeLists(Block& block) {
    for (std::size_t i = 0; i < block.storage.size(); ++i) {
        nyxParameter_entry const& entry = block.storage[i];
        std::string_view const name = nameOf(entry);
        if (isList(name) || (block.madeAsList[i] && !isScalar(name))) {
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
    into = entry.value.text == nullptr ? "" : entry.value.text;
}

void readList(nyxParameter_entry const& entry, std::vector<nyx::ColorId>& into) {
    nyx::Span<nyx::ColorId> const ids = listOf(entry);
    into.assign(ids.begin(), ids.end());
}

} // namespace

nyxParameter_edit* makeColorBlock(ColorRecord const& record, StringPool& strings) {
    BlockPointer block(new Block(record.head.id.toUint(), nyxParameter_edit::ColorKind, 7));
    block->add("id").value.word = record.head.id.toUint();
    block->add("display_name").value.text = strings.intern(record.name);
    block->add("original_name").value.text = strings.intern(record.originalName);
    nyxColor_rgba const& value = record.value;
    float* const rgba = block->add("color").value.rgba;
    rgba[0] = value.r;
    rgba[1] = value.g;
    rgba[2] = value.b;
    rgba[3] = value.a;
    block->add("flags").value.word = record.head.flags;
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

nyxParameter_edit* cloneBlock(nyxParameter_edit const& source, bool copyValues) {
    nyx::Span<nyxParameter_entry> const entries = entriesOf(source);
    BlockPointer clone(new Block(source.record_id, source.kind, entries.size()));
    for (nyxParameter_entry const& entry : entries) {
        nyxParameter_entry& copy = clone->storage[clone->used];
        if (copyValues) {
            if (isList(nameOf(entry))) {
                setList(copy, listOf(entry));
            } else {
                copy.value = entry.value;
            }
        }
        // The name last: until then the deleter does not take the value for a list.
        std::memcpy(copy.name, entry.name, sizeof copy.name);
        clone->madeAsList[clone->used++] = isList(nameOf(copy));
    }
    return clone.release();
}

void releaseBlock(nyxParameter_edit* block) { BlockPointer(static_cast<Block*>(block)); }

void readBlock(nyxParameter_edit const& block, ColorRecord& record) {
    for (nyxParameter_entry const& entry : entriesOf(block)) {
        std::string_view const name = nameOf(entry);
        if (name == "display_name") {
            readText(entry, record.name);
        } else if (name == "original_name") {
            readText(entry, record.originalName);
        } else if (name == "color") {
            float const* const rgba = entry.value.rgba;
            record.value = {rgba[0], rgba[1], rgba[2], rgba[3]};
        } else if (name == "flags") {
            record.head.flags = entry.value.word;
        } else if (name == "sub_colors") {
            readList(entry, record.subColors);
        } else if (name == "active_sub") {
            record.activeSub = nyx::ColorId(entry.value.word);
        }
    }
}

void readBlock(nyxParameter_edit const& block, ColorwayRecord& record) {
    for (nyxParameter_entry const& entry : entriesOf(block)) {
        std::string_view const name = nameOf(entry);
        if (name == "display_name") {
            readText(entry, record.name);
        } else if (name == "multi_colors") {
            readList(entry, record.multiColors);
        } else if (name == "active_sub_indices") {
            readList(entry, record.activeSubs);
        } else if (name == "flags") {
            record.flags = entry.value.word;
        }
    }
}

void readBlock(nyxParameter_edit const& block, nyx::ColorwayId& activeColorway) {
    for (nyxParameter_entry const& entry : entriesOf(block)) {
        if (nameOf(entry) == "active_colorway_id") {
            activeColorway = nyx::ColorwayId(entry.value.word);
        }
    }
}

} // namespace nyx::embedded

#include "zsg/colors/ParameterBlock.h"

#include "nyxrender/nyxParameter_edit.h"
#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyxScene.h"
#include "nyxrender/nyx_memory.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace zsg {

namespace {

/// A name that fills its field needs no terminator.
bool isNamed(nyxParameter_entry const& entry, std::string_view name) {
    return name.size() <= sizeof entry.name &&
           std::memcmp(entry.name, name.data(), name.size()) == 0 &&
           (name.size() == sizeof entry.name || entry.name[name.size()] == '\0');
}

} // namespace

ParameterBlock::ParameterBlock(nyxRT_api* api, nyxParameter_edit* block,
                               Layout const& layout) noexcept
    : api_(api), block_(block && block->kind == layout.kind ? block : nullptr), layout_(&layout) {
    if (!block_ || !block_->entries) {
        return;
    }
    auto const names = layout.names;
    for (std::int32_t i = 0; i < block_->count; ++i) {
        nyxParameter_entry& entry = block_->entries[i];
        auto place = static_cast<std::size_t>(i);
        // The renderer lists them in this order, as a rule.
        if (place >= names.size() || !isNamed(entry, names[place])) {
            auto const found = std::ranges::find_if(
                names, [&](std::string_view name) { return isNamed(entry, name); });
            place = static_cast<std::size_t>(found - names.begin());
        }
        if (place < names.size()) {
            entries_[place] = &entry;
        }
    }
}

ParameterBlock::ParameterBlock(ParameterBlock&& other) noexcept
    : api_(other.api_),
      block_(std::exchange(other.block_, nullptr)),
      layout_(other.layout_),
      entries_(std::exchange(other.entries_, {})),
      changed_(other.changed_),
      changeCount_(other.changeCount_) {}

ParameterBlock::~ParameterBlock() {
    if (api_ && block_) {
        (api_->*layout_->release)(block_);
    }
}

ParameterBlock ParameterBlock::copy() const {
    ParameterBlock made(api_, api_ && block_ ? api_->clone_color_params(block_, true) : nullptr,
                        *layout_);
    made.markChanged();
    return made;
}

void ParameterBlock::setRecord(std::uint32_t id, std::size_t entry) {
    if (block_) {
        block_->record_id = id;
    }
    if (entries_[entry]) {
        entries_[entry]->value.word = id;
    }
}

std::uint32_t ParameterBlock::word(std::size_t entry, std::uint32_t missing) const {
    return entries_[entry] ? entries_[entry]->value.word : missing;
}

std::string_view ParameterBlock::text(std::size_t entry) const {
    char const* const text = entries_[entry] ? entries_[entry]->value.text : nullptr;
    return text ? std::string_view(text) : std::string_view();
}

nyx::Span<nyx::ColorId> ParameterBlock::ids(std::size_t entry) const {
    nyxParameter_entry const* const found = entries_[entry];
    if (!found || !found->value.list.ids || found->value.list.count <= 0) {
        return {};
    }
    return {found->value.list.ids, static_cast<std::size_t>(found->value.list.count)};
}

nyxColor_rgba ParameterBlock::color(std::size_t entry) const {
    if (!entries_[entry]) {
        return {0, 0, 0, 1};
    }
    float const(&rgba)[4] = entries_[entry]->value.rgba;
    return {rgba[0], rgba[1], rgba[2], rgba[3]};
}

void ParameterBlock::setWord(std::size_t entry, std::uint32_t value) {
    if (entries_[entry] && entries_[entry]->value.word != value) {
        entries_[entry]->value.word = value;
        markChanged();
    }
}

void ParameterBlock::setText(std::size_t entry, std::string const& text) {
    nyxScene* const scene = api_ ? api_->scene() : nullptr;
    if (!scene || !entries_[entry] || this->text(entry) == std::string_view(text.c_str())) {
        return;
    }
    // The former text stays the scene's.
    entries_[entry]->value.text = nyx_string_dup(*scene, text.c_str());
    markChanged();
}

void ParameterBlock::setIds(std::size_t entry, nyx::Span<nyx::ColorId> list) {
    if (!entries_[entry] || std::ranges::equal(ids(entry), list)) {
        return;
    }
    nyx::ColorId* copied = nullptr;
    if (!list.empty()) {
        copied = static_cast<nyx::ColorId*>(nyx_malloc_aligned(list.size() * sizeof(nyx::ColorId),
                                                               nyxParameter_edit::ListAlignment));
        std::ranges::copy(list, copied);
    }
    nyx_free_aligned(entries_[entry]->value.list.ids);
    entries_[entry]->value.list = {copied, static_cast<std::int32_t>(list.size())};
    markChanged();
}

void ParameterBlock::setColor(std::size_t entry, nyxColor_rgba const& color) {
    if (!entries_[entry]) {
        return;
    }
    float const wanted[4] = {color.r, color.g, color.b, color.a};
    float(&rgba)[4] = entries_[entry]->value.rgba;
    if (!std::ranges::equal(rgba, wanted)) {
        std::ranges::copy(wanted, rgba);
        markChanged();
    }
}

void ParameterBlock::markChanged() {
    changed_ = true;
    ++changeCount_;
}

bool ParameterBlock::commit(bool force) {
    if (!block_ || !api_ || (!force && !changed_)) {
        return false;
    }
    (api_->*layout_->commit)(block_);
    changed_ = false;
    return true;
}

} // namespace zsg

#include "zsg/colors/ZColorExtEdit.h"

#include "colors/parameterBlock.h"
#include "colors/subColorEdits.h"

#include "nyxrender/nyxRT_api.h"

#include <algorithm>
#include <iterator>

namespace zsg {

namespace {

enum Entry { Id, DisplayName, OriginalName, Color, Flags, SubColors, ActiveSub };
constexpr std::string_view entryNames[] = {"id",    "display_name", "original_name", "color",
                                           "flags", "sub_colors",   "active_sub"};

} // namespace

ZColorExtEdit::ZColorExtEdit(nyxRT_api* api, nyxParameter_edit* block) : api_(api) {
    static_assert(std::size(entryNames) == decltype(entries_)().size());
    if (block && block->kind == nyxParameter_edit::ColorKind) {
        block_ = block;
        parameterBlock::findEntries(*block, entryNames, entries_);
    }
}

ZColorExtEdit::~ZColorExtEdit() {
    if (api_ && block_) {
        api_->release_color_params(block_);
    }
}

nyx::ColorId ZColorExtEdit::id() const {
    return nyx::ColorId(parameterBlock::word(entries_[Id], nyx::ColorId::invalidValue));
}

std::string ZColorExtEdit::displayName() const {
    return parameterBlock::text(entries_[DisplayName]);
}

std::string ZColorExtEdit::originalName() const {
    return parameterBlock::text(entries_[OriginalName]);
}

nyxColor_rgba ZColorExtEdit::color() const {
    if (!entries_[Color]) {
        return {0, 0, 0, 1};
    }
    float const(&rgba)[4] = entries_[Color]->value.rgba;
    return {rgba[0], rgba[1], rgba[2], rgba[3]};
}

bool ZColorExtEdit::hasFlag(unsigned mask) const {
    return (parameterBlock::word(entries_[Flags], 0) & mask) != 0;
}

nyx::Span<nyx::ColorId> ZColorExtEdit::subColors() const {
    return parameterBlock::ids(entries_[SubColors]);
}

nyx::ColorId ZColorExtEdit::activeSub() const {
    return nyx::ColorId(parameterBlock::word(entries_[ActiveSub], nyx::ColorId::invalidValue));
}

bool ZColorExtEdit::isModified() const { return changed_; }

bool ZColorExtEdit::hasSubColor(nyx::ColorId sub) const {
    auto const subs = subColors();
    return hasFlag(ColorFlags::MultiColor) && std::ranges::find(subs, sub) != subs.end();
}

unsigned ZColorExtEdit::revision() const { return changeCount_; }

void ZColorExtEdit::setColor(nyxColor_rgba const& color) {
    if (!entries_[Color]) {
        return;
    }
    float const wanted[4] = {color.r, color.g, color.b, color.a};
    float(&rgba)[4] = entries_[Color]->value.rgba;
    if (!std::ranges::equal(rgba, wanted)) {
        std::ranges::copy(wanted, rgba);
        countChange();
    }
}

void ZColorExtEdit::setDisplayName(std::string const& name) {
    if (parameterBlock::setText(entries_[DisplayName], api_, name)) {
        countChange();
    }
}

void ZColorExtEdit::setFlag(unsigned bits) {
    if (!hasFlag(bits) &&
        parameterBlock::setWord(entries_[Flags], parameterBlock::word(entries_[Flags], 0) | bits)) {
        countChange();
    }
}

void ZColorExtEdit::clearFlag(unsigned bits) {
    if (parameterBlock::setWord(entries_[Flags],
                                parameterBlock::word(entries_[Flags], 0) & ~bits)) {
        countChange();
    }
}

void ZColorExtEdit::setSubColors(nyx::Span<nyx::ColorId> ids) {
    if (parameterBlock::setIds(entries_[SubColors], ids)) {
        countChange();
    }
}

void ZColorExtEdit::setActiveSub(nyx::ColorId sub) {
    if (parameterBlock::setWord(entries_[ActiveSub], sub.value)) {
        countChange();
    }
}

void ZColorExtEdit::replaceSubColor(nyx::ColorId oldSub, nyx::ColorId newSub) {
    if (!hasFlag(ColorFlags::MultiColor)) {
        return;
    }
    if (auto const list = replacedSubColor(subColors(), oldSub, newSub)) {
        setSubColors(*list);
        if (activeSub() == oldSub) {
            setActiveSub(newSub);
        }
    }
}

std::unique_ptr<ZColorExtEdit> ZColorExtEdit::copyFor(nyx::ColorId id) const {
    auto copy = std::make_unique<ZColorExtEdit>(
        api_, api_ && block_ ? api_->clone_color_params(block_, true) : nullptr);
    if (copy->block_) {
        copy->block_->record_id = id.value;
        parameterBlock::setWord(copy->entries_[Id], id.value);
    }
    copy->countChange();
    return copy;
}

bool ZColorExtEdit::commit(bool force) {
    if (!block_ || !api_ || (!force && !changed_)) {
        return false;
    }
    api_->commit_color_params(block_);
    changed_ = false;
    return true;
}

void ZColorExtEdit::countChange() {
    changed_ = true;
    ++changeCount_;
}

} // namespace zsg

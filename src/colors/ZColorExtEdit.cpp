#include "zsg/colors/ZColorExtEdit.h"

#include "colors/subColorEdits.h"

#include "nyxrender/nyxParameter_edit.h"
#include "nyxrender/nyxRT_api.h"

#include <algorithm>

namespace zsg {

namespace {

enum Entry { Id, DisplayName, OriginalName, Color, Flags, SubColors, ActiveSub };
constexpr std::string_view entryNames[] = {"id",    "display_name", "original_name", "color",
                                           "flags", "sub_colors",   "active_sub"};
constexpr ParameterBlock::Layout layout{nyxParameter_edit::ColorKind, entryNames,
                                        &nyxRT_api::commit_color_params,
                                        &nyxRT_api::release_color_params};

} // namespace

ZColorExtEdit::ZColorExtEdit(nyxRT_api* api, nyxParameter_edit* block)
    : block_(api, block, layout) {}

ZColorExtEdit::ZColorExtEdit(ParameterBlock&& block) noexcept : block_(std::move(block)) {}

ZColorExtEdit::~ZColorExtEdit() = default;

std::unique_ptr<ZColorExtEdit> ZColorExtEdit::read(nyxRT_api* api, nyx::ColorId id) {
    nyxParameter_edit* const lent = api ? api->color_params(id) : nullptr;
    if (!lent) {
        return nullptr;
    }
    ParameterBlock block(api, lent, layout);
    return std::unique_ptr<ZColorExtEdit>(new ZColorExtEdit(std::move(block)));
}

nyx::ColorId ZColorExtEdit::id() const {
    return nyx::ColorId(block_.word(Id, nyx::ColorId::invalidValue));
}

std::string ZColorExtEdit::displayName() const { return std::string(block_.text(DisplayName)); }

std::string ZColorExtEdit::originalName() const { return std::string(block_.text(OriginalName)); }

nyxColor_rgba ZColorExtEdit::color() const { return block_.color(Color); }

bool ZColorExtEdit::hasFlag(unsigned mask) const { return (block_.word(Flags, 0) & mask) != 0; }

nyx::Span<nyx::ColorId> ZColorExtEdit::subColors() const { return block_.ids(SubColors); }

nyx::ColorId ZColorExtEdit::activeSub() const {
    return nyx::ColorId(block_.word(ActiveSub, nyx::ColorId::invalidValue));
}

bool ZColorExtEdit::isModified() const { return block_.isChanged(); }

bool ZColorExtEdit::hasSubColor(nyx::ColorId sub) const {
    auto const subs = subColors();
    return hasFlag(ColorFlags::MultiColor) && std::ranges::find(subs, sub) != subs.end();
}

unsigned ZColorExtEdit::revision() const { return block_.changeCount(); }

void ZColorExtEdit::setColor(nyxColor_rgba const& color) { block_.setColor(Color, color); }

void ZColorExtEdit::setDisplayName(std::string const& name) { block_.setText(DisplayName, name); }

void ZColorExtEdit::setFlag(unsigned bits) {
    if (!hasFlag(bits)) {
        block_.setWord(Flags, block_.word(Flags, 0) | bits);
    }
}

void ZColorExtEdit::clearFlag(unsigned bits) {
    block_.setWord(Flags, block_.word(Flags, 0) & ~bits);
}

void ZColorExtEdit::setSubColors(nyx::Span<nyx::ColorId> ids) { block_.setIds(SubColors, ids); }

void ZColorExtEdit::setActiveSub(nyx::ColorId sub) { block_.setWord(ActiveSub, sub.value); }

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
    ParameterBlock copied = block_.copy();
    copied.setRecord(id.value, Id);
    return std::unique_ptr<ZColorExtEdit>(new ZColorExtEdit(std::move(copied)));
}

bool ZColorExtEdit::commit(bool force) { return block_.commit(force); }

} // namespace zsg

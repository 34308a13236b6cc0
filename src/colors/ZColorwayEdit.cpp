#include "zsg/colors/ZColorwayEdit.h"

#include "colors/colorwayPairs.h"
#include "colors/parameterBlock.h"

#include "nyxrender/nyxRT_api.h"

#include <algorithm>
#include <iterator>

namespace zsg {

namespace {

enum Entry { Id, DisplayName, MultiColors, ActiveSubs, Flags };
constexpr std::string_view entryNames[] = {"id", "display_name", "multi_colors",
                                           "active_sub_indices", "flags"};

} // namespace

ZColorwayEdit::ZColorwayEdit(nyxRT_api* api, nyxParameter_edit* block) : api_(api) {
    static_assert(std::size(entryNames) == decltype(entries_)().size());
    if (block && block->kind == nyxParameter_edit::ColorwayKind) {
        block_ = block;
        parameterBlock::findEntries(*block, entryNames, entries_);
        repairPairs();
    }
}

ZColorwayEdit::~ZColorwayEdit() {
    if (api_ && block_) {
        api_->release_colorway_params(block_);
    }
}

nyx::ColorwayId ZColorwayEdit::id() const {
    return nyx::ColorwayId(parameterBlock::word(entries_[Id], nyx::ColorwayId::invalidValue));
}

std::string ZColorwayEdit::displayName() const {
    return parameterBlock::text(entries_[DisplayName]);
}

nyx::Span<nyx::ColorId> ZColorwayEdit::multiColors() const {
    return parameterBlock::ids(entries_[MultiColors]);
}

nyx::Span<nyx::ColorId> ZColorwayEdit::activeSubIndices() const {
    return parameterBlock::ids(entries_[ActiveSubs]);
}

nyx::ColorId ZColorwayEdit::activeSubOf(nyx::ColorId multi) const {
    auto const multis = multiColors();
    auto const subs = activeSubIndices();
    auto const position =
        static_cast<std::size_t>(std::ranges::find(multis, multi) - multis.begin());
    return position < std::min(multis.size(), subs.size()) ? subs[position] : nyx::ColorId();
}

bool ZColorwayEdit::isDeleted() const {
    return (parameterBlock::word(entries_[Flags], 0) & ColorwayFlags::Deleted) != 0;
}

bool ZColorwayEdit::isActive() const {
    return (parameterBlock::word(entries_[Flags], 0) & ColorwayFlags::Active) != 0;
}

bool ZColorwayEdit::containsMultiColor(nyx::ColorId multi) const {
    auto const multis = multiColors();
    return std::ranges::find(multis, multi) != multis.end();
}

bool ZColorwayEdit::isModified() const { return changed_; }

void ZColorwayEdit::setDisplayName(std::string const& name) {
    changed_ |= parameterBlock::setText(entries_[DisplayName], api_, name);
}

void ZColorwayEdit::setPairs(nyx::Span<nyx::ColorId> multiColors,
                             nyx::Span<nyx::ColorId> activeSubs) {
    if (!entries_[MultiColors] || !entries_[ActiveSubs]) {
        return;
    }
    std::size_t const size = std::min(multiColors.size(), activeSubs.size());
    // The spans may be this object's own lists, exchanged: writing the first must not touch the
    // second.
    std::vector<nyx::ColorId> const subs(activeSubs.begin(), activeSubs.begin() + size);
    changed_ |= parameterBlock::setIds(entries_[MultiColors], {multiColors.data(), size});
    changed_ |= parameterBlock::setIds(entries_[ActiveSubs], subs);
}

void ZColorwayEdit::removeMultiColors(nyx::Span<nyx::ColorId> ids) {
    auto const multis = multiColors();
    auto const subs = activeSubIndices();
    if (!entries_[MultiColors] || !entries_[ActiveSubs] || multis.size() != subs.size()) {
        return;
    }
    ColorwayPairs const kept = pairsWithout(multis, subs, ids);
    setPairs(kept.multiColors, kept.activeSubs);
    changed_ = true;
}

void ZColorwayEdit::setActive(bool on) { setFlag(ColorwayFlags::Active, on); }

void ZColorwayEdit::setDeleted(bool on) { setFlag(ColorwayFlags::Deleted, on); }

std::unique_ptr<ZColorwayEdit> ZColorwayEdit::copy() const {
    auto copy = std::make_unique<ZColorwayEdit>(
        api_, api_ && block_ ? api_->clone_color_params(block_, true) : nullptr);
    copy->changed_ = true;
    return copy;
}

bool ZColorwayEdit::commit(bool force) {
    if (!block_ || !api_ || (!force && !changed_)) {
        return false;
    }
    api_->commit_colorway_params(block_);
    changed_ = false;
    return true;
}

void ZColorwayEdit::repairPairs() {
    if (!entries_[MultiColors] || !entries_[ActiveSubs]) {
        return;
    }
    if (auto const pairs = repairedPairs(multiColors(), activeSubIndices())) {
        setPairs(pairs->multiColors, pairs->activeSubs);
    }
}

void ZColorwayEdit::setFlag(unsigned bit, bool on) {
    std::uint32_t const flags = parameterBlock::word(entries_[Flags], 0);
    changed_ |= parameterBlock::setWord(entries_[Flags], on ? flags | bit : flags & ~bit);
}

} // namespace zsg

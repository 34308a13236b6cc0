#include "zsg/colors/ZColorwayEdit.h"

#include "colors/colorwayPairs.h"

#include "nyxrender/nyxParameter_edit.h"
#include "nyxrender/nyxRT_api.h"

#include <algorithm>

namespace zsg {

namespace {

enum Entry { Id, DisplayName, MultiColors, ActiveSubs, Flags };
constexpr std::string_view entryNames[] = {"id", "display_name", "multi_colors",
                                           "active_sub_indices", "flags"};
constexpr ParameterBlock::Layout layout{nyxParameter_edit::ColorwayKind, entryNames,
                                        &nyxRT_api::commit_colorway_params,
                                        &nyxRT_api::release_colorway_params};

} // namespace

ZColorwayEdit::ZColorwayEdit(nyxRT_api* api, nyxParameter_edit* block)
    : ZColorwayEdit(ParameterBlock(api, block, layout)) {}

ZColorwayEdit::ZColorwayEdit(ParameterBlock&& block) : block_(std::move(block)) { repairPairs(); }

ZColorwayEdit::~ZColorwayEdit() = default;

std::unique_ptr<ZColorwayEdit> ZColorwayEdit::read(nyxRT_api* api, nyx::ColorwayId id) {
    nyxParameter_edit* const lent = api ? api->colorway_params(id) : nullptr;
    if (!lent) {
        return nullptr;
    }
    ParameterBlock block(api, lent, layout);
    return std::unique_ptr<ZColorwayEdit>(new ZColorwayEdit(std::move(block)));
}

nyx::ColorwayId ZColorwayEdit::id() const {
    return nyx::ColorwayId(block_.word(Id, nyx::ColorwayId::invalidValue));
}

std::string ZColorwayEdit::displayName() const { return std::string(block_.text(DisplayName)); }

nyx::Span<nyx::ColorId> ZColorwayEdit::multiColors() const { return block_.ids(MultiColors); }

nyx::Span<nyx::ColorId> ZColorwayEdit::activeSubIndices() const { return block_.ids(ActiveSubs); }

nyx::ColorId ZColorwayEdit::activeSubOf(nyx::ColorId multi) const {
    auto const multis = multiColors();
    auto const subs = activeSubIndices();
    auto const position =
        static_cast<std::size_t>(std::ranges::find(multis, multi) - multis.begin());
    return position < std::min(multis.size(), subs.size()) ? subs[position] : nyx::ColorId();
}

bool ZColorwayEdit::isDeleted() const {
    return (block_.word(Flags, 0) & ColorwayFlags::Deleted) != 0;
}

bool ZColorwayEdit::isActive() const {
    return (block_.word(Flags, 0) & ColorwayFlags::Active) != 0;
}

bool ZColorwayEdit::containsMultiColor(nyx::ColorId multi) const {
    auto const multis = multiColors();
    return std::ranges::find(multis, multi) != multis.end();
}

bool ZColorwayEdit::isModified() const { return block_.isChanged(); }

std::vector<MultiColorPair> ZColorwayEdit::pairs() const {
    auto const multis = multiColors();
    auto const subs = activeSubIndices();
    std::vector<MultiColorPair> list(std::min(multis.size(), subs.size()));
    for (std::size_t i = 0; i < list.size(); ++i) {
        list[i] = {multis[i], subs[i]};
    }
    return list;
}

void ZColorwayEdit::setDisplayName(std::string const& name) { block_.setText(DisplayName, name); }

void ZColorwayEdit::setPairs(nyx::Span<MultiColorPair> pairs) {
    std::vector<nyx::ColorId> multis(pairs.size());
    std::vector<nyx::ColorId> subs(pairs.size());
    std::ranges::transform(pairs, multis.begin(), &MultiColorPair::multiColor);
    std::ranges::transform(pairs, subs.begin(), &MultiColorPair::subColor);
    setPairs(multis, subs);
}

void ZColorwayEdit::setPairs(nyx::Span<nyx::ColorId> multiColors,
                             nyx::Span<nyx::ColorId> activeSubs) {
    if (!hasBothLists()) {
        return;
    }
    std::size_t const size = std::min(multiColors.size(), activeSubs.size());
    // The spans may be this object's own lists, exchanged: writing the first must not touch the
    // second.
    std::vector<nyx::ColorId> const subs(activeSubs.begin(), activeSubs.begin() + size);
    block_.setIds(MultiColors, {multiColors.data(), size});
    block_.setIds(ActiveSubs, subs);
}

void ZColorwayEdit::removeMultiColors(nyx::Span<nyx::ColorId> ids) {
    if (hasBothLists() && multiColors().size() == activeSubIndices().size()) {
        setPairs(pairsWithout(pairs(), ids));
        block_.markChanged();
    }
}

void ZColorwayEdit::setActive(bool on) { setFlag(ColorwayFlags::Active, on); }

void ZColorwayEdit::setDeleted(bool on) { setFlag(ColorwayFlags::Deleted, on); }

std::unique_ptr<ZColorwayEdit> ZColorwayEdit::copy() const {
    ParameterBlock copied = block_.copy();
    if (nyx::ColorwayId const own = id(); own.isValid()) { // a renderer may clone the values only
        copied.setRecord(own.value, Id);
    }
    return std::unique_ptr<ZColorwayEdit>(new ZColorwayEdit(std::move(copied)));
}

bool ZColorwayEdit::commit(bool force) { return block_.commit(force); }

bool ZColorwayEdit::hasBothLists() const {
    return block_.has(MultiColors) && block_.has(ActiveSubs);
}

void ZColorwayEdit::repairPairs() {
    if (!hasBothLists()) {
        return;
    }
    std::vector<MultiColorPair> const all = pairs();
    if (auto const distinct = distinctPairs(all)) {
        setPairs(*distinct);
    } else if (multiColors().size() != activeSubIndices().size()) {
        setPairs(all);
    }
}

void ZColorwayEdit::setFlag(unsigned bit, bool on) {
    std::uint32_t const flags = block_.word(Flags, 0);
    block_.setWord(Flags, on ? flags | bit : flags & ~bit);
}

} // namespace zsg

#include "zsg/colors/ZColorSettingsEdit.h"

#include "nyxrender/nyxParameter_edit.h"
#include "nyxrender/nyxRT_api.h"

namespace zsg {

namespace {

enum Entry { ActiveColorway };
constexpr std::string_view entryNames[] = {"active_colorway_id"};
constexpr ParameterBlock::Layout layout{nyxParameter_edit::ColorSettingsKind, entryNames,
                                        &nyxRT_api::commit_color_settings_params,
                                        &nyxRT_api::release_color_settings_params};

} // namespace

ZColorSettingsEdit::ZColorSettingsEdit(nyxRT_api* api, nyxParameter_edit* block)
    : block_(api, block, layout) {}

ZColorSettingsEdit::ZColorSettingsEdit(ParameterBlock&& block) noexcept
    : block_(std::move(block)) {}

ZColorSettingsEdit::~ZColorSettingsEdit() = default;

std::unique_ptr<ZColorSettingsEdit> ZColorSettingsEdit::read(nyxRT_api* api) {
    nyxParameter_edit* const lent = api ? api->color_settings_params() : nullptr;
    if (!lent) {
        return nullptr;
    }
    ParameterBlock block(api, lent, layout);
    return std::unique_ptr<ZColorSettingsEdit>(new ZColorSettingsEdit(std::move(block)));
}

nyx::ColorwayId ZColorSettingsEdit::activeColorwayId() const {
    return nyx::ColorwayId(block_.word(ActiveColorway, nyx::ColorwayId::invalidValue));
}

bool ZColorSettingsEdit::isModified() const { return block_.isChanged(); }

void ZColorSettingsEdit::setActiveColorwayId(nyx::ColorwayId id) {
    block_.setWord(ActiveColorway, id.value);
}

bool ZColorSettingsEdit::commit(bool force) { return block_.commit(force); }

} // namespace zsg

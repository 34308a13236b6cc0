#include "zsg/colors/ZColorSettingsEdit.h"

#include "colors/parameterBlock.h"

#include "nyxrender/nyxRT_api.h"

namespace zsg {

namespace {

constexpr std::string_view entryNames[] = {"active_colorway_id"};

} // namespace

ZColorSettingsEdit::ZColorSettingsEdit(nyxRT_api* api, nyxParameter_edit* block) : api_(api) {
    if (block && block->kind == nyxParameter_edit::ColorSettingsKind) {
        block_ = block;
        parameterBlock::findEntries(*block, entryNames, {&activeColorway_, 1});
    }
}

ZColorSettingsEdit::~ZColorSettingsEdit() {
    if (api_ && block_) {
        api_->release_color_settings_params(block_);
    }
}

nyx::ColorwayId ZColorSettingsEdit::activeColorwayId() const {
    return nyx::ColorwayId(parameterBlock::word(activeColorway_, nyx::ColorwayId::invalidValue));
}

bool ZColorSettingsEdit::isModified() const { return changed_; }

void ZColorSettingsEdit::setActiveColorwayId(nyx::ColorwayId id) {
    changed_ |= parameterBlock::setWord(activeColorway_, id.value);
}

bool ZColorSettingsEdit::commit(bool force) {
    if (!block_ || !api_ || (!force && !changed_)) {
        return false;
    }
    api_->commit_color_settings_params(block_);
    changed_ = false;
    return true;
}

} // namespace zsg

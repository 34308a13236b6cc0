#pragma once

#include "zsg/colors/IColorLinker.h"

#include <string>

namespace zsg {

class IColorLinkHandler;

class ZColorLinker final : public IColorLinker {
public:
    /// Both are borrowed. Without a handler every conflict is settled by renaming, which overwrites
    /// nothing.
    ZColorLinker(IColorController* controller, IColorLinkHandler* handler);

    [[nodiscard]] std::string uniqueColorName(std::string const& name) override;
    nyx::ColorId importColor(ZColorExt& color) override;
    void mergeSubColors(nyx::ColorId to, nyx::ColorId from) override;
    [[nodiscard]] IColorController* controller() const override;
    [[nodiscard]] IColorDB* colorDB() const override;

private:
    IColorController* controller_;
    IColorDB* colorDB_;
    IColorLinkHandler* handler_;
};

} // namespace zsg

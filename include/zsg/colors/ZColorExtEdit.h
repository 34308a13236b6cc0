#pragma once

#include "zsg/colors/IColorEdits.h"
#include "zsg/colors/ParameterBlock.h"

#include <memory>

class nyxRT_api;
struct nyxParameter_edit;

namespace zsg {

/// The parameters of one colour, read and changed in memory and written back by commit(). Setters
/// ignore a parameter that the block lacks and a value that it already has; a write marks the edit
/// changed and counts one change. Changes that are never committed are lost with the object.
class ZSG_EXPORT ZColorExtEdit final : public IColorExtEdit {
public:
    /// Takes over `block` and hands it back to `api` (borrowed, may be null) in the end. A null
    /// block, or one that is not a colour's, is not taken: then every getter answers its default.
    ZColorExtEdit(nyxRT_api* api, nyxParameter_edit* block);
    ~ZColorExtEdit() override;
    ZColorExtEdit(ZColorExtEdit const&) = delete;
    ZColorExtEdit& operator=(ZColorExtEdit const&) = delete;

    /// The edit of a colour of the scene; null when there is no such colour.
    [[nodiscard]] static std::unique_ptr<ZColorExtEdit> read(nyxRT_api* api, nyx::ColorId id);

    [[nodiscard]] nyx::ColorId id() const override;
    [[nodiscard]] std::string displayName() const override;
    [[nodiscard]] std::string originalName() const override;
    [[nodiscard]] nyxColor_rgba color() const override;
    [[nodiscard]] bool hasFlag(unsigned mask) const override;
    [[nodiscard]] nyx::Span<nyx::ColorId> subColors() const override;
    [[nodiscard]] nyx::ColorId activeSub() const override;
    [[nodiscard]] bool isModified() const override;
    [[nodiscard]] bool hasSubColor(nyx::ColorId sub) const override;
    [[nodiscard]] unsigned revision() const override;

    void setColor(nyxColor_rgba const& color);
    /// Up to the first zero byte. Ignored without a scene, which owns the texts of blocks.
    void setDisplayName(std::string const& name);
    /// Sets all of `bits`, but only when none of them is set.
    void setFlag(unsigned bits);
    /// Clears all of `bits` when any of them is set.
    void clearFlag(unsigned bits);
    /// `ids` may be (part of) this object's own list.
    void setSubColors(nyx::Span<nyx::ColorId> ids);
    void setActiveSub(nyx::ColorId sub);
    /// Puts `newSub` where `oldSub` first stands, and makes it active when `oldSub` was (which
    /// counts as a second change). Ignored unless this is a multi-colour that lists `oldSub` and
    /// does not list `newSub`, a valid id.
    void replaceSubColor(nyx::ColorId oldSub, nyx::ColorId newSub);

    /// An edit of the same values for another record (or the same one). It is marked changed, with
    /// a change count of 1.
    [[nodiscard]] std::unique_ptr<ZColorExtEdit> copyFor(nyx::ColorId id) const;
    /// Writes the values into the record and marks the edit unchanged; without `force` only when it
    /// was changed. False when nothing was written.
    bool commit(bool force);

private:
    explicit ZColorExtEdit(ParameterBlock&& block) noexcept;

    ParameterBlock block_;
};

} // namespace zsg

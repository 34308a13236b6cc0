#pragma once

#include "zsg/colors/IColorEdits.h"
#include "zsg/colors/MultiColorPair.h"
#include "zsg/colors/ParameterBlock.h"

#include <memory>
#include <vector>

class nyxRT_api;
struct nyxParameter_edit;

namespace zsg {

/// The parameters of one colorway, read and changed in memory and written back by commit(). Setters
/// ignore a parameter that the block lacks and a value that it already has; a write marks the edit
/// changed. Changes that are never committed are lost with the object.
class ZSG_EXPORT ZColorwayEdit final : public IColorwayEdit {
public:
    /// Takes over `block` and hands it back to `api` (borrowed, may be null) in the end. A null
    /// block, or one that is not a colorway's, is not taken: then every getter answers its default.
    ///
    /// The two lists are made consistent, which marks the edit changed: cut to the shorter one; and
    /// when a multi-colour is listed more than once, reduced to the first pair of each and sorted
    /// by multi-colour.
    ZColorwayEdit(nyxRT_api* api, nyxParameter_edit* block);
    ~ZColorwayEdit() override;
    ZColorwayEdit(ZColorwayEdit const&) = delete;
    ZColorwayEdit& operator=(ZColorwayEdit const&) = delete;

    /// The edit of a colorway of the scene; null when there is no such colorway.
    [[nodiscard]] static std::unique_ptr<ZColorwayEdit> read(nyxRT_api* api, nyx::ColorwayId id);

    [[nodiscard]] nyx::ColorwayId id() const override;
    [[nodiscard]] std::string displayName() const override;
    [[nodiscard]] nyx::Span<nyx::ColorId> multiColors() const override;
    [[nodiscard]] nyx::Span<nyx::ColorId> activeSubIndices() const override;
    [[nodiscard]] nyx::ColorId activeSubOf(nyx::ColorId multi) const override;
    [[nodiscard]] bool isDeleted() const override;
    [[nodiscard]] bool isActive() const override;
    [[nodiscard]] bool containsMultiColor(nyx::ColorId multi) const override;
    [[nodiscard]] bool isModified() const override;

    /// The two lists together, as far as both go.
    [[nodiscard]] std::vector<MultiColorPair> pairs() const;

    /// Up to the first zero byte. Ignored without a scene, which owns the texts of blocks.
    void setDisplayName(std::string const& name);
    /// Both lists at once; ignored when the block lacks either.
    void setPairs(nyx::Span<MultiColorPair> pairs);
    /// The same, cut to the shorter one.
    void setPairs(nyx::Span<nyx::ColorId> multiColors, nyx::Span<nyx::ColorId> activeSubs);
    /// Drops the pairs of all multi-colours in `ids`; the rest keep their order. Marks the edit
    /// changed even when none was listed. Ignored when the block lacks either list.
    void removeMultiColors(nyx::Span<nyx::ColorId> ids);
    void setActive(bool on);
    void setDeleted(bool on);

    /// An edit of the same values for the same record, marked changed.
    [[nodiscard]] std::unique_ptr<ZColorwayEdit> copy() const;
    /// Writes the values into the record and marks the edit unchanged; without `force` only when it
    /// was changed. False when nothing was written.
    bool commit(bool force);

private:
    explicit ZColorwayEdit(ParameterBlock&& block);
    [[nodiscard]] bool hasBothLists() const;
    void repairPairs();
    void setFlag(unsigned bit, bool on);

    ParameterBlock block_;
};

} // namespace zsg

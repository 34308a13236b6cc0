#pragma once

#include "zsg/Export.h"

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxColor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

class nyxRT_api;
struct nyxParameter_edit;
struct nyxParameter_entry;

namespace zsg {

/// Owns a parameter block that the renderer has lent, from construction until it hands the block
/// back; reads and writes its entries, and knows whether anything was changed. What the edit
/// classes are made of: they add the names and the rules. Main thread.
///
/// Entries are asked for by their place in the layout's list of names. One that the block lacks
/// reads as empty and is never written. Setters write only a difference and count it as one change;
/// when memory runs out they throw and leave the entry as it was.
class ZSG_EXPORT ParameterBlock {
public:
    /// What blocks of one kind have in common; one constant per edit class.
    struct Layout {
        static constexpr std::size_t maxNames = 7;

        std::int32_t kind;
        std::span<std::string_view const> names; ///< at most maxNames
        void (nyxRT_api::*commit)(nyxParameter_edit*);
        void (nyxRT_api::*release)(nyxParameter_edit*);
    };

    /// Takes over `block`, which goes back to `api` (borrowed, may be null) in the end. A null
    /// block, or one of another kind than the layout's, is not taken: then every entry is missing.
    /// Of entries with the same name the last one counts; unknown names are passed over.
    ParameterBlock(nyxRT_api* api, nyxParameter_edit* block, Layout const& layout) noexcept;
    ParameterBlock(ParameterBlock&& other) noexcept;
    ParameterBlock& operator=(ParameterBlock&&) = delete;
    ~ParameterBlock();

    /// A copy of the block for the same record, marked changed, with a change count of 1. It has no
    /// entries when there is nothing to copy or the renderer cannot.
    [[nodiscard]] ParameterBlock copy() const;
    /// Makes `id` the record that commits write to, and the value of `entry`. Not a change.
    void setRecord(std::uint32_t id, std::size_t entry);

    [[nodiscard]] bool has(std::size_t entry) const { return entries_[entry] != nullptr; }
    [[nodiscard]] std::uint32_t word(std::size_t entry, std::uint32_t missing) const;
    /// Valid until the entry is written or the block is gone.
    [[nodiscard]] std::string_view text(std::size_t entry) const;
    /// As text().
    [[nodiscard]] nyx::Span<nyx::ColorId> ids(std::size_t entry) const;
    /// Opaque black when missing.
    [[nodiscard]] nyxColor_rgba color(std::size_t entry) const;

    void setWord(std::size_t entry, std::uint32_t value);
    /// Stores a copy of the text up to its first zero byte, which the API's scene owns; without a
    /// scene nothing is written.
    void setText(std::size_t entry, std::string const& text);
    /// `list` may be (part of) the entry's own list.
    void setIds(std::size_t entry, nyx::Span<nyx::ColorId> list);
    void setColor(std::size_t entry, nyxColor_rgba const& color);

    /// Whether there are changes that no commit has written yet.
    [[nodiscard]] bool isChanged() const { return changed_; }
    /// A commit does not reset it.
    [[nodiscard]] unsigned changeCount() const { return changeCount_; }
    /// Counts a change without one.
    void markChanged();

    /// Writes the values into the record and marks the block unchanged; without `force` only when
    /// it was changed. False when nothing was written.
    bool commit(bool force);

private:
    nyxRT_api* api_;
    nyxParameter_edit* block_;
    Layout const* layout_;
    std::array<nyxParameter_entry*, Layout::maxNames> entries_{};
    bool changed_ = false;
    unsigned changeCount_ = 0;
};

} // namespace zsg

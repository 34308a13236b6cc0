#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxParameter_edit.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

class nyxRT_api;

/// Reading and writing the entries of the renderer's parameter blocks. A null entry stands for a
/// parameter that the block lacks: it reads as empty and is never written. Setters write only a
/// difference and say whether they did.
namespace zsg::parameterBlock {

/// Points found[i] at the entry named names[i], the last one when the name occurs again. Entries of
/// other names are passed over; a name that fills its field needs no terminator.
void findEntries(nyxParameter_edit const& block, std::span<std::string_view const> names,
                 std::span<nyxParameter_entry*> found);

[[nodiscard]] std::uint32_t word(nyxParameter_entry const* entry, std::uint32_t missing);
[[nodiscard]] std::string text(nyxParameter_entry const* entry);
/// Valid until the entry is written or the block released.
[[nodiscard]] nyx::Span<nyx::ColorId> ids(nyxParameter_entry const* entry);

bool setWord(nyxParameter_entry* entry, std::uint32_t value);
/// Stores a copy of the text up to its first zero byte, which the API's scene owns; without a scene
/// nothing is written.
bool setText(nyxParameter_entry* entry, nyxRT_api* api, std::string const& text);
/// `list` may be (part of) the entry's own list.
bool setIds(nyxParameter_entry* entry, nyx::Span<nyx::ColorId> list);

} // namespace zsg::parameterBlock

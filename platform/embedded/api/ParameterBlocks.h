#pragma once

#include "nyxembedded/ColorRecord.h"
#include "nyxembedded/ColorwayRecord.h"
#include "nyxrender/nyxParameter_edit.h"

namespace nyx::embedded {

class StringPool;

// Parameter blocks: copies of one record that are read and changed outside. Texts in them point
// into the pool, lists are theirs. A block may come back with entries taken away, renamed or
// repeated: entries are read by name, the last of a name counts, and what is missing leaves the
// record's value.

[[nodiscard]] nyxParameter_edit* makeColorBlock(ColorRecord const& record, StringPool& strings);
[[nodiscard]] nyxParameter_edit* makeColorwayBlock(ColorwayRecord const& record,
                                                   StringPool& strings);
[[nodiscard]] nyxParameter_edit* makeSettingsBlock(nyx::ColorwayId activeColorway);
/// A deep copy of any block; without values its entries are zero.
[[nodiscard]] nyxParameter_edit* cloneBlock(nyxParameter_edit const& source, bool copyValues);
/// Marks a block with the generation of the scene that it is a copy of; a clone has its source's.
void setGeneration(nyxParameter_edit& block, unsigned generation);
[[nodiscard]] unsigned generationOf(nyxParameter_edit const& block);
/// Frees a block that one of the above made, with the lists that it holds now.
void releaseBlock(nyxParameter_edit* block);

/// Write a block's values over those of a record; the record's id stays.
void readBlock(nyxParameter_edit const& block, ColorRecord& record);
void readBlock(nyxParameter_edit const& block, ColorwayRecord& record);
void readBlock(nyxParameter_edit const& block, nyx::ColorwayId& activeColorway);

} // namespace nyx::embedded

#pragma once

#include "nyxrender/nyxParameter_edit.h"

#include <memory>

// Blocks of parameters. The records of the scene are kept as such blocks too.

/// A block with all entries of its kind at their defaults.
nyxParameter_edit* makeBlock(int kind, std::uint32_t record);
/// Copies all values; lists are copied, texts shared. Both are of one kind.
void copyValues(nyxParameter_edit const& from, nyxParameter_edit& to);
void freeBlock(nyxParameter_edit* block);
/// The value of an entry that the kind has.
nyxParameter_value& valueOf(nyxParameter_edit& block, char const* name);

struct BlockDeleter {
    void operator()(nyxParameter_edit* block) const { freeBlock(block); }
};
using Block = std::unique_ptr<nyxParameter_edit, BlockDeleter>;

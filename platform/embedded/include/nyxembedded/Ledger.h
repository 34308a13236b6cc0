#pragma once

#include <cstddef>

namespace nyx::embedded {

/// What the renderer has lent out and not got back. A host that has cleaned up finds zeros, strings
/// apart: those live as long as the scene.
struct Ledger {
    std::size_t blocks = 0;        ///< parameter blocks of this renderer
    std::size_t arrays = 0;        ///< Unique_array memory of the whole process
    std::size_t alignedBlocks = 0; ///< nyx_malloc_aligned memory of the whole process
    std::size_t texts = 0;         ///< texts to be released with nyx_free, of the whole process
    std::size_t painters = 0;      ///< painters that were made and not released
    int lockDepth = 0;             ///< lock() calls without their unlock()
    std::size_t strings = 0;       ///< texts that the scene owns
};

} // namespace nyx::embedded

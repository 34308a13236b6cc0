#pragma once

#include "nyxrender/Export.h"

#include <cstddef>

class nyxScene;

/// Memory for `bytes` bytes aligned to `alignment` (a power of two, at least that of a pointer);
/// null for 0 bytes. Release with nyx_free_aligned. Throws std::bad_alloc.
[[nodiscard]] NYXRENDER_EXPORT void* nyx_malloc_aligned(std::size_t bytes, std::size_t alignment);
/// Releases what nyx_malloc_aligned returned; null is ignored.
NYXRENDER_EXPORT void nyx_free_aligned(void* memory) noexcept;

/// A copy of `text` (zero-terminated UTF-8) that the scene owns: it lives as long as the scene and
/// is never freed singly. Null for a null text.
[[nodiscard]] NYXRENDER_EXPORT char* nyx_string_dup(nyxScene& scene, char const* text);

/// Releases a text that a renderer function handed over; null is ignored.
NYXRENDER_EXPORT void nyx_free(void* memory) noexcept;

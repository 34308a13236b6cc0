#pragma once

#include "nyxrender/Ids.h"

#include <cstddef>
#include <cstdint>

/// The value of a parameter entry; which member holds depends on the parameter's name.
union nyxParameter_value {
    std::uint32_t word; ///< an id or flag bits
    char* text;         ///< zero-terminated UTF-8 owned by the scene, may be null
    float rgba[4];      ///< a colour
    struct {
        nyx::ColorId* ids; ///< from nyx_malloc_aligned, owned by the block; null when empty
        std::int32_t count;
    } list;
    unsigned char bytes[80];

    nyxParameter_value() : bytes{} {}
};

/// One named parameter of a block: the name is zero-terminated at the start of the entry.
struct nyxParameter_entry {
    char name[40] = {};
    nyxParameter_value value;
};

/// A copy of the parameters of one record of the scene, read and changed in memory and written back
/// with the commit call of its kind. The renderer makes and releases it.
struct nyxParameter_edit {
    enum Kind : std::int32_t {
        ColorKind = 3,
        ColorwayKind = 4,
        ColorSettingsKind = 5,
    };

    /// What lists in a block are aligned to.
    static constexpr std::size_t ListAlignment = 32;

    std::uint32_t record_id = nyx::ColorId::invalidValue; ///< the record that a commit writes to
    std::int32_t kind = 0;
    nyxParameter_entry* entries = nullptr;
    std::int32_t count = 0;
};

// These records are exchanged with the renderer as they are.
static_assert(sizeof(nyxParameter_entry) == 120);
static_assert(offsetof(nyxParameter_entry, value) == 40);

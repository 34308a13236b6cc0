#pragma once

#include "nyxembedded/MaterialRecord.h"

#include <utility>

namespace nyx::embedded {

class Journal;

} // namespace nyx::embedded

/// A material as the renderer's clients are lent it. Everything but the places, which MaterialStore
/// keeps indexes over, may be changed directly.
class nyxMaterial : public nyx::embedded::MaterialRecord {
public:
    explicit nyxMaterial(nyx::embedded::MaterialRecord record)
        : MaterialRecord(std::move(record)) {}

    nyx::embedded::Journal* journal = nullptr; ///< set when the material is handed out
};

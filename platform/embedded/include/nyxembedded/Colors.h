#pragma once

#include "nyxembedded/ColorRecord.h"
#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/nyxColor.h"

#include <optional>
#include <string>
#include <vector>

namespace nyx::embedded {

class ColorStore;
class Notifications;

/// The colours and multi-colours of a renderer's scene; Renderer::colors() has them. Main thread.
class NYXRENDER_EXPORT Colors {
public:
    Colors(ColorStore& colors, Notifications& notifications)
        : colors_(colors), notifications_(notifications) {}

    // Building, which notifies nobody. Names are made unique; unknown sub-colours are kept.

    nyx::ColorId add(std::string const& name, nyxColor_rgba const& value);
    nyx::ColorId addMulti(std::string const& name, nyx::Span<nyx::ColorId> subColors,
                          nyx::ColorId active);

    /// In creation order, the temporary colour included.
    [[nodiscard]] std::vector<nyx::ColorId> ids() const;
    /// The first of a name, plain and multi-colours alike; the invalid id when there is none.
    [[nodiscard]] nyx::ColorId find(std::string const& name) const;
    /// A copy; nothing for an unknown id.
    [[nodiscard]] std::optional<ColorRecord> record(nyx::ColorId id) const;

    // What the renderer does by itself, behind the library's back.

    /// Takes a colour out of the scene at once; what names it keeps the id. False when unknown.
    bool remove(nyx::ColorId id);
    /// Changes a colour's value and reports it with message 5006; false when unknown.
    bool change(nyx::ColorId id, nyxColor_rgba const& value);
    /// Reports every colour but the temporary one with one message 5006, as loading does.
    void announce();

private:
    ColorStore& colors_;
    Notifications& notifications_;
};

} // namespace nyx::embedded

#pragma once

#include "nyxembedded/ColorwayRecord.h"
#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <optional>
#include <string>
#include <vector>

namespace nyx::embedded {

class ColorStore;
class ColorwayStore;
class Notifications;

/// A multi-colour and the sub-colour that a colorway makes active in it.
struct ColorwayPair {
    nyx::ColorId multiColor;
    nyx::ColorId subColor;
};

/// The colorways of a renderer's scene; Renderer::colorways() has them. Main thread.
class NYXRENDER_EXPORT Colorways {
public:
    Colorways(ColorwayStore& colorways, ColorStore& colors, Notifications& notifications)
        : colorways_(colorways), colors_(colors), notifications_(notifications) {}

    /// Notifies nobody. The name is taken as it is; unknown colours are kept.
    nyx::ColorwayId add(std::string const& name, nyx::Span<ColorwayPair> pairs);

    /// In creation order.
    [[nodiscard]] std::vector<nyx::ColorwayId> ids() const;
    /// The first of a name; the invalid id when there is none.
    [[nodiscard]] nyx::ColorwayId find(std::string const& name) const;
    /// A copy; nothing for an unknown id.
    [[nodiscard]] std::optional<ColorwayRecord> record(nyx::ColorwayId id) const;
    /// What the colour settings name, whether or not it exists.
    [[nodiscard]] nyx::ColorwayId active() const;

    // What the renderer does by itself, behind the library's back.

    /// Takes a colorway out of the scene at once; what names it keeps the id. False when unknown.
    bool remove(nyx::ColorwayId id);
    /// Makes a colorway the active one and reports it with message 5007: the settings name it, flag
    /// 2 is set on it and cleared on all others, and each of its multi-colours that lists the
    /// sub-colour paired with it shows that one. False when unknown.
    bool activate(nyx::ColorwayId id);

private:
    ColorwayStore& colorways_;
    ColorStore& colors_;
    Notifications& notifications_;
};

} // namespace nyx::embedded

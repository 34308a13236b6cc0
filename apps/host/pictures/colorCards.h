#pragma once

#include "host/pictures/Picture.h"

namespace app {

class Host;

// What the colours of a scene look like, for people who decide about them. They throw CommandError
// where the scene has nothing to show.

/// Every plain colour: swatch, name, value, and how many places of the scene use it.
[[nodiscard]] Picture paletteCard(Host& host);

/// Every multi-colour with its sub-colours, the active one marked.
[[nodiscard]] Picture multiColorCard(Host& host);

/// What each colorway makes of each multi-colour: a row for a multi-colour, a column for a colorway
/// that is not deleted, the active one marked.
[[nodiscard]] Picture colorwayBoard(Host& host);

} // namespace app

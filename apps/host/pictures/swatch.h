#pragma once

#include "host/pictures/Picture.h"

#include "nyxrender/nyxColor.h"

namespace app {

/// A field of a colour of the scene; one that lets light through lies on a chequered ground.
void addSwatch(Picture& picture, shape::Point corner, double width, double height,
               nyxColor_rgba const& color, shape::Stroke outline = {Ink::Frame, 1});

/// What shines through colours that let light through.
void addChequers(Picture& picture, shape::Point corner, double width, double height);

} // namespace app

#pragma once

#include "host/Arguments.h"
#include "zsg/colors/MultiColorPair.h"

#include "nyxrender/Ids.h"
#include "nyxrender/nyxColor.h"
#include "zcore/ZColor.h"

#include <string>
#include <vector>

namespace app {

class Host;

// Words that name colours and colorways: an id, or the name that a record of the scene has. They
// throw CommandError when there is no such record; an id is taken as it is with '=' before it
// ("=4711"), so that scripts can ask for what does not exist.

nyx::ColorId takeColor(Host& host, Arguments& arguments, char const* expected = "a colour");
nyx::ColorwayId takeColorway(Host& host, Arguments& arguments);
/// All remaining words.
std::vector<nyx::ColorId> takeColors(Host& host, Arguments& arguments);
/// All remaining words, each MULTI:SUB.
std::vector<zsg::MultiColorPair> takePairs(Host& host, Arguments& arguments);
/// The linear value of a colour, in any of the ways to write one: "#rrggbb[aa]" and
/// "rgb(r, g, b[, a])" with components of 0 to 255 are sRGB; three linear numbers, and alpha when a
/// fourth follows; the name of a colour of the scene, or "=" and its id. Throws CommandError.
nyxColor_rgba takeRgba(Host& host, Arguments& arguments);
/// The same without alpha, so that a fourth number is left.
nyxColor takeRgb(Host& host, Arguments& arguments);

/// A line about a colour: id, "#rrggbb[aa]" in sRGB, name.
std::string colorLine(Host& host, nyx::ColorId id);
/// Prints it; throws CommandError with the text `failure` for the invalid id.
void printColor(Host& host, nyx::ColorId id, char const* failure);

} // namespace app

#pragma once

#include "scenefile/JsonNode.h"

#include <string>

namespace nyx::embedded {

class Surface;
class Surfaces;

// The paint surfaces in the scene file, with what is painted on them. Each tile that is not
// transparent is the base64 text of its four planes, compressed by zlib behind their size (as
// qCompress has it).

/// One surface as a JSON object.
void appendSurface(std::string& out, Surface const& surface);
/// Adds the surface of an object; throws SceneFileError.
void readSurface(JsonNode const& node, Surfaces& surfaces);

} // namespace nyx::embedded

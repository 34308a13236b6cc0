#include "host/pictures/rasterPng.h"

#include "host/Arguments.h"

#include <png.h>

namespace app {

std::string rasterPng(shape::Raster const& raster) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(raster.columns);
    image.height = static_cast<png_uint_32>(raster.rows);
    image.format = PNG_FORMAT_RGBA;
    auto const failed = [&image]() -> CommandError {
        std::string const reason = image.message;
        png_image_free(&image);
        return CommandError("the picture cannot be made a .png: " + reason);
    };
    std::string bytes(PNG_IMAGE_PNG_SIZE_MAX(image), '\0');
    png_alloc_size_t size = bytes.size();
    if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, raster.rgba.data(), 0,
                                   nullptr)) {
        throw failed();
    }
    bytes.resize(size);
    return bytes;
}

} // namespace app

#include "paint/BrushImage.h"

#include <QString>
#include <png.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace nyx::embedded {

namespace {

struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

/// Null with errno set when that is impossible. A path in the form of the system: what takes a
/// plain text expects the system's own encoding, which need not be UTF-8.
File openToRead(std::filesystem::path const& path) {
#if defined(_WIN32)
    return File(_wfopen(path.c_str(), L"rb"));
#else
    return File(std::fopen(path.c_str(), "rb"));
#endif
}

} // namespace

std::filesystem::path brushImagePath(std::string const& text) {
#if defined(_WIN32)
    return QString::fromStdString(text).toStdWString(); // a path throws where this is no UTF-8
#else
    return text;
#endif
}

std::shared_ptr<BrushImage const> readBrushImage(std::string const& path, std::string& message) {
    /// The reader's state, freed on every way out.
    struct Reader : png_image {
        Reader() : png_image{} { version = PNG_IMAGE_VERSION; }
        Reader(Reader const&) = delete;
        Reader& operator=(Reader const&) = delete;
        ~Reader() { png_image_free(this); }
    } png;
    // Opening what is no plain file may wait for ever.
    std::error_code error;
    std::filesystem::path const file = brushImagePath(path);
    if (!std::filesystem::is_regular_file(file, error)) {
        message = path + ": " + (error ? error.default_error_condition().message() : "not a file");
        return nullptr;
    }
    File const open = openToRead(file);
    if (!open) {
        message = path + ": " + std::generic_category().message(errno);
        return nullptr;
    }
    if (png_image_begin_read_from_stdio(&png, open.get()) == 0) {
        message = path + ": " + png.message;
        return nullptr;
    }
    // The file says how large it is, so that must not decide how much memory is asked for.
    if (std::uint64_t(png.width) * png.height > mostBrushImagePixels) {
        message = path + ": too large for a brush";
        return nullptr;
    }
    png.format = PNG_FORMAT_RGBA;
    auto image = std::make_shared<BrushImage>();
    image->width = static_cast<int>(png.width);
    image->height = static_cast<int>(png.height);
    image->rgba.resize(PNG_IMAGE_SIZE(png));
    if (png_image_finish_read(&png, nullptr, image->rgba.data(), 0, nullptr) == 0) {
        message = path + ": " + png.message;
        return nullptr;
    }
    return image;
}

} // namespace nyx::embedded

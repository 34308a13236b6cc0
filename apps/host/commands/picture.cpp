// What the current surface looks like.

#include "host/Command.h"
#include "host/Host.h"
#include "host/OutputFile.h"
#include "host/PaintState.h"
#include "host/pictures/rasterPng.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/Painting.h"

#include <QCryptographicHash>

#include <algorithm>
#include <ostream>

namespace app {

namespace {

nyx::embedded::Image composite(Host& host) {
    host.taskQueue().waitIdle();
    return host.renderer().painting().composite(currentSurface(host).id());
}

/// The pixels as image files have them: not multiplied by alpha.
shape::Raster raster(nyx::embedded::Image image) {
    for (std::size_t i = 0; i + 3 < image.rgba.size(); i += 4) {
        int const alpha = image.rgba[i + 3];
        for (std::size_t part = i; alpha > 0 && part < i + 3; ++part) {
            int const whole = (image.rgba[part] * 255 + alpha / 2) / alpha;
            image.rgba[part] = static_cast<std::uint8_t>(std::min(whole, 255));
        }
    }
    return {{}, 0, 0, image.width, image.height, std::move(image.rgba)};
}

void save(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    if (!path.ends_with(".png")) {
        throw CommandError("expected a path that ends in .png");
    }
    writeOutputFile(path, rasterPng(raster(composite(host))),
                    host.renderer().faults().failSaveStep);
}

void checksum(Host& host, Arguments&) {
    nyx::embedded::Image const image = composite(host);
    QByteArray const bytes =
        QByteArray::fromRawData(reinterpret_cast<char const*>(image.rgba.data()),
                                static_cast<qsizetype>(image.rgba.size()));
    QByteArray const hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    host.out() << "  " << hash.toHex().left(16).toStdString() << '\n';
}

constexpr Command table[] = {
    {"picture save", "PATH", "write the current surface (.png)", "picture save painted.png", save},
    {"picture checksum", "", "a number that tells whether the picture is the same",
     "picture checksum", checksum},
};

} // namespace

Family pictureFamily() { return {"what the current surface looks like", table}; }

} // namespace app

// What the current surface looks like.

#include "host/Command.h"
#include "host/Host.h"
#include "host/OutputFile.h"
#include "host/PaintState.h"
#include "host/png.h"

#include "nyxembedded/Painting.h"
#include "zsg/painting/IPainterSurface.h"

#include <QCryptographicHash>

#include <ostream>

namespace app {

namespace {

nyx::embedded::Image composite(Host& host) {
    host.taskQueue().waitIdle();
    return host.renderer().painting().composite(currentSurface(host).id());
}

void save(Host& host, Arguments& arguments) {
    std::string const path = arguments.word("a path");
    arguments.done();
    if (!path.ends_with(".png")) {
        throw CommandError("expected a path that ends in .png");
    }
    writeOutputFile(path, pngBytes(composite(host)));
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
    {"picture", "FILE.png", "write the picture of the current surface", save},
    {"picture checksum", "", "a number that tells whether the picture is the same", checksum},
};

} // namespace

Family pictureFamily() { return {"what the current surface looks like", table}; }

} // namespace app

#include "host/CMFFile.h"

#include "host/OutputFile.h"

#include <QByteArray>
#include <QIODevice>
#include <QTextStream>

namespace app {

void saveCMFFile(zsg::ZCMFSchema const& schema, std::string const& path) {
    QByteArray bytes;
    QTextStream out(&bytes, QIODevice::WriteOnly);
    schema.save(out);
    out.flush();
    writeOutputFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace app

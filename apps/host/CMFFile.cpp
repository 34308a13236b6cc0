#include "host/CMFFile.h"

#include "host/Arguments.h"

#include <QSaveFile>
#include <QTextStream>

namespace app {

namespace {

[[noreturn]] void fail(std::string const& path, QString const& why) {
    throw CommandError(path + ": " + why.toStdString());
}

} // namespace

void saveCMFFile(zsg::ZCMFSchema const& schema, std::string const& path) {
    QByteArray bytes;
    QTextStream out(&bytes, QIODevice::WriteOnly);
    schema.save(out);
    out.flush();
    QSaveFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly)) {
        fail(path, file.errorString());
    }
    // commit() by itself renames also after a short write, and when the last bytes that it flushes
    // find no room.
    bool const written = file.write(bytes) == bytes.size() && file.flush();
    if (!written || file.error() != QFileDevice::NoError) {
        // After a short write the system has no reason to give; it would at the next one.
        QString const why = QStringLiteral("could not be written (%1)").arg(file.errorString());
        file.cancelWriting();
        file.commit();
        fail(path, why);
    }
    if (!file.commit()) {
        fail(path, file.errorString());
    }
}

} // namespace app

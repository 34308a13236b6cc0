#include "host/OutputFile.h"

#include "host/Arguments.h"

#include <QSaveFile>
#include <QString>

namespace app {

void writeOutputFile(std::string const& path, std::string_view bytes) {
    QSaveFile file(QString::fromStdString(path));
    auto const size = static_cast<qint64>(bytes.size());
    // A short write and a failed flush are not remembered by the file: commit() would still
    // replace the old one.
    bool const written =
        file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.flush();
    QString const reason = file.errorString();
    if (!written) {
        file.cancelWriting();
        throw CommandError(path + ": cannot be written: " + reason.toStdString());
    }
    if (!file.commit()) {
        throw CommandError(path + ": cannot be written: " + file.errorString().toStdString());
    }
}

} // namespace app

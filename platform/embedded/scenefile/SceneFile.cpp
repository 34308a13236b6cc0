#include "scenefile/SceneFile.h"

#include "scenefile/SceneReader.h"
#include "scenefile/SceneWriter.h"
#include "scenefile/StrictJson.h"

#include "nyxembedded/writeFile.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>

namespace nyx::embedded {
namespace {

std::string problem(std::string const& path, QString const& reason) {
    return path + ": " + reason.toStdString();
}

} // namespace

std::string loadSceneText(nyxScene& scene, std::string const& json) {
    try {
        readScene(parseStrictly(json), scene);
    } catch (SceneFileError const& error) {
        return error.what();
    }
    return {};
}

std::string loadSceneFile(nyxScene& scene, std::string const& path) {
    QString const name = QString::fromStdString(path);
    if (QFileInfo(name).isDir()) {
        return problem(path, QStringLiteral("is a folder"));
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return problem(path, file.errorString());
    }
    std::string const text = file.readAll().toStdString();
    if (file.error() != QFileDevice::NoError) {
        return problem(path, file.errorString());
    }
    std::string const message = loadSceneText(scene, text);
    return message.empty() ? message : path + ": " + message;
}

std::string saveSceneText(nyxScene const& scene) { return writeScene(scene); }

std::string saveSceneFile(nyxScene const& scene, std::string const& path, int failingStep) {
    return writeFile(*failingTarget(diskTarget(path), failingStep), path, writeScene(scene));
}

} // namespace nyx::embedded

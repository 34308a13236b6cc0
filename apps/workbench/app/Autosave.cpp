#include "workbench/app/Autosave.h"

#include "nyxembedded/writeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

constexpr char sceneEnding[] = ".json";
constexpr char originEnding[] = ".origin.json";
constexpr char lockEnding[] = ".lock";
constexpr int daysKept = 30;

QString withEnding(QString const& scene, char const* ending) {
    return scene.chopped(static_cast<qsizetype>(sizeof sceneEnding) - 1) + QLatin1String(ending);
}

/// Whether the program that made the copy has ended without removing it.
bool isLeft(QString const& scene) {
    QLockFile lock(withEnding(scene, lockEnding));
    lock.setStaleLockTime(0); // a lock is stale when its process is gone, however old it is
    return lock.tryLock();
}

} // namespace

Autosave::Autosave(QString folder) : folder_(std::move(folder)) { startAnew(); }

Autosave::~Autosave() = default;

QString Autosave::path(QString const& ending) const { return base_ + ending; }

std::string Autosave::write(QString const& original, std::string const& scene) {
    if (!QDir().mkpath(folder_)) {
        return folder_.toStdString() + ": cannot be made";
    }
    if (!lock_) {
        lock_ = std::make_unique<QLockFile>(path(lockEnding));
        lock_->setStaleLockTime(0);
        if (!lock_->tryLock()) {
            lock_.reset();
            return path(lockEnding).toStdString() + ": cannot be made";
        }
    }
    QJsonObject origin;
    origin["path"] = original;
    origin["time"] = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    origin["process"] = QCoreApplication::applicationPid();
    std::string message = nyx::embedded::writeFile(path(originEnding).toStdString(),
                                                   QJsonDocument(origin).toJson().toStdString());
    return message.empty() ? nyx::embedded::writeFile(path(sceneEnding).toStdString(), scene)
                           : message;
}

void Autosave::discard() {
    if (lock_) {
        QFile::remove(path(sceneEnding));
        QFile::remove(path(originEnding));
        lock_.reset();
    }
}

bool Autosave::adopt(Orphan const& orphan) {
    auto lock = std::make_unique<QLockFile>(withEnding(orphan.file, lockEnding));
    lock->setStaleLockTime(0);
    if (!lock->tryLock()) {
        return false;
    }
    lock_ = std::move(lock);
    base_ = withEnding(orphan.file, "");
    return true;
}

void Autosave::startAnew() {
    lock_.reset();
    base_ = folder_ + '/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

std::vector<Autosave::Orphan> Autosave::orphans(QString const& folder) {
    std::vector<Orphan> found;
    QFileInfoList const scenes = QDir(folder).entryInfoList({"*.json"}, QDir::Files);
    for (QFileInfo const& scene : scenes) {
        QString const file = scene.filePath();
        if (file.endsWith(originEnding) || !isLeft(file)) {
            continue;
        }
        QFile origin(withEnding(file, originEnding));
        QString original;
        if (origin.open(QIODevice::ReadOnly)) {
            original = QJsonDocument::fromJson(origin.readAll()).object()["path"].toString();
        }
        Orphan const orphan{file, original, scene.lastModified()};
        if (orphan.time.daysTo(QDateTime::currentDateTime()) > daysKept) {
            remove(orphan);
        } else {
            found.push_back(orphan);
        }
    }
    std::ranges::sort(found, std::ranges::greater(), &Orphan::time);
    return found;
}

void Autosave::remove(Orphan const& orphan) {
    QFile::remove(orphan.file);
    QFile::remove(withEnding(orphan.file, originEnding));
}

} // namespace workbench

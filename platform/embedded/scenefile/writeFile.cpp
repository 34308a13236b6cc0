#include "nyxembedded/writeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

#ifdef Q_OS_WIN
    #include <io.h>
#else
    #include <unistd.h>
#endif

namespace nyx::embedded {
namespace {

/// QSaveFile's own commit() is not enough: it forgets a write that took only a part, and ignores
/// what synchronising the file says.
class DiskTarget final : public FileTarget {
public:
    explicit DiskTarget(std::string const& path) : file_(QString::fromStdString(path)) {}

    bool open() override {
        QFileInfo const present(file_.fileName());
        if (present.isDir()) {
            return failed("is a folder");
        }
#ifdef Q_OS_WIN
        // In the words of the other systems, as scripts compare them.
        if (!present.absoluteDir().exists()) {
            return failed("No such file or directory");
        }
#endif
        // A device or a pipe would be replaced by a file.
        if (present.exists() && !present.isFile()) {
            return failed("is not a regular file");
        }
        return file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || failed();
    }

    bool write(std::string_view bytes) override {
        errno = 0;
        auto const size = static_cast<qint64>(bytes.size());
        if (file_.write(bytes.data(), size) == size && file_.error() == QFileDevice::NoError) {
            return true;
        }
        if (file_.error() != QFileDevice::NoError) {
            return failed();
        }
        // A part was taken and the rest refused, which Qt does not count as an error.
        return failed(errno != 0 ? std::strerror(errno) : "not all of it could be written");
    }

    bool sync() override {
        if (!file_.flush()) {
            return failed();
        }
#ifdef Q_OS_WIN
        bool const synced = _commit(file_.handle()) == 0;
#else
        // EINVAL: the file system has nothing to synchronise.
        bool const synced = ::fsync(file_.handle()) == 0 || errno == EINVAL;
#endif
        return synced || failed(std::strerror(errno));
    }

    bool replace() override { return file_.commit() || failed(); }

    void cancel() override {
        file_.cancelWriting();
        file_.commit(); // removes the temporary file
    }

    std::string problem() const override { return problem_; }

private:
    bool failed(char const* reason = nullptr) {
        problem_ = reason ? std::string(reason) : file_.errorString().toStdString();
        return false;
    }

    QSaveFile file_;
    std::string problem_;
};

class FailingTarget final : public FileTarget {
public:
    FailingTarget(std::unique_ptr<FileTarget> target, int failing)
        : target_(std::move(target)), left_(failing) {}

    bool open() override { return !fails() && target_->open(); }
    bool write(std::string_view bytes) override {
        if (fails()) {
            target_->write(bytes.substr(0, bytes.size() / 2));
            return false;
        }
        return target_->write(bytes);
    }
    bool sync() override { return !fails() && target_->sync(); }
    bool replace() override { return !fails() && target_->replace(); }
    void cancel() override { target_->cancel(); }
    std::string problem() const override {
        return failed_ ? "No space left on device" : target_->problem();
    }

private:
    bool fails() {
        failed_ = left_ > 0 && --left_ == 0;
        return failed_;
    }

    std::unique_ptr<FileTarget> target_;
    int left_;
    bool failed_ = false;
};

bool writeAll(FileTarget& target, std::string_view content) {
    constexpr std::size_t piece = 1 << 20;
    for (std::size_t at = 0; at < content.size(); at += piece) {
        if (!target.write(content.substr(at, piece))) {
            return false;
        }
    }
    return target.sync() && target.replace();
}

} // namespace

FileTarget::~FileTarget() = default;

std::unique_ptr<FileTarget> diskTarget(std::string const& path) {
    return std::make_unique<DiskTarget>(path);
}

std::unique_ptr<FileTarget> failingTarget(std::unique_ptr<FileTarget> target, int failing) {
    return std::make_unique<FailingTarget>(std::move(target), failing);
}

std::string writeFile(std::string const& path, std::string_view content) {
    DiskTarget target(path);
    return writeFile(target, path, content);
}

std::string writeFile(FileTarget& target, std::string const& path, std::string_view content) {
    if (!target.open()) {
        return path + ": " + target.problem();
    }
    if (!writeAll(target, content)) {
        std::string const problem = target.problem();
        target.cancel();
        return path + ": " + problem;
    }
    return {};
}

} // namespace nyx::embedded

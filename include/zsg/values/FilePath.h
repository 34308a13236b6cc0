#pragma once

#include "zsg/Export.h"

#include <QString>

namespace zsg {

/// The path of a file, kept with the separators of the operating system. Nothing else about it is
/// normalised, and the file system is never asked.
class ZSG_EXPORT FilePath {
public:
    FilePath() = default;
    FilePath(QString const& path);

    [[nodiscard]] QString const& toString() const noexcept { return path_; }

    /// Exact: letter case and a trailing separator count.
    friend bool operator==(FilePath const& a, FilePath const& b) { return a.path_ == b.path_; }

private:
    QString path_;
};

} // namespace zsg

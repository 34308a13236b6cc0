#pragma once

#include "nyxrender/Export.h"

#include <memory>
#include <string>
#include <string_view>

namespace nyx::embedded {

/// Where writeFile() puts the bytes. Each step says whether it succeeded; after one that failed
/// only problem() and cancel() are called.
class NYXRENDER_EXPORT FileTarget {
public:
    virtual ~FileTarget();

    virtual bool open() = 0;
    /// All of the bytes or a failure: a disk that fills up takes a part of them.
    virtual bool write(std::string_view bytes) = 0;
    /// Brings what was written to the medium. Full disks, quotas and network drives may fail here
    /// for the first time.
    virtual bool sync() = 0;
    /// Puts the new content in the place of the old, at once.
    virtual bool replace() = 0;
    /// Removes what was written; the old content stays.
    virtual void cancel() = 0;
    /// Why the last step failed, for people.
    [[nodiscard]] virtual std::string problem() const = 0;
};

/// A file of the disk, by a temporary file beside it; its symbolic links are followed and its
/// permissions kept. `path` is UTF-8.
[[nodiscard]] NYXRENDER_EXPORT std::unique_ptr<FileTarget> diskTarget(std::string const& path);

/// A target whose `failing`-th step (1: opening it) fails as on a full disk: a writing step takes
/// half of its bytes. 0: none does. For tests of what a program does then.
[[nodiscard]] NYXRENDER_EXPORT std::unique_ptr<FileTarget>
failingTarget(std::unique_ptr<FileTarget> target, int failing);

/// Makes `content` the content of a file, in one piece: whatever fails on the way (also memory),
/// the file is what it was. The result is "path: reason", empty on success. Any thread.
[[nodiscard]] NYXRENDER_EXPORT std::string writeFile(std::string const& path,
                                                     std::string_view content);
[[nodiscard]] NYXRENDER_EXPORT std::string writeFile(FileTarget& target, std::string const& path,
                                                     std::string_view content);

} // namespace nyx::embedded

#include "zsg/values/FilePath.h"

#include <QDir>

namespace zsg {

FilePath::FilePath(QString const& path) : path_(QDir::toNativeSeparators(path)) {}

} // namespace zsg

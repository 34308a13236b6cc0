#pragma once

#include <QByteArray>

#include <string>
#include <vector>

namespace app {

/// Something about a schema file. Lines count from 1; `place` is a JSON pointer, empty for the
/// whole file.
struct CMFFinding {
    bool isFault = false; ///< the file cannot be loaded; else a note on what loading makes of it
    int line = 0;
    std::string place;
    std::string text;
};

/// Everything that is wrong or odd about the bytes of a CMF schema file, where loading it reports
/// the first fault only. There is a fault exactly when ZCMFSchema::load() fails.
[[nodiscard]] std::vector<CMFFinding> lintCMF(QByteArray const& file);

} // namespace app

#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <string_view>

/// Where fuzzed lines may write: an application in an empty folder of its own.
class ConsoleSandbox {
public:
    static void enter() { static ConsoleSandbox const sandbox; }

private:
    ConsoleSandbox() : application_(argc_, argv_) { QDir::setCurrent(folder_.path()); }

    int argc_ = 1;
    char name_[5] = "fuzz";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_;
    QTemporaryDir folder_;
};

/// Whether a line of the console may be run there: not when it could spell a path that leads out,
/// nor a number with which a single command takes all memory.
[[nodiscard]] inline bool isHarmless(std::string_view line) {
    int digits = 0;
    for (char const c : line) {
        digits = c >= '0' && c <= '9' ? digits + 1 : 0;
        if (digits > 3 || c == '/' || c == '\\' || c == '~') {
            return false;
        }
    }
    return true;
}

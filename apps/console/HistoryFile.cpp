#include "console/HistoryFile.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::filesystem::path stateFolder() {
    if (char const* const state = std::getenv("XDG_STATE_HOME"); state && *state == '/') {
        return state;
    }
    char const* const home = std::getenv("HOME");
    return home && *home == '/' ? std::filesystem::path(home) / ".local" / "state"
                                : std::filesystem::path();
}

} // namespace

HistoryFile::HistoryFile() {
    std::filesystem::path folder = stateFolder();
    if (folder.empty()) {
        return;
    }
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    folder /= "zsg-console";
    mkdir(folder.c_str(), S_IRWXU); // it may be there
    path_ = folder / "history";
}

std::vector<std::string> HistoryFile::lines() const {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path_, error)) {
        return {};
    }
    std::vector<std::string> lines;
    std::ifstream in(path_, std::ios::binary);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    if (lines.size() > mostLines) {
        bool const isLong = lines.size() >= 2 * mostLines;
        lines.erase(lines.begin(), lines.end() - static_cast<std::ptrdiff_t>(mostLines));
        if (isLong) {
            std::string text;
            for (std::string const& line : lines) {
                text += line + '\n';
            }
            std::string const part = path_ + '.' + std::to_string(getpid());
            int const file = open(part.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
            bool const isWritten =
                file >= 0 && write(file, text.data(), text.size()) == ssize_t(text.size());
            if (file >= 0) {
                close(file);
                isWritten ? rename(part.c_str(), path_.c_str()) : unlink(part.c_str());
            }
        }
    }
    return lines;
}

void HistoryFile::append(std::string const& line) const {
    int const file =
        path_.empty() ? -1 : open(path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (file >= 0) {
        std::string const text = line + '\n';
        static_cast<void>(!write(file, text.data(), text.size()));
        close(file);
    }
}

#include "host/LineReader.h"

#include <istream>

namespace app {

ReadResult readLine(std::istream& in, std::string& line) {
    line.clear();
    std::streambuf* const buffer = in.rdbuf();
    bool any = false;
    for (int c = buffer->sbumpc(); c != std::char_traits<char>::eof(); c = buffer->sbumpc()) {
        any = true;
        if (c == '\n') {
            break;
        }
        if (line.size() == longestLine) {
            line.clear();
            return ReadResult::TooLong;
        }
        line += static_cast<char>(c);
    }
    if (!any) {
        in.setstate(std::ios::eofbit);
        return ReadResult::End;
    }
    return ReadResult::Line;
}

void skipLine(std::istream& in) {
    std::streambuf* const buffer = in.rdbuf();
    int c = buffer->sbumpc();
    while (c != '\n' && c != std::char_traits<char>::eof()) {
        c = buffer->sbumpc();
    }
}

} // namespace app

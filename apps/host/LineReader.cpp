#include "host/LineReader.h"

#include <istream>

namespace app {

ReadResult readLine(std::istream& in, std::string& line) {
    line.clear();
    std::streambuf* const buffer = in.rdbuf();
    bool any = false;
    bool tooLong = false;
    for (int c = buffer->sbumpc(); c != std::char_traits<char>::eof(); c = buffer->sbumpc()) {
        any = true;
        if (c == '\n') {
            break;
        }
        if (line.size() == longestLine) {
            tooLong = true;
        } else {
            line += static_cast<char>(c);
        }
    }
    if (!any) {
        in.setstate(std::ios::eofbit);
        return ReadResult::End;
    }
    if (tooLong) {
        line.clear();
        return ReadResult::TooLong;
    }
    return ReadResult::Line;
}

} // namespace app

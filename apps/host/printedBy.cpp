#include "host/printedBy.h"

#include <iostream>
#include <sstream>

namespace app {

std::string printedBy(std::function<void()> const& print, std::ostream& stream) {
    std::ostringstream text;
    struct Redirection {
        Redirection(std::ostream& from, std::streambuf* to) : stream(from), before(from.rdbuf(to)) {
            format.copyfmt(stream);
        }
        Redirection(Redirection const&) = delete;
        Redirection& operator=(Redirection const&) = delete;
        ~Redirection() {
            stream.rdbuf(before);
            stream.copyfmt(format);
        }
        std::ostream& stream;
        std::streambuf* before;
        std::ios format{nullptr};
    };
    {
        Redirection const redirection(stream, text.rdbuf());
        print();
    }
    return text.str();
}

} // namespace app

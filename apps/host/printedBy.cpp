#include "host/printedBy.h"

#include <iostream>
#include <sstream>

namespace app {

std::string printedBy(std::function<void()> const& print) {
    std::ostringstream text;
    struct Redirection {
        explicit Redirection(std::streambuf* to) : before(std::cout.rdbuf(to)) {
            format.copyfmt(std::cout);
        }
        Redirection(Redirection const&) = delete;
        Redirection& operator=(Redirection const&) = delete;
        ~Redirection() {
            std::cout.rdbuf(before);
            std::cout.copyfmt(format);
        }
        std::streambuf* before;
        std::ios format{nullptr};
    };
    {
        Redirection const redirection(text.rdbuf());
        print();
    }
    return text.str();
}

} // namespace app

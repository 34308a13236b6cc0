#include "console/LineEditor.h"

#include "host/LineReader.h"

#include <iostream>

std::optional<std::string> editLine(char const* prompt) {
    std::cout << prompt << std::flush;
    std::string line;
    switch (app::readLine(std::cin, line)) {
    case app::ReadResult::End:
        return {};
    case app::ReadResult::TooLong:
        app::skipLine(std::cin);
        return std::string();
    case app::ReadResult::Line:
        break;
    }
    return line;
}

#include "host/printable.h"

#include "host/Arguments.h"

namespace app {

std::string printable(std::string text, std::size_t longest) {
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            c = '?';
        }
    }
    if (text.size() > longest) {
        text.resize(longest);
        // Not in the middle of a character.
        while (invalidUtf8At(text) != std::string::npos) {
            text.pop_back();
        }
        text += "...";
    }
    return text;
}

} // namespace app

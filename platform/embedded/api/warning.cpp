#include "nyxembedded/Warnings.h"
#include "nyxrender/nyx_warning.h"

#include <cstdarg>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace {

using Handler = std::function<void(std::string_view)>;

struct Channel {
    std::mutex mutex;
    std::shared_ptr<Handler const> handler;
};

Channel& channel() {
    static Channel instance;
    return instance;
}

#if defined(__GNUC__)
__attribute__((format(printf, 1, 0)))
#endif
std::string
formatted(char const* format, std::va_list arguments) {
    std::va_list again;
    va_copy(again, arguments);
    int const length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string text;
    if (length > 0) {
        text.resize(static_cast<std::size_t>(length));
        std::vsnprintf(text.data(), text.size() + 1, format, again);
    }
    va_end(again);
    return text;
}

} // namespace

void nyx::embedded::setWarningHandler(std::function<void(std::string_view)> handler) {
    auto next = handler ? std::make_shared<Handler const>(std::move(handler)) : nullptr;
    std::lock_guard const guard(channel().mutex);
    std::swap(channel().handler, next);
}

void nyx_warning(char const* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::string const text = formatted(format, arguments);
    va_end(arguments);

    std::shared_ptr<Handler const> handler;
    {
        std::lock_guard const guard(channel().mutex);
        handler = channel().handler;
    }
    if (handler) {
        (*handler)(text);
    } else {
        std::fwrite(text.data(), 1, text.size(), stderr);
    }
}

#include "zsg/values/WeavePattern.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

/// Whatever is read is written as text that reads as the same pattern.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    QString const text =
        QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
    zsg::WeavePattern pattern;
    try {
        if (!pattern.setFromJson(text)) {
            return 0;
        }
        QString const written = pattern.toJson();
        zsg::WeavePattern again;
        if (!again.setFromJson(written) || again.toJson() != written ||
            again.hash() != pattern.hash()) {
            std::abort();
        }
    } catch (nlohmann::json::exception const&) {
        // Not JSON, a wrong type, or a float that is not finite and so was written as null.
    }
    return 0;
}

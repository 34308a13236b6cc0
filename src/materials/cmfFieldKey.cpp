#include "zsg/materials/cmfFieldKey.h"

#include <array>

namespace zsg {

std::string const& cmfFieldKey(int field) {
    // Materials are stored with these keys.
    static std::array<std::string, cmfFieldCount> const keys{
        "CMF::TEXT::NAME",   "CMF::TEXT::COLOR", "CMF::TEXT::MATERIAL",   "CMF::TEXT::FINISH",
        "CMF::TEXT::VENDOR", "CMF::TEXT::NOTES", "CMF::IMAGE::THUMBNAIL",
    };
    return keys.at(static_cast<std::size_t>(field)); // a negative number is beyond the end as well
}

} // namespace zsg

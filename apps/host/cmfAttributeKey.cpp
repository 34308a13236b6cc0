#include "host/cmfAttributeKey.h"

#include "zsg/materials/cmfFieldKey.h"

#include <map>

namespace app {

std::string cmfAttributeKey(std::string const& attribute) {
    static std::map<std::string, int> const fields = {
        {"Name", 0},   {"Color", 1}, {"Material", 2},        {"Finish", 3},
        {"Vendor", 4}, {"Notes", 5}, {"Reference Image", 6},
    };
    auto const found = fields.find(attribute);
    return found == fields.end() ? attribute : zsg::cmfFieldKey(found->second);
}

} // namespace app

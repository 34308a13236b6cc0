#pragma once

#include <functional>
#include <iostream>
#include <string>

namespace app {

/// What `print` writes to std::cout, or to std::cerr, which is what parts of the library print to,
/// whatever the host's own output is. The stream's format is as before afterwards.
[[nodiscard]] std::string printedBy(std::function<void()> const& print,
                                    std::ostream& stream = std::cout);

} // namespace app

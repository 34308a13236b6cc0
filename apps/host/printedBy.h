#pragma once

#include <functional>
#include <string>

namespace app {

/// What `print` writes to std::cout, which is what parts of the library print to, whatever the
/// host's own output is. The stream's format is as before afterwards.
[[nodiscard]] std::string printedBy(std::function<void()> const& print);

} // namespace app

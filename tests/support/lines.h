#pragma once

#include <functional>
#include <string>

/// The wanted ones of the lines of a text that are not empty, with `separator` between them.
std::string selectLines(std::string const& text, char const* separator,
                        std::function<bool(std::string const&)> const& wanted);

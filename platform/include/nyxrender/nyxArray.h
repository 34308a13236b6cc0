#pragma once

#include <vector>

/// The renderer's growable array.
template <class T>
using nyxArray = std::vector<T>;

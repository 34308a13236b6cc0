#pragma once

#include "host/pictures/shapes.h"

namespace app {

/// A drawing: shapes in the order in which they are laid over each other, on paper. svg.h and png.h
/// write it, and both show the same.
struct Picture {
    double width = 0; ///< whole pixels
    double height = 0;
    std::string title; ///< what it shows, for who cannot see it
    std::vector<shape::Shape> shapes;

    void add(shape::Shape shape) { shapes.push_back(std::move(shape)); }
};

} // namespace app

#pragma once

/// A 4 x 4 matrix of doubles, row after row. Not initialised unless the maker does it.
struct nyxMatrix {
    double m[16];
};

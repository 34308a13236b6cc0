#pragma once

/// Two, three floats; three doubles. Plain records, components in the renderer's scene units.
struct nyxVector2f {
    float x = 0, y = 0;

    friend bool operator==(nyxVector2f const&, nyxVector2f const&) = default;
};
struct nyxVectorf {
    float x = 0, y = 0, z = 0;

    friend bool operator==(nyxVectorf const&, nyxVectorf const&) = default;
};
struct nyxVector {
    double x = 0, y = 0, z = 0;

    friend bool operator==(nyxVector const&, nyxVector const&) = default;
};

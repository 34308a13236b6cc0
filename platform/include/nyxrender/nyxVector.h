#pragma once

/// Two, three floats; three doubles. Plain records, components in the renderer's scene units.
struct nyxVector2f {
    float x = 0, y = 0;
};
struct nyxVectorf {
    float x = 0, y = 0, z = 0;
};
struct nyxVector {
    double x = 0, y = 0, z = 0;
};

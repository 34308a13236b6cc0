#pragma once

#include "nyxrender/Ids.h"

#include <string>
#include <vector>

namespace app {

class Host;
struct Picture;

/// Which light is in which layer, as the working copy has it: a row for each light, below the
/// groups that lead to it, and a column for each layer.
class LightMatrix {
public:
    explicit LightMatrix(Host& host);

    [[nodiscard]] std::string text() const;
    [[nodiscard]] Picture picture() const;

private:
    struct Row {
        std::string name;
        int depth = 0;
        bool isLight = false;
        std::vector<bool> in; ///< per column; empty for a group
    };

    std::vector<std::string> columns_;
    std::vector<Row> rows_;
};

} // namespace app

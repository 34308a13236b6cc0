#include "host/OutputFile.h"

#include "host/Arguments.h"
#include "nyxembedded/writeFile.h"

namespace app {

void writeOutputFile(std::string const& path, std::string_view bytes) {
    std::string const problem = nyx::embedded::writeFile(path, bytes);
    if (!problem.empty()) {
        throw CommandError(problem);
    }
}

} // namespace app

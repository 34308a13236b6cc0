#include "host/OutputFile.h"

#include "host/Arguments.h"

#include "nyxembedded/writeFile.h"

namespace app {

void writeOutputFile(std::string const& path, std::string_view bytes, int failingStep) {
    auto const target = nyx::embedded::failingTarget(nyx::embedded::diskTarget(path), failingStep);
    std::string const problem = nyx::embedded::writeFile(*target, path, bytes);
    if (!problem.empty()) {
        throw CommandError(problem);
    }
}

} // namespace app

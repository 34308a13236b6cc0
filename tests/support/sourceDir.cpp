#include "support/sourceDir.h"

std::string sourceDir() { return ZSG_SOURCE_DIR; }

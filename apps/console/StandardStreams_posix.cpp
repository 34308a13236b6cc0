#include "console/StandardStreams.h"

#include <unistd.h>

void prepareStandardStreams() {}

bool isTerminal() { return isatty(STDIN_FILENO) != 0 && isOutputTerminal(); }

bool isOutputTerminal() { return isatty(STDOUT_FILENO) != 0; }

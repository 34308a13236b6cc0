#include "console/StandardStreams.h"

#include <QByteArray>

#include <unistd.h>

void prepareStandardStreams() {}

bool isTerminal() { return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0; }

bool showsColors() {
    QByteArray const colors = qgetenv("COLORTERM");
    return isatty(STDOUT_FILENO) != 0 && (colors == "truecolor" || colors == "24bit") &&
           qEnvironmentVariableIsEmpty("NO_COLOR");
}

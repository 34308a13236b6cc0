#include "console/StandardStreams.h"

#include <QByteArray>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

void prepareStandardStreams() {
    // A closed one would be taken by the first file or event counter that is opened, and that read
    // as commands or written into. Opened for reading, so that writing still fails.
    for (int const stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1 && errno == EBADF) {
            (void)open("/dev/null", O_RDONLY); // the lowest number that is free
        }
    }
}

bool isTerminal() { return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0; }

bool showsColors() {
    QByteArray const colors = qgetenv("COLORTERM");
    return isatty(STDOUT_FILENO) != 0 && (colors == "truecolor" || colors == "24bit") &&
           qEnvironmentVariableIsEmpty("NO_COLOR");
}

#include "colors/logging.h"

Q_LOGGING_CATEGORY(zsgColors, "zsg.colors")

#include "painting/logging.h"

Q_LOGGING_CATEGORY(zsgPainting, "zsg.painting")

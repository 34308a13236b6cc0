#include "materials/logging.h"

Q_LOGGING_CATEGORY(zsgMaterials, "zsg.materials")

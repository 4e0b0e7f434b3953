// A target of resources needs a source.
#include "resources.h"

extern int qv_commons_resources;
int qv_commons_resources = 0;

#include "platform/base/record_source.h"

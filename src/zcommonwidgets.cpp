#include "zcommonwidgets.h"

Zcommonwidgets::Zcommonwidgets() = default;

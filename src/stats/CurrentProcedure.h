#pragma once

#include "core/CurrentProcedure.h" // now of the core, as rooms beside the statistics need it, too

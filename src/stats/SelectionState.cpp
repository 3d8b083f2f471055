#include "stats/SelectionState.h"

std::string SelectionDescription;
bool GroupLimitExceeded = false;
bool FilterActive = false;

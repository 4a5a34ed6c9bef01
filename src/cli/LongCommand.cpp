#include "cli/LongCommand.h" // the signal's code is generated from the header

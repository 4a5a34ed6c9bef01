#include "smtp/ServerProbe.h"

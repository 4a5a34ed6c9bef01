#include "smtp/Smtp.h" // the signals' code is generated from the header

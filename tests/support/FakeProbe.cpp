#include "support/FakeProbe.h" // the signals' code is generated from the header

#pragma once

/// The steps of a process: each write to a file or a socket, all that comes out of a socket, each
/// file brought to the disk, renamed, cut or deleted, each tick of its clock. The calls of the
/// system that make them stand here in the place of the C library's and pass on to those.
namespace Steps {

/// From now on this process counts its steps, and kills itself just before that one (0: never),
/// saying on that descriptor which it was.
void count(int fatal, int report);

/// One more step.
void take(const char *what);

} // namespace Steps

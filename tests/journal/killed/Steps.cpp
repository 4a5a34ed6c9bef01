#include "Steps.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

constexpr int Nobody = -1;

// Threads take steps too.
std::atomic<int> fatalStep = 0;
std::atomic<int> stepsTaken = 0;
std::atomic<int> reportedTo = Nobody;

/// The call of that name that stands behind the one here.
template <typename Function>
Function *systems(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

mode_t kindOf(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 ? status.st_mode & S_IFMT : 0;
}

/// What is written to wake up a thread, or to a terminal, is no step.
void takeWrite(int descriptor)
{
    const mode_t kind = reportedTo == Nobody ? 0 : kindOf(descriptor);
    if (kind == S_IFSOCK)
        Steps::take("a write to the server");
    else if (kind == S_IFREG)
        Steps::take("a write to a file");
}

ssize_t takeRead(int descriptor, ssize_t count)
{
    if (count > 0 && reportedTo != Nobody && kindOf(descriptor) == S_IFSOCK)
        Steps::take("a reply of the server");
    return count;
}

} // namespace

void Steps::count(int fatal, int report)
{
    fatalStep = fatal;
    reportedTo = report;
}

void Steps::take(const char *what)
{
    if (reportedTo == Nobody || ++stepsTaken != fatalStep)
        return;
    ::dprintf(reportedTo.exchange(Nobody), "killed before %s\n", what);
    ::raise(SIGKILL);
}

extern "C" {

ssize_t write(int fd, const void *buf, std::size_t n)
{
    static const auto original = systems<decltype(write)>("write");
    takeWrite(fd);
    return original(fd, buf, n);
}

ssize_t writev(int fd, const iovec *iovec, int count)
{
    static const auto original = systems<decltype(writev)>("writev");
    takeWrite(fd);
    return original(fd, iovec, count);
}

ssize_t send(int fd, const void *buf, std::size_t n, int flags)
{
    static const auto original = systems<decltype(send)>("send");
    takeWrite(fd);
    return original(fd, buf, n, flags);
}

ssize_t sendto(int fd, const void *buf, std::size_t n, int flags, const sockaddr *addr,
               socklen_t addr_len)
{
    static const auto original = systems<decltype(sendto)>("sendto");
    takeWrite(fd);
    return original(fd, buf, n, flags, addr, addr_len);
}

ssize_t sendmsg(int fd, const msghdr *message, int flags)
{
    static const auto original = systems<decltype(sendmsg)>("sendmsg");
    takeWrite(fd);
    return original(fd, message, flags);
}

ssize_t read(int fd, void *buf, std::size_t nbytes)
{
    static const auto original = systems<decltype(read)>("read");
    return takeRead(fd, original(fd, buf, nbytes));
}

ssize_t recv(int fd, void *buf, std::size_t n, int flags)
{
    static const auto original = systems<decltype(recv)>("recv");
    return takeRead(fd, original(fd, buf, n, flags));
}

ssize_t recvfrom(int fd, void *buf, std::size_t n, int flags, sockaddr *addr, socklen_t *addr_len)
{
    static const auto original = systems<decltype(recvfrom)>("recvfrom");
    return takeRead(fd, original(fd, buf, n, flags, addr, addr_len));
}

ssize_t recvmsg(int fd, msghdr *message, int flags)
{
    static const auto original = systems<decltype(recvmsg)>("recvmsg");
    return takeRead(fd, original(fd, message, flags));
}

// What a process has handed to the system outlives it, whether it is on the disk or not: the disk
// is left alone.
int fsync(int)
{
    Steps::take("a file is brought to the disk");
    return 0;
}

int fdatasync(int)
{
    Steps::take("a file is brought to the disk");
    return 0;
}

// A file that had no name until it was whole gets one.
int linkat(int fromfd, const char *from, int tofd, const char *to, int flags) noexcept
{
    static const auto original = systems<decltype(linkat)>("linkat");
    Steps::take("a file gets its name");
    return original(fromfd, from, tofd, to, flags);
}

// The names of parameters are those of the system's headers; one of these is a keyword.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
int rename(const char *old, const char *now) noexcept
{
    static const auto original = systems<decltype(rename)>("rename");
    Steps::take("a file is renamed");
    return original(old, now);
}

int unlink(const char *name) noexcept
{
    static const auto original = systems<decltype(unlink)>("unlink");
    Steps::take("a file is deleted");
    return original(name);
}

int ftruncate64(int fd, off64_t length) noexcept
{
    static const auto original = systems<decltype(ftruncate64)>("ftruncate64");
    Steps::take("a file is cut");
    return original(fd, length);
}

} // extern "C"

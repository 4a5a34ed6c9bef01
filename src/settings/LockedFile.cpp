#include "settings/LockedFile.h"

#include "settings/Descriptor.h"
#include "settings/SettingsStore.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <string>

namespace {

using std::filesystem::path;

std::int32_t codeOf(int error)
{
    switch (error) {
    case ENOENT:
        return StoreCode::NotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ENOTDIR:
        return StoreCode::AccessDenied;
    case ENOSPC:
    case EDQUOT:
        return StoreCode::DiskFull;
    default:
        return StoreCode::InputOutputFailed;
    }
}

path beside(const path &file, std::string_view ending)
{
    path name = file;
    name += '.';
    name += ending;
    return name;
}

std::int32_t readAll(int descriptor, std::string &bytes)
{
    std::array<char, 16384> block{};
    for (;;) {
        const ssize_t count = ::read(descriptor, block.data(), block.size());
        if (count == 0)
            return StoreCode::Success;
        if (count > 0)
            bytes.append(block.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return codeOf(errno);
    }
}

std::int32_t writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return codeOf(errno);
    }
    return StoreCode::Success;
}

/// The new content, on the disk, with the old file's permissions.
std::int32_t writeNew(const path &file, const path &oldFile, const std::string &bytes)
{
    // A file of this name is what a program left that died in the middle of a change.
    ::unlink(file.c_str());
    const Descriptor out(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!out.isOpen())
        return codeOf(errno);
    struct stat old = {};
    if (::stat(oldFile.c_str(), &old) == 0 && ::fchmod(out.number(), old.st_mode & 0777) != 0)
        return codeOf(errno);
    if (const std::int32_t code = writeAll(out.number(), bytes); code != StoreCode::Success)
        return code;
    return ::fsync(out.number()) == 0 ? StoreCode::Success : codeOf(errno);
}

std::int32_t replace(const path &file, const path &newFile, const std::string &bytes)
{
    std::int32_t code = writeNew(newFile, file, bytes);
    if (code == StoreCode::Success && ::rename(newFile.c_str(), file.c_str()) != 0)
        code = codeOf(errno);
    if (code != StoreCode::Success)
        ::unlink(newFile.c_str());
    return code;
}

/// Waits until no other program, and no other thread of this one, holds the lock.
bool lock(const Descriptor &lockFile)
{
    while (::flock(lockFile.number(), LOCK_EX) != 0) {
        if (errno != EINTR)
            return false;
    }
    return true;
}

} // namespace

std::filesystem::path LockedFile::target(path file)
{
    constexpr int MostLinks = 40;
    std::error_code ignored;
    for (int links = 0; links < MostLinks && is_symlink(file, ignored); ++links)
        file = file.parent_path() / read_symlink(file, ignored);
    return file;
}

std::int32_t LockedFile::read(const path &file, RegFile &content)
{
    content = RegFile();
    // Not blocking: a pipe of this name would otherwise be waited for for ever.
    const Descriptor in(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!in.isOpen())
        return errno == ENOENT ? StoreCode::Success : codeOf(errno);
    struct stat info = {};
    if (::fstat(in.number(), &info) != 0)
        return codeOf(errno);
    if (!S_ISREG(info.st_mode))
        return StoreCode::AccessDenied;
    std::string bytes;
    if (const std::int32_t code = readAll(in.number(), bytes); code != StoreCode::Success)
        return code;
    auto parsed = RegFile::fromBytes(bytes);
    if (!parsed)
        return StoreCode::Damaged;
    content = std::move(*parsed);
    return StoreCode::Success;
}

std::int32_t LockedFile::change(const path &file, std::string_view mark, const Change &change)
{
    std::error_code error;
    create_directories(file.parent_path(), error);
    if (error)
        return codeOf(error.value());
    const Descriptor lockFile(
        ::open(beside(file, "lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (!lockFile.isOpen() || !lock(lockFile))
        return codeOf(errno);
    RegFile content;
    std::int32_t code = read(file, content);
    if (code == StoreCode::Success)
        code = change(content);
    if (code == StoreCode::Success)
        code = replace(file, fileOfChange(file, mark), content.toBytes());
    return code;
}

std::filesystem::path LockedFile::fileOfChange(const path &file, std::string_view mark)
{
    return beside(file, std::string(mark) + ".new");
}

std::int32_t LockedFile::flush(const path &file)
{
    const Descriptor folder(::open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen() || ::fsync(folder.number()) != 0)
        return codeOf(errno);
    return StoreCode::Success;
}

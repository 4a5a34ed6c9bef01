#pragma once

#include "settings/RegFile.h"

#include <filesystem>
#include <functional>
#include <string_view>

/// Reading and replacing one file that several programs may be changing. The functions answer with
/// a code of StoreCode.
namespace LockedFile {

/// The file that a path leads to, symbolic links followed, whether or not it exists.
[[nodiscard]] std::filesystem::path target(std::filesystem::path file);

/// The file's content; a missing file is an empty one.
[[nodiscard]] std::int32_t read(const std::filesystem::path &file, RegFile &content);

/// What a change does to the content. A code other than Success leaves the file as it is.
using Change = std::function<std::int32_t(RegFile &)>;

/// Reads, changes and replaces the file while no other program does. The new content is written to
/// a file beside it, named by `mark`, which then takes the file's place: whoever watches the
/// folder sees from that name what the change is about.
[[nodiscard]] std::int32_t change(const std::filesystem::path &file, std::string_view mark,
                                  const Change &change);

/// The name of the file beside `file` that a change with this mark writes first.
[[nodiscard]] std::filesystem::path fileOfChange(const std::filesystem::path &file,
                                                 std::string_view mark);

/// Returns when the folder's entry of the file is on the disk; the content is there before.
[[nodiscard]] std::int32_t flush(const std::filesystem::path &file);

} // namespace LockedFile

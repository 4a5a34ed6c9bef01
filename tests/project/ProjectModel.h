#pragma once

#include "project/ProjectData.h"

#include <QStringView>

#include <string>

/// The rules of a project's text once more, one character after the other, to hold the program's
/// own reader and writer against.
namespace ProjectModel {

[[nodiscard]] QString written(const ProjectData &project);
[[nodiscard]] tl::expected<ProjectData, ProjectFault> read(const QString &text);

/// Everything that was read, as a text in which two that differ are not the same.
[[nodiscard]] std::string described(const tl::expected<ProjectData, ProjectFault> &read);

} // namespace ProjectModel

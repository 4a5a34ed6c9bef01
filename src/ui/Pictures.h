#pragma once

#include <QIcon>

/// The program's own pictures.
namespace Pictures {

/// The picture of that name, drawn sharp at any size.
[[nodiscard]] QIcon icon(const char *name);

} // namespace Pictures

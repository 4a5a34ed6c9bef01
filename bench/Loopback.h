#pragma once

#include "settings/Descriptor.h"

#include <cstdint>
#include <string_view>

/// TCP on 127.0.0.1, for the programs of the bench. A failure ends the program.
namespace Loopback {

/// A socket that listens on a free port; prints the port's number as a line.
[[nodiscard]] Descriptor listenAndTell();
[[nodiscard]] Descriptor accept(const Descriptor &listening);
[[nodiscard]] Descriptor connect(std::uint16_t port);
/// Whether everything could be sent.
[[nodiscard]] bool send(const Descriptor &socket, std::string_view bytes);

} // namespace Loopback

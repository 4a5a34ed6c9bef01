#pragma once

#include "base/ServerReply.h"

/// The name under which the server keeps an accepted message in its queue, for who asks its
/// administrator about it; empty when the reply names none. What replies say there is no standard:
/// the words of the servers in use are known.
[[nodiscard]] QString queueIdOf(const ServerReply &reply);

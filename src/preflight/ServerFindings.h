#pragma once

#include "preflight/Finding.h"
#include "smtp/ServerReport.h"

#include <QList>

/// What a server's report says about a run with that sender whose message has so many bytes; 0 when
/// its size is not known.
[[nodiscard]] QList<Finding> findingsAbout(const ServerReport &report, const QString &sender,
                                           qint64 messageSize);

#pragma once

#include "form/Controls.h"

#include <QString>

#include <optional>

/// Something about a project that should be known before it is sent.
struct Finding
{
    /// The gravest first.
    enum class Kind {
        Refused, ///< Start (or Resume, in a pause) would refuse it
        Fails,   ///< the run would begin and fail
        Asked,   ///< Start would ask about it
        Advice,  ///< Start would go on; somebody may be sorry afterwards
    };

    Kind kind = Kind::Advice;
    QString text;
    /// Where it is put right: a field, or a row of the list by its identity.
    std::optional<Control> control = {};
    quint64 row = 0; ///< 0: no row

    bool operator==(const Finding &) const = default;
};

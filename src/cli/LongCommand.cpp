#include "cli/LongCommand.h"

#include <utility>

void LongCommand::end(ExitCode code)
{
    if (!std::exchange(m_hasEnded, true))
        Q_EMIT finished(code);
}

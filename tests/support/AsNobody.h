#pragma once

#include <sys/types.h>
#include <unistd.h>

/// While it lives, the administrator is a user without rights, for whom permissions of files
/// count; any other user stays who he is.
class AsNobody
{
public:
    AsNobody()
    {
        constexpr uid_t Nobody = 65534;
        if (m_before == 0)
            m_changed = ::seteuid(Nobody) == 0;
    }
    AsNobody(const AsNobody &) = delete;
    AsNobody &operator=(const AsNobody &) = delete;
    ~AsNobody()
    {
        if (m_changed && ::seteuid(m_before) != 0)
            ::_exit(1);
    }

private:
    uid_t m_before = ::geteuid();
    bool m_changed = false;
};

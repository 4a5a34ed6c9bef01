#include "smtp/client/LoginRefusal.h"

#include <array>

namespace {

struct Meaning
{
    int code;             ///< 0: any
    const char *enhanced; ///< empty: any
    bool isFinal;
    const char *text;
};

// The first that fits.
constexpr std::array Meanings{
    Meaning{0, "5.7.30", true,
            "the provider has switched off logins with a password; it wants an access token, which "
            "the account page can get from a command"},
    Meaning{0, "5.7.139", true,
            "the provider has switched off logins with a password for this account; the "
            "administrator can allow them, or the account page can get an access token from a "
            "command"},
    Meaning{0, "5.7.9", true,
            "the provider does not take the account's password here; it wants one made for this "
            "program (an app password), or an access token"},
    Meaning{534, "", true,
            "the provider does not take the account's password here; it wants one made for this "
            "program (an app password), or an access token"},
    Meaning{0, "5.7.11", true, "the server takes this login only on an encrypted line"},
    Meaning{538, "", true, "the server takes this login only on an encrypted line"},
    Meaning{0, "5.7.8", false, "the user name or the password is wrong"},
    Meaning{0, "5.7.3", false, "the user name or the password is wrong"},
    Meaning{0, "5.7.1", false, "the server does not let this user send"},
    Meaning{0, "5.7.0", false, "the server refuses the login"},
    Meaning{535, "", false, "the user name or the password is wrong"},
    Meaning{530, "", false, "the server takes no message without a login"},
};

} // namespace

LoginRefusal LoginRefusal::of(const ServerReply &reply)
{
    const QString said = QLatin1String(": ") + reply.toText();
    // RFC 5321, section 4.2.1: not now, perhaps later. The password may be right.
    if (reply.code / 100 == 4)
        return {QLatin1String("the server cannot check logins at the moment") + said, true};
    for (const Meaning &meaning : Meanings) {
        const bool fits =
            (meaning.code == 0 || meaning.code == reply.code) &&
            (*meaning.enhanced == '\0' || reply.enhanced == QLatin1String(meaning.enhanced));
        if (fits)
            return {QLatin1String(meaning.text) + said, meaning.isFinal};
    }
    return {QLatin1String("the server refuses the login") + said, false};
}

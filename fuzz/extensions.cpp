// What servers say they can do: texts that can be shown, and nothing that this program does not
// know; said in the words that are shown, it is the same.

#include "smtp/client/Extensions.h"
#include "Fuzzing.h"

#include <algorithm>
#include <tuple>

namespace {

bool canBeShown(const QString &text)
{
    return text.isValidUtf16() && std::none_of(text.begin(), text.end(), [](QChar c) {
               return c.category() == QChar::Other_Control;
           });
}

Extensions fromShown(const Extensions &extensions)
{
    return Extensions::fromEhlo("mail.example.org\n" + extensions.lines.join(u'\n').toUtf8());
}

auto meaningOf(const Extensions &extensions)
{
    return std::tie(extensions.pipelining, extensions.chunking, extensions.smtpUtf8,
                    extensions.startTls, extensions.size, extensions.largestMessage,
                    extensions.auth, extensions.authMechanisms, extensions.lines);
}

} // namespace

void fuzz(QByteArrayView bytes)
{
    const QByteArray reply = bytes.toByteArray();
    const Extensions extensions = Extensions::fromEhlo(reply);
    mustHold(extensions.lines.size() == reply.count('\n'), "every line but the first is kept");
    mustHold(std::all_of(extensions.lines.begin(), extensions.lines.end(), canBeShown) &&
                 canBeShown(extensions.authOffer),
             "what the server said can be shown");
    mustHold(extensions.largestMessage >= 0, "a size is not below nothing");
    mustHold(extensions.auth || extensions.authMechanisms.isEmpty(),
             "who offers a mechanism offers logins");
    for (const QByteArray &mechanism : extensions.authMechanisms) {
        mustHold(mechanism == "PLAIN" || mechanism == "LOGIN" || mechanism == "XOAUTH2",
                 "a mechanism is one that the program knows");
        mustHold(extensions.authMechanisms.count(mechanism) == 1, "a mechanism is named once");
    }
    if (extensions.lines.isEmpty())
        return;
    // Control characters made blanks may have parted a word.
    const Extensions shown = fromShown(extensions);
    mustHold(meaningOf(fromShown(shown)) == meaningOf(shown), "what is shown means the same");
}

#include "sending/StartRefusals.h"

#include "base/Files.h"
#include "base/Numbers.h"
#include "base/modMain.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Start)
};

Notice refusal(const QString &text)
{
    return {Icon::Exclamation, Texts::tr("Start"), text};
}

// The title of this box stays English in the Italian window too.
Notice invalidAddress(const QString &address)
{
    return {Icon::Exclamation, QStringLiteral("Start"),
            u'\'' + address + Texts::tr("' isn't a valid e-mail address.")};
}

Notice packetNumbersMissing()
{
    return refusal(Texts::tr("Specify the number of messages per packet and the delay between "
                             "every packet"));
}

} // namespace

std::optional<qint32> delaySeconds(const Form &form)
{
    constexpr qint64 SecondsPerMinute = 60;
    const auto minutes = wholeNumber(form.text(Control::txtPausa), 0,
                                     std::numeric_limits<qint32>::max() / SecondsPerMinute);
    if (!minutes)
        return std::nullopt;
    return static_cast<qint32>(*minutes * SecondsPerMinute);
}

std::optional<Notice> refusalOfPacketNumbers(const Form &form)
{
    if (form.text(Control::txtNMsg).isEmpty() || form.text(Control::txtPausa).isEmpty())
        return packetNumbersMissing();
    // Zero is refused and a negative number is not, deliberately so.
    const auto packetSize = toNumber<qint16>(form.text(Control::txtNMsg));
    if (!packetSize || *packetSize == 0)
        return refusal(Texts::tr("Specify a valid number of messages per packet"));
    if (!delaySeconds(form))
        return packetNumbersMissing();
    return std::nullopt;
}

std::optional<Notice> refusalOfStart(const Form &form, int recipientCount)
{
    for (const Control box : {Control::txtServer, Control::txtMittente, Control::txtEmailMittente,
                              Control::txtOggetto}) {
        if (form.text(box).isEmpty())
            return refusal(Texts::tr("Fill all the fields to be able to send the messages"));
    }
    if (recipientCount == 0)
        return refusal(Texts::tr("Specify one or more recipients for the message"));
    if (auto packetNumbers = refusalOfPacketNumbers(form))
        return packetNumbers;
    // The text message is judged by its path, the HTML message by its shown text; the rule has
    // both, and the wording below is kept as it stands.
    if (form.tag(Control::txtEmail).isEmpty() && form.text(Control::txtHTML).isEmpty()) {
        return refusal(Texts::tr("Select at least on type of message (text or HTML) and specify "
                                 "the message file."));
    }
    if (const QString sender = form.text(Control::txtEmailMittente); !IsValidEmail(sender))
        return invalidAddress(sender);
    const QString control = form.text(Control::txtControl);
    if (!control.isEmpty() && !IsValidEmail(control))
        return invalidAddress(control);
    return std::nullopt;
}

std::optional<QString> missingMessageFile(const Form &form)
{
    for (const Control box : {Control::txtHTML, Control::txtEmail}) {
        const QString path = form.tag(box);
        if (!path.isEmpty() && !isExistingFile(path))
            return path;
    }
    return std::nullopt;
}

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

Refusal refusal(Control control, const QString &text)
{
    return {{Icon::Exclamation, Texts::tr("Start"), text}, text, control};
}

// All empty boxes share one notice.
Refusal emptyBox(Control control, const QString &text)
{
    const QString all = Texts::tr("Fill all the fields to be able to send the messages");
    return {{Icon::Exclamation, Texts::tr("Start"), all}, text, control};
}

// The title of this box stays English in the Italian window too.
Refusal invalidAddress(Control control, const QString &address)
{
    const QString text = u'\'' + address + Texts::tr("' isn't a valid e-mail address.");
    return {{Icon::Exclamation, QStringLiteral("Start"), text}, text, control};
}

Refusal packetNumbersMissing(Control control)
{
    return refusal(control,
                   Texts::tr("Specify the number of messages per packet and the delay between "
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

std::optional<Refusal> refusalOfPacketNumbers(const Form &form)
{
    for (const Control box : {Control::txtNMsg, Control::txtPausa}) {
        if (form.text(box).isEmpty())
            return packetNumbersMissing(box);
    }
    // Zero is refused and a negative number is not, deliberately so.
    const auto packetSize = toNumber<qint16>(form.text(Control::txtNMsg));
    if (!packetSize || *packetSize == 0) {
        return refusal(Control::txtNMsg,
                       Texts::tr("Specify a valid number of messages per packet"));
    }
    if (!delaySeconds(form))
        return packetNumbersMissing(Control::txtPausa);
    return std::nullopt;
}

QList<Refusal> refusalsOfStart(const Form &form, int recipientCount)
{
    QList<Refusal> refusals;
    const auto refuseEmpty = [&](Control box, const QString &text) {
        if (form.text(box).isEmpty())
            refusals += emptyBox(box, text);
    };
    refuseEmpty(Control::txtServer, Texts::tr("The server is missing."));
    refuseEmpty(Control::txtMittente, Texts::tr("The sender's name is missing."));
    refuseEmpty(Control::txtEmailMittente, Texts::tr("The sender's address is missing."));
    refuseEmpty(Control::txtOggetto, Texts::tr("The subject is missing."));
    if (recipientCount == 0) {
        refusals += refusal(Control::lstDestinatari,
                            Texts::tr("Specify one or more recipients for the message"));
    }
    if (const auto packetNumbers = refusalOfPacketNumbers(form))
        refusals += *packetNumbers;
    // The text message is judged by its path, the HTML message by its shown text; the rule has
    // both, and the wording below is kept as it stands.
    if (form.tag(Control::txtEmail).isEmpty() && form.text(Control::txtHTML).isEmpty()) {
        refusals += refusal(Control::txtEmail,
                            Texts::tr("Select at least on type of message (text or HTML) and "
                                      "specify the message file."));
    }
    for (const Control box : {Control::txtEmailMittente, Control::txtControl}) {
        const QString address = form.text(box);
        if (!address.isEmpty() && !IsValidEmail(address))
            refusals += invalidAddress(box, address);
    }
    return refusals;
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

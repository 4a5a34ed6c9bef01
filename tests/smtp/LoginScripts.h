#pragma once

#include "smtp/Dialogue.h"
#include "smtp/Scripts.h"

/// Pieces of dialogues with a server that wants to know who one is: anna, whose password is
/// "secret".
namespace LoginScripts {

using namespace Qt::StringLiterals;

// base64 of NUL anna NUL secret
inline const QString Plain = u"C: AUTH PLAIN AGFubmEAc2VjcmV0\n"_s;
inline const QString Greeted = u"E: Connect\n"_s + opening(Mode::Plain, Point::Ehlo);
inline const QString Asked = u"L< asked\nE< login awaited\n"_s;
inline const QString Answered = u"L: anna secret\n"_s;
inline const QString Accepted = u"S: 235 welcome\nL< accepted anna\n"_s;
/// From the server's answer to EHLO to a session that is ready.
inline const QString LoggedIn =
    Asked + Answered + Plain + u"E< login no longer awaited\n"_s + Accepted + u"E< ready\n"_s;
inline const QString Disconnected = u"E: Disconnect\nC: QUIT\nS: 221 bye\nC: <closes>\n"_s;

/// From the connection to an offer of those mechanisms in the clear.
inline QString offering(const QString &mechanisms)
{
    return Greeted + u"S: 250-server.example\nS: 250 AUTH %1\n"_s.arg(mechanisms);
}

} // namespace LoginScripts

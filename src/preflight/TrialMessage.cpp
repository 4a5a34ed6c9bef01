#include "preflight/TrialMessage.h"

#include <QTemporaryDir>

TrialMessage::TrialMessage(const TrialParts &parts)
    : m_form(parts.form),
      m_recipients(parts.recipients),
      m_reader(parts.reader),
      m_filler(parts.filler),
      m_SMTP(parts.SMTP),
      m_composer(parts.composer)
{}

tl::expected<void, QString> TrialMessage::fill(int position, const QString &address)
{
    static_cast<OutgoingMessage &>(m_SMTP) = {};
    // The client reads the pictures when it takes them; a paused run keeps its working folder.
    const QTemporaryDir folder;
    if (!folder.isValid())
        return tl::unexpected(folder.errorString());
    MessageBodies bodies(m_form, m_reader, m_SMTP, folder.path());
    if (const auto loaded = bodies.loadSilently(); !loaded)
        return tl::unexpected(loaded.error().toText());
    Addressees to;
    to.addresses = QStringList{address};
    if (position >= 1 && position <= m_recipients.count())
        to.name = m_recipients.at(position).name;
    m_filler.fill(m_SMTP, bodies, to);
    return {};
}

tl::expected<QByteArray, QString> TrialMessage::compose(int position, const QString &address)
{
    return fill(position, address).and_then([this] { return m_composer.compose(); });
}

tl::expected<ServerAddress, QString> TrialMessage::server() const
{
    const auto server = ServerAddress::parse(m_form.text(Control::txtServer));
    if (!server)
        return tl::unexpected(tr("'%1' is not a port number from 1 to 65535").arg(server.error()));
    if (server->host.isEmpty())
        return tl::unexpected(tr("no server is named"));
    return *server;
}

#include "account/Netrc.h"

#include "base/Files.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Netrc)
};

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

QChar unescaped(QChar c)
{
    switch (c.unicode()) {
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    default:
        return c;
    }
}

// Walks the tokens of the file.
class Tokens
{
public:
    explicit Tokens(QStringView text) : m_rest(text) {}

    /// A token that must be one of the words of the format; comments before it are left out.
    std::optional<QString> keyword()
    {
        skipBlanks();
        while (m_rest.startsWith(u'#')) {
            skipPast(u"\n");
            skipBlanks();
        }
        return token();
    }

    /// The value behind a keyword; nothing at the end, and when a quote is never closed.
    std::optional<QString> token()
    {
        skipBlanks();
        if (m_rest.isEmpty())
            return {};
        if (m_rest.startsWith(u'"'))
            return quoted();
        qsizetype length = 0;
        while (length < m_rest.size() && !isBlank(m_rest[length]))
            ++length;
        QString text = m_rest.first(length).toString();
        m_rest = m_rest.sliced(length);
        return text;
    }

    /// A macro ends at the first empty line.
    void skipMacro() { skipPast(u"\n\n"); }

private:
    void skipBlanks()
    {
        while (!m_rest.isEmpty() && isBlank(m_rest.front()))
            m_rest = m_rest.sliced(1);
    }

    void skipPast(QStringView mark)
    {
        const qsizetype found = m_rest.indexOf(mark);
        m_rest = found < 0 ? QStringView() : m_rest.sliced(found + mark.size());
    }

    std::optional<QString> quoted()
    {
        QString text;
        for (qsizetype i = 1; i < m_rest.size(); ++i) {
            if (m_rest[i] == u'"') {
                m_rest = m_rest.sliced(i + 1);
                return text;
            }
            const bool escapes = m_rest[i] == u'\\' && i + 1 < m_rest.size();
            text += escapes ? unescaped(m_rest[++i]) : m_rest[i];
        }
        m_rest = {};
        return {};
    }

    QStringView m_rest;
};

bool isOpenToOthers(const QFileInfo &file)
{
    constexpr QFile::Permissions Others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    return (file.permissions() & Others) != QFile::Permissions();
}

} // namespace

QList<NetrcEntry> netrcEntries(const QString &content)
{
    QString text = content;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QList<NetrcEntry> entries;
    Tokens tokens(text);
    while (const auto word = tokens.keyword()) {
        if (*word == QLatin1String("macdef")) {
            tokens.skipMacro();
            continue;
        }
        if (*word == QLatin1String("default")) {
            entries.append(NetrcEntry());
            continue;
        }
        const auto value = tokens.token();
        if (!value)
            break;
        if (*word == QLatin1String("machine"))
            entries.append({*value, {}, {}});
        else if (*word == QLatin1String("login") && !entries.isEmpty())
            entries.back().login = *value;
        else if (*word == QLatin1String("password") && !entries.isEmpty())
            entries.back().password = *value;
        else if (*word != QLatin1String("account"))
            break;
    }
    return entries;
}

std::optional<NetrcEntry> netrcEntryFor(const QList<NetrcEntry> &entries, const QString &host,
                                        const QString &user)
{
    for (const NetrcEntry &entry : entries) {
        if (entry.machine && entry.machine->compare(host, Qt::CaseInsensitive) != 0)
            continue;
        if (entry.login.isEmpty() || entry.password.isEmpty())
            continue;
        if (user.isEmpty() || entry.login == user)
            return entry;
    }
    return {};
}

tl::expected<QList<NetrcEntry>, QString> readNetrc(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return {};
    if (file.isFile() && isOpenToOthers(file)) {
        return tl::unexpected(Texts::tr("%1 can be read or changed by others; the passwords in it "
                                        "are not used. Let nobody but its owner have access to it.")
                                  .arg(path));
    }
    const auto content = readWholeFile(path);
    if (!content)
        return tl::unexpected(content.error().toText());
    return netrcEntries(QString::fromUtf8(*content));
}

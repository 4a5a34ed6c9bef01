#include "smtp/client/InlineFiles.h"

#include <QUuid>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView Scheme = u"cid:";

/// The characters of our own content identifiers.
bool isOfIdentifier(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'@';
}

} // namespace

QString InlineFiles::add(const QString &path)
{
    if (std::exchange(m_isOld, false))
        m_files.clear();
    auto part = FilePart::read(path, "inline"_qba);
    if (!part)
        return {};
    const QByteArray id = QUuid::createUuid().toByteArray(QUuid::Id128) + "@sorvanta";
    part->headers += "Content-ID: <" + id + ">\r\n";
    m_files += File{id, *std::move(part)};
    return Scheme.toString() + QString::fromLatin1(id);
}

QList<InlineFiles::File> InlineFiles::usedIn(const QString &html) const
{
    QList<bool> isUsed(m_files.size());
    // One pass over the HTML, however many files there are.
    const QStringView all(html);
    qsizetype at = m_files.isEmpty() ? -1 : all.indexOf(Scheme);
    for (; at >= 0; at = all.indexOf(Scheme, at)) {
        at += Scheme.size();
        const auto *end = std::find_if_not(all.begin() + at, all.end(), isOfIdentifier);
        const QByteArray id = all.sliced(at, end - (all.begin() + at)).toLatin1();
        for (qsizetype i = 0; i < m_files.size(); ++i)
            isUsed[i] = isUsed[i] || m_files[i].contentId == id;
    }
    QList<File> used;
    for (qsizetype i = 0; i < m_files.size(); ++i) {
        if (isUsed[i])
            used += m_files[i];
    }
    return used;
}

#include "base/CodePage.h"

#include <QLocale>
#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr QByteArrayView ByteOrderMark = "\xEF\xBB\xBF";

bool isAscii(QByteArrayView bytes)
{
    return std::none_of(bytes.begin(), bytes.end(),
                        [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
}

QByteArray nameFor(QLocale::Language language, QLocale::Script script)
{
    switch (language) {
    case QLocale::Polish:
    case QLocale::Czech:
    case QLocale::Slovak:
    case QLocale::Hungarian:
    case QLocale::Slovenian:
    case QLocale::Croatian:
    case QLocale::Romanian:
    case QLocale::Albanian:
        return "windows-1250";
    case QLocale::Serbian:
    case QLocale::Bosnian:
        return script == QLocale::LatinScript ? "windows-1250" : "windows-1251";
    case QLocale::Russian:
    case QLocale::Ukrainian:
    case QLocale::Belarusian:
    case QLocale::Bulgarian:
    case QLocale::Macedonian:
        return "windows-1251";
    case QLocale::Greek:
        return "windows-1253";
    case QLocale::Turkish:
        return "windows-1254";
    case QLocale::Hebrew:
        return "windows-1255";
    case QLocale::Arabic:
    case QLocale::Persian:
    case QLocale::Urdu:
        return "windows-1256";
    case QLocale::Estonian:
    case QLocale::Latvian:
    case QLocale::Lithuanian:
        return "windows-1257";
    case QLocale::Vietnamese:
        return "windows-1258";
    default:
        return "windows-1252";
    }
}

} // namespace

bool readsAsUtf8(QByteArrayView bytes)
{
    if (bytes.startsWith(ByteOrderMark))
        return true;
    return !isAscii(bytes) && bytes.isValidUtf8();
}

bool isBrokenUtf8(QByteArrayView bytes)
{
    return bytes.startsWith(ByteOrderMark) && !bytes.isValidUtf8();
}

CodePage::CodePage(const QByteArray &name) : m_name(name)
{
    if (!QStringDecoder(m_name.constData()).isValid())
        m_name = "windows-1252";
    for (int i = 0; i < static_cast<int>(m_toUnicode.size()); ++i) {
        const char byte = static_cast<char>(FirstHigh + i);
        // A fresh decoder for each byte: an error of one must not colour the next.
        QStringDecoder decoder(m_name.constData());
        const QString text = decoder(QByteArrayView(&byte, 1));
        // A byte without a character stands for the control character of its number, so that
        // every file reads as some text and that text writes as the same bytes.
        const bool known = text.size() == 1 && text[0] != QChar::ReplacementCharacter;
        m_toUnicode[i] = known ? text[0].unicode() : static_cast<char16_t>(FirstHigh + i);
    }
    for (int i = 0; i < static_cast<int>(m_toUnicode.size()); ++i)
        m_fromUnicode.insert(m_toUnicode[i], static_cast<char>(FirstHigh + i));
}

CodePage CodePage::ofSystem()
{
    const QLocale locale = QLocale::system();
    return CodePage(nameFor(locale.language(), locale.script()));
}

QByteArray CodePage::encode(const QString &text) const
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *out = bytes.data();
    for (const QChar character : text) {
        if (character.unicode() < FirstHigh) {
            *out++ = static_cast<char>(character.unicode());
            continue;
        }
        const auto found = m_fromUnicode.constFind(character.unicode());
        if (found == m_fromUnicode.constEnd()) {
            bytes.clear();
            break;
        }
        *out++ = found.value();
    }
    if (bytes.size() == text.size() && !readsAsUtf8(bytes))
        return bytes;
    // A text that begins with the mark gets a second one, because reading drops the first.
    const bool beginsWithMark = text.startsWith(QChar(QChar::ByteOrderMark));
    return (beginsWithMark ? ByteOrderMark.toByteArray() : QByteArray()) + text.toUtf8();
}

QString CodePage::decode(QByteArrayView bytes) const
{
    if (readsAsUtf8(bytes))
        return QString::fromUtf8(bytes); // drops the mark
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [this](char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return QChar(value < FirstHigh ? static_cast<char16_t>(value)
                                       : m_toUnicode[value - FirstHigh]);
    });
    return text;
}

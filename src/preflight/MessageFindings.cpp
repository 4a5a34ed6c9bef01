#include "preflight/MessageFindings.h"

#include "base/Files.h"
#include "base/modMain.h"
#include "message/LinkedFiles.h"
#include "preflight/CappedFindings.h"
#include "preflight/HtmlWords.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>

#include <optional>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Preflight)
};

using Kind = Finding::Kind;

// One of the two messages, as far as it can be read.
std::optional<QString> readMessage(const Form &form, Control box, const MessageReader &reader,
                                   QList<Finding> &findings)
{
    const bool isHtml = box == Control::txtHTML;
    const QString path = form.tag(box);
    // As a run loads them: the text message goes by its path, the HTML message by its shown text;
    // but a file that is named has to exist.
    const bool isLoaded = isHtml ? !form.text(box).isEmpty() : !path.isEmpty();
    if (!isLoaded && (path.isEmpty() || isExistingFile(path)))
        return std::nullopt;
    const auto content = reader.read(path, isHtml ? MessageKind::Html : MessageKind::Text);
    if (content)
        return isLoaded ? std::optional(*content) : std::nullopt;
    findings.append({Kind::Refused,
                     Texts::tr("The message file cannot be read: %1").arg(content.error().toText()),
                     box});
    return std::nullopt;
}

// Spellings of the place for the name that are none.
QStringList misspeltPlaces(const QString &content)
{
    static const QRegularExpression anyCase(QStringLiteral("\\*nome\\*"),
                                            QRegularExpression::CaseInsensitiveOption);
    QStringList found;
    for (auto matches = anyCase.globalMatch(content); matches.hasNext();) {
        const QString place = matches.next().captured();
        if (place != QLatin1String("*NOME*") && !found.contains(place))
            found += place;
    }
    return found;
}

void lookAtPlaces(const QString &content, Control box, MessageLook &look)
{
    look.usesNames = look.usesNames || content.contains(QLatin1String("*NOME*"));
    for (const QString &place : misspeltPlaces(content)) {
        look.findings.append({Kind::Advice,
                              Texts::tr("The message says \"%1\", which stays as it is: the name "
                                        "is put in the place of \"*NOME*\" only.")
                                  .arg(place),
                              box});
    }
}

void lookAtHtml(const QString &html, bool hasText, QList<Finding> &findings)
{
    // Spam filters begin to count a message as a mere picture below this.
    constexpr qsizetype FewCharacters = 400;
    const QString words = wordsOfHtml(html);
    const bool picture = hasPicture(html);
    const auto advise = [&findings](Control box, const QString &text) {
        findings.append({Kind::Advice, text, box});
    };
    if (words.isEmpty() && !picture) {
        advise(Control::txtHTML, Texts::tr("The HTML message is empty."));
    } else if (words.size() < FewCharacters && picture) {
        advise(Control::txtHTML, Texts::tr("The HTML message has a picture and few words; spam "
                                           "filters hold that against it."));
    }
    if (!hasText) {
        advise(Control::txtEmail,
               Texts::tr("The HTML message has no text message beside it: who sees no HTML gets "
                         "nothing to read, and spam filters hold that against it."));
    }
}

} // namespace

MessageLook lookAtMessage(const Form &form, const Attachments &attachments,
                          const MessageReader &reader)
{
    MessageLook look;
    const auto text = readMessage(form, Control::txtEmail, reader, look.findings);
    const auto html = readMessage(form, Control::txtHTML, reader, look.findings);
    if (text) {
        lookAtPlaces(*text, Control::txtEmail, look);
        if (text->trimmed().isEmpty()) {
            look.findings.append(
                {Kind::Advice, Texts::tr("The text message is empty."), Control::txtEmail});
        }
    }
    if (html) {
        lookAtPlaces(*html, Control::txtHTML, look);
        lookAtHtml(*html, !form.tag(Control::txtEmail).isEmpty(), look.findings);
    }
    for (const QString &path : attachments.paths()) {
        if (const auto readable = checkReadable(path); !readable) {
            look.findings.append(
                {Kind::Fails,
                 Texts::tr("The attachment cannot be read: %1").arg(readable.error().toText()),
                 Control::lstAllegati});
        }
    }
    return look;
}

QList<Finding> findingsInPictures(const Form &form, const QString &htmlToSend)
{
    // Resume asks nothing.
    const Kind kindOfMissing = form.runState() == RunState::Idle ? Kind::Asked : Kind::Advice;
    const QString folder = FolderOf(form.tag(Control::txtHTML));
    const QString lower = lowerCaseInPlace(htmlToSend);
    CappedFindings missing;
    CappedFindings unusable;
    QSet<QString> seen;
    for (auto link = findLink(lower, 0).link; link; link = findLink(lower, link->start + 1).link) {
        const QString name = htmlToSend.sliced(link->start, link->length);
        if (name.startsWith(QLatin1String("cid:")) || seen.contains(name))
            continue;
        seen.insert(name);
        if (findLinkedFile(folder, name).isEmpty()) {
            if (missing.takesNext()) {
                missing.add({kindOfMissing,
                             Texts::tr("The picture \"%1\" is not sent with the message: it is not "
                                       "in the folder of the HTML file.")
                                 .arg(name),
                             Control::txtHTML});
            }
        } else if (unusable.takesNext()) {
            unusable.add({Kind::Advice,
                          Texts::tr("The picture \"%1\" is not sent with the message: it cannot be "
                                    "read, or it is in a subfolder.")
                              .arg(name),
                          Control::txtHTML});
        }
    }
    const QString more = Texts::tr("%1 more pictures are not sent with the message.");
    return missing.all(more) + unusable.all(more);
}

// The words of HTML texts: no tag is one, and words are the words of themselves.

#include "Fuzzing.h"
#include "preflight/HtmlWords.h"

void fuzz(QByteArrayView bytes)
{
    const QString html = QString::fromUtf8(bytes);
    const QString words = wordsOfHtml(html);
    mustHold(words == words.simplified(), "single blanks part the words");
    mustHold(!words.contains(u'<'), "no tag is left");
    mustHold(words.size() <= html.size(), "nothing is added");
    mustHold(wordsOfHtml(words) == words, "words are the words of themselves");
    mustHold(wordsOfHtml(QLatin1String("<b>") + words + QLatin1String("</b>")) == words,
             "a tag changes no word");
    mustHold(!hasPicture(words), "words are no picture");
}

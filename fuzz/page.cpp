// HTML pages: whatever the text, there is a page before long or none, and what is shown of it stays
// within it.

#include "Fuzzing.h"
#include "ui/HtmlPage.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

namespace {

constexpr QSize Viewport(400, 300);
constexpr std::chrono::milliseconds Patience(500);

/// The fonts want an application, as on a desktop without a screen.
void makeApplication()
{
    static int count = 1;
    static char name[] = "fuzz_page";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(count, arguments);
}

void check(HtmlPage &page)
{
    const QSize size = page.size();
    mustHold(size.width() >= 0 && size.height() >= 0, "a page has a size");
    const QString text = page.plainText();
    mustHold(text.isValidUtf16() && text == text.trimmed(), "what it says is text");
    mustHold(!text.contains(u"\n\n"), "no line is empty");
    QImage image(Viewport, QImage::Format_RGB32);
    QPainter painter(&image);
    page.draw(painter, {}, image.rect());
    static_cast<void>(page.linkAt(image.rect().center()));
    if (page.layOut(Viewport / 2)) {
        mustHold(page.size().width() >= 0 && page.size().height() >= 0, "a page keeps a size");
        mustHold(page.plainText() == text, "in a narrower window it says the same");
    }
}

} // namespace

// What the fonts keep is not ours. The name is the sanitizer's.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig";
}

void fuzz(QByteArrayView bytes)
{
    makeApplication();
    static const QTemporaryDir folder;
    if (const auto page =
            HtmlPage::make(QString::fromUtf8(bytes), folder.path(), Viewport, Patience))
        check(*page);
}

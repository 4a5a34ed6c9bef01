#include "TestHtmlView.h"

#include "support/DiskFiles.h"
#include "ui/HtmlView.h"

#include <QAction>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb Red = qRgb(255, 0, 0);
constexpr QRgb White = qRgb(255, 255, 255);

const QString NoMargin = u"<body style='margin:0'>"_s;

QByteArray pngOf(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    image.setColorTable({Red, White});
    image.fill(format == QImage::Format_Mono ? 0U : Red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, "PNG"))
        QTest::qFail("the picture cannot be written", __FILE__, __LINE__);
    return bytes;
}

// A view with room for 400 x 300 pixels of the page.
class View : public HtmlView
{
public:
    explicit View(const QString &html, const QString &folder = {})
    {
        setFrameShape(QFrame::NoFrame);
        resize(400 + verticalScrollBar()->sizeHint().width(), 300);
        // No machine is too slow for a text that comes to an end.
        setPatience(std::chrono::hours(1));
        show();
        setHtml(html, folder);
    }

    [[nodiscard]] QImage picture() { return viewport()->grab().toImage(); }
    [[nodiscard]] QRgb colorAt(int x, int y) { return picture().pixel(x, y); }
    [[nodiscard]] bool shows(QRgb color)
    {
        const QImage seen = picture();
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                if (seen.pixel(x, y) == color)
                    return true;
            }
        }
        return false;
    }
};

QString repeated(const QString &text, int times)
{
    return QString(text).repeated(times);
}

QString paragraphs(int count)
{
    return repeated(u"<p>spring has come to the hills, and the lambs are out</p>"_s, count);
}

} // namespace

void TestHtmlView::pictureInTheFolderIsShown_data()
{
    QTest::addColumn<QString>("link");
    QTest::newRow("beside the text") << u"red.png"_s;
    QTest::newRow("other letter case") << u"RED.PNG"_s;
    QTest::newRow("in a folder below") << u"img/below.png"_s;
    QTest::newRow("after a backslash") << u"img\\below.png"_s;
}

void TestHtmlView::pictureInTheFolderIsShown()
{
    QFETCH(const QString, link);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"img"_s));
    writeFile(folder.filePath(u"red.png"_s), pngOf({40, 30}));
    writeFile(folder.filePath(u"img/below.png"_s), pngOf({40, 30}));
    View view(NoMargin + u"<img src='"_s + link + u"'>"_s, folder.path());
    QCOMPARE(view.colorAt(0, 0), Red);
    QCOMPARE(view.colorAt(39, 29), Red);
    QCOMPARE(view.colorAt(40, 29), White);
}

void TestHtmlView::pictureFromElsewhereIsNotShown_data()
{
    QTest::addColumn<QString>("link"); // %1: the folder above
    QTest::newRow("missing") << u"missing.png"_s;
    QTest::newRow("above") << u"../red.png"_s;
    QTest::newRow("above, with a backslash") << u"..\\red.png"_s;
    QTest::newRow("absolute") << u"%1/red.png"_s;
    QTest::newRow("absolute, and as if below") << u"/red.png"_s;
    QTest::newRow("of another machine") << u"//host/red.png"_s;
    QTest::newRow("file URL") << u"file://%1/red.png"_s;
    QTest::newRow("web") << u"http://host/red.png"_s;
    QTest::newRow("secure web") << u"HTTPS://host/red.png"_s;
    QTest::newRow("resource") << u"qrc:/red.png"_s;
    QTest::newRow("part of the message") << u"cid:red.png"_s;
    QTest::newRow("no picture") << u"text.png"_s;
    QTest::newRow("drawing that may read files") << u"red.svg"_s;
    QTest::newRow("folder") << u"host"_s;
    QTest::newRow("none") << QString();
}

// What the links name is there, in folders of such names even, so that only the rules keep it out.
void TestHtmlView::pictureFromElsewhereIsNotShown()
{
    QFETCH(const QString, link);
    const QTemporaryDir above;
    const QDir folder(above.filePath(u"folder"_s));
    for (const QString &path : {u"host"_s, u"http:/host"_s, u"HTTPS:/host"_s, u"qrc:"_s}) {
        QVERIFY(folder.mkpath(path));
        writeFile(folder.filePath(path + u"/red.png"_s), pngOf({40, 30}));
    }
    writeFile(folder.filePath(u"red.png"_s), pngOf({40, 30}));
    writeFile(folder.filePath(u"cid:red.png"_s), pngOf({40, 30}));
    writeFile(above.filePath(u"red.png"_s), pngOf({40, 30}));
    writeFile(folder.filePath(u"text.png"_s), "no picture");
    writeFile(folder.filePath(u"red.svg"_s),
              "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30'>"
              "<rect width='40' height='30' fill='#ff0000'/></svg>");
    const QString address = QString(link).replace(u"%1"_s, above.path());
    View view(u"<img src='%1' alt='instead'><p style='background:url(%1)'>text"_s.arg(address),
              folder.path());
    QVERIFY(!view.shows(Red));
    QCOMPARE(view.plainText(), u"text"_s);
}

void TestHtmlView::pictureInsideTheTextIsShown()
{
    const QString bytes = QString::fromLatin1(pngOf({40, 30}).toBase64());
    View view(NoMargin + u"<img src='data:image/png;base64,"_s + bytes + u"'>"_s);
    QCOMPARE(view.colorAt(39, 29), Red);
}

void TestHtmlView::pictureTooLargeToDecodeIsLeftOut()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"a.png"_s), pngOf({8100, 8000}, QImage::Format_Mono));
    View view(NoMargin + u"<img src='a.png' width=40 height=30>"_s, folder.path());
    QVERIFY(!view.shows(Red));
}

void TestHtmlView::largePictureKeepsItsSize()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"a.png"_s), pngOf({3000, 2000}));
    View view(NoMargin + u"<img src='a.png'>"_s, folder.path());
    QCOMPARE(view.horizontalScrollBar()->maximum(), 2600);
    QCOMPARE(view.colorAt(399, 299), Red);
}

void TestHtmlView::textStandsForAMissingPicture()
{
    View without(NoMargin + u"<img src='a.png' width=100 height=40>"_s);
    View with(NoMargin + u"<img src='a.png' width=100 height=40 alt='A dog'>"_s);
    QVERIFY(with.picture() != without.picture());
    View natural(NoMargin + u"<img src='a.png' alt='A dog'>"_s);
    QVERIFY(natural.colorAt(0, 0) != White);
}

void TestHtmlView::pictureIsRepeatedBehindABox()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"red.png"_s), pngOf({7, 7}));
    const QString box =
        NoMargin + u"<div style='width:100px;height:50px;background:url(red.png) "_s;
    View all(box + u"repeat'></div>"_s, folder.path());
    QCOMPARE(all.colorAt(99, 49), Red);
    QCOMPARE(all.colorAt(100, 49), White);
    View row(box + u"repeat-x'></div>"_s, folder.path());
    QCOMPARE(row.colorAt(99, 6), Red);
    QCOMPARE(row.colorAt(99, 7), White);
    View one(box + u"no-repeat'></div>"_s, folder.path());
    QCOMPARE(one.colorAt(6, 6), Red);
    QCOMPARE(one.colorAt(7, 6), White);
}

void TestHtmlView::styleSheetOfTheFolderIsRead_data()
{
    QTest::addColumn<QString>("head");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("linked") << u"<link rel=stylesheet href='css/a.css'>"_s << true;
    QTest::newRow("imported") << u"<style>@import url(css/a.css);</style>"_s << true;
    QTest::newRow("above") << u"<link rel=stylesheet href='../above.css'>"_s << false;
    QTest::newRow("web") << u"<link rel=stylesheet href='http://host/a.css'>"_s << false;
    QTest::newRow("missing") << u"<link rel=stylesheet href='b.css'>"_s << false;
    QTest::newRow("other medium") << u"<link rel=stylesheet media=print href='css/a.css'>"_s
                                  << false;
}

void TestHtmlView::styleSheetOfTheFolderIsRead()
{
    QFETCH(const QString, head);
    QFETCH(const bool, isRead);
    const QTemporaryDir above;
    const QDir folder(above.filePath(u"folder"_s));
    QVERIFY(folder.mkpath(u"css"_s));
    writeFile(above.filePath(u"above.css"_s), "p { background: #ff0000 }");
    writeFile(folder.filePath(u"css/a.css"_s), "p { background: url(red.png) }");
    writeFile(folder.filePath(u"css/red.png"_s), pngOf({5, 5}));
    View view(head + u"<p>text"_s, folder.path());
    QCOMPARE(view.shows(Red), isRead);
}

void TestHtmlView::styleSheetThatImportsItselfIsReadOnce()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"a.css"_s), "@import url(a.css); p { background: #ff0000 }");
    View view(u"<link rel=stylesheet href=a.css><p>text"_s, folder.path());
    QVERIFY(view.shows(Red));
}

void TestHtmlView::boxIsPaintedAtItsPlace()
{
    View view(NoMargin + u"<div style='padding:20px 0 0 30px'><div style='width:50px;height:40px;"
                         "background:#ff0000;border:5px solid #0000ff'></div>"_s);
    QCOMPARE(view.colorAt(29, 40), White);
    QCOMPARE(view.colorAt(30, 40), qRgb(0, 0, 255));
    QCOMPARE(view.colorAt(35, 25), Red);
    QCOMPARE(view.colorAt(84, 64), Red);
    QCOMPARE(view.colorAt(89, 69), qRgb(0, 0, 255));
    QCOMPARE(view.colorAt(90, 40), White);
}

void TestHtmlView::roundCornerLetsThePageThrough()
{
    View view(NoMargin + u"<div style='width:100px;height:80px;background:#ff0000;"
                         "border-radius:20px'></div>"_s);
    QCOMPARE(view.colorAt(1, 1), White);
    QCOMPARE(view.colorAt(50, 1), Red);
    QCOMPARE(view.colorAt(50, 40), Red);
}

void TestHtmlView::pageIsBlackOnWhiteOnADarkDesktop()
{
    View view(u"<p>text</p>"_s);
    QPalette dark(QColor(30, 30, 30));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    view.setPalette(dark);
    QCOMPARE(view.colorAt(0, 0), White);
    QCOMPARE(view.colorAt(399, 299), White);
    const QImage seen = view.picture();
    int darkest = 255;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x)
            darkest = std::min(darkest, qGray(seen.pixel(x, y)));
    }
    QVERIFY2(darkest < 40, qPrintable(QString::number(darkest)));
}

void TestHtmlView::tableIsCentredByWhatStandsAround_data()
{
    QTest::addColumn<QString>("around");
    QTest::addColumn<bool>("isCentred");
    QTest::newRow("cell") << u"<table width=400 cellpadding=0 cellspacing=0><tr><td align=center>"_s
                          << true;
    QTest::newRow("center") << u"<center><div>"_s << true;
    QTest::newRow("division") << u"<div align=CENTER>"_s << true;
    QTest::newRow("nearer division") << u"<center><div align=left>"_s << false;
    QTest::newRow("outside of a table") << u"<center><table width=400 cellpadding=0 "
                                           "cellspacing=0><tr><td>"_s
                                        << false;
}

void TestHtmlView::tableIsCentredByWhatStandsAround()
{
    QFETCH(const QString, around);
    QFETCH(const bool, isCentred);
    View view(NoMargin + around +
              u"<table width=100 cellspacing=0 bgcolor=#ff0000><tr><td>text</table>"_s);
    QCOMPARE(view.colorAt(1, 2) != Red, isCentred);
    QCOMPARE(view.colorAt(151, 2) == Red, isCentred);
}

void TestHtmlView::plainText_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("words") << u"Grüße  aus\nPerù"_s << u"Grüße aus Perù"_s;
    QTest::newRow("blocks") << u"<h1>a</h1><p>b</p>c<div>d</div>"_s << u"a\nb\nc\nd"_s;
    QTest::newRow("line break") << u"a<br>b<br><br>c"_s << u"a\nb\nc"_s;
    QTest::newRow("in one line") << u"a<b>b</b> <i>c</i><span>d</span>"_s << u"ab cd"_s;
    QTest::newRow("cells") << u"<table><tr><td>a<td>b<tr><td>c<td>d</table>"_s << u"a\tb\nc\td"_s;
    QTest::newRow("list") << u"<ul><li>a<li>b</ul>"_s << u"a\nb"_s;
    QTest::newRow("entities") << u"&lt;&amp;&eacute;&#8364;"_s << u"<&é€"_s;
    QTest::newRow("as it stands") << u"<pre>a  b\nc</pre>"_s << u"a  b\nc"_s;
    QTest::newRow("script") << u"<script>document.write('x')</script>a<noscript>b</noscript>"_s
                            << u"a"_s;
    QTest::newRow("script that is run when a picture fails")
        << u"<img src=x onerror=\"document.body.innerHTML='x'\">a"_s << u"a"_s;
    QTest::newRow("title and style") << u"<title>t</title><style>p{color:red}</style>a"_s << u"a"_s;
    QTest::newRow("comment") << u"a<!-- x -->b"_s << u"ab"_s;
    QTest::newRow("hidden") << u"a<div style='display:none'>x</div>b"_s << u"ab"_s;
    QTest::newRow("frame") << u"a<iframe src='x.html'>x</iframe>b"_s << u"ab"_s;
    QTest::newRow("ideographs") << u"日本語 テキスト"_s << u"日本語 テキスト"_s;
    QTest::newRow("long word") << QString(1000, u'x') << QString(1000, u'x');
    QTest::newRow("long word of pairs") << repeated(u"😀"_s, 301) << repeated(u"😀"_s, 301);
}

void TestHtmlView::plainText()
{
    QFETCH(const QString, html);
    QFETCH(const QString, text);
    const View view(html);
    QCOMPARE(view.plainText(), text);
}

void TestHtmlView::copyTakesTheWholeText()
{
    View view(u"<p>one</p><p>two</p>"_s);
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    QGuiApplication::clipboard()->setText(u"before"_s);
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"one\ntwo"_s);
    QGuiApplication::clipboard()->clear();
    QCOMPARE(view.contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(view.actions().first()->text(), u"Copy as text"_s);
    view.actions().first()->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"one\ntwo"_s);
}

void TestHtmlView::textIsThereForScreenReaders()
{
    const View view(u"<p>one</p><p>two</p>"_s);
    QCOMPARE(view.accessibleDescription(), u"one\ntwo"_s);
}

void TestHtmlView::narrowerViewMakesALongerPage()
{
    View view(paragraphs(20));
    const int before = view.verticalScrollBar()->maximum();
    view.resize(view.width() / 2, view.height());
    QVERIFY(view.verticalScrollBar()->maximum() > before);
    view.resize(view.width() * 2, view.height());
    QCOMPARE(view.verticalScrollBar()->maximum(), before);
}

void TestHtmlView::widePageCanBeScrolledSideways()
{
    View view(NoMargin + u"<div style='width:1000px;height:50px;background:#ff0000'></div>text"_s);
    QCOMPARE(view.horizontalScrollBar()->maximum(), 600);
    QVERIFY(view.verticalScrollBar()->maximum() <= 0);
    view.horizontalScrollBar()->setValue(600);
    QCOMPARE(view.colorAt(399, 20), Red);
    View narrow(u"text"_s);
    QCOMPARE(narrow.horizontalScrollBar()->maximum(), 0);
}

void TestHtmlView::wheelScrolls()
{
    View view(paragraphs(40));
    const QImage before = view.picture();
    const QPointF place(50, 50);
    QWheelEvent event(place, view.viewport()->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &event);
    QVERIFY(view.verticalScrollBar()->value() > 0);
    QVERIFY(view.picture() != before);
}

void TestHtmlView::keysScroll()
{
    View view(paragraphs(60));
    const QScrollBar *bar = view.verticalScrollBar();
    const auto press = [&view](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&view, key, modifiers);
        return view.verticalScrollBar()->value();
    };
    const int step = press(Qt::Key_Down);
    QVERIFY(step > 0);
    QCOMPARE(press(Qt::Key_Up), 0);
    const int page = press(Qt::Key_PageDown);
    QVERIFY(page > step);
    QCOMPARE(press(Qt::Key_PageUp), 0);
    QCOMPARE(press(Qt::Key_Space), page);
    QCOMPARE(press(Qt::Key_Space, Qt::ShiftModifier), 0);
    QCOMPARE(press(Qt::Key_End), bar->maximum());
    QCOMPARE(press(Qt::Key_Home), 0);
}

void TestHtmlView::newTextBeginsAtTheTop()
{
    View view(paragraphs(60));
    view.verticalScrollBar()->setValue(100);
    view.setHtml(paragraphs(50), {});
    QCOMPARE(view.verticalScrollBar()->value(), 0);
}

void TestHtmlView::addressOfALinkIsTold()
{
    View view(NoMargin + u"<div style='height:400px'></div><a href='http://x.example/?a&amp;b'>"
                         "<b>here</b></a> text"_s);
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
    const int last = 300 - 10;
    QCOMPARE(view.linkAt({5, last}), u"http://x.example/?a&b"_s);
    QCOMPARE(view.linkAt({300, last}), QString());
    QCOMPARE(view.linkAt({5, 50}), QString());
    QTest::mouseMove(view.viewport(), {5, last});
    QCOMPARE(view.viewport()->toolTip(), u"http://x.example/?a&b"_s);
    QTest::mouseMove(view.viewport(), {300, last});
    QCOMPARE(view.viewport()->toolTip(), QString());
}

void TestHtmlView::deepNestingIsShownAsWritten_data()
{
    QTest::addColumn<QString>("html");
    for (const QString &tag : {u"div"_s, u"b"_s, u"span"_s, u"font"_s, u"ul"_s, u"blockquote"_s})
        QTest::newRow(qPrintable(tag)) << repeated(u'<' + tag + u'>', 10'000) + u"x"_s;
    QTest::newRow("closed") << repeated(u"<div>"_s, 10'000) + repeated(u"</div>"_s, 10'000);
    QTest::newRow("tables") << repeated(u"<table><tr><td>"_s, 10'000) + u"x"_s;
    QString reopened;
    for (int i = 0; i < 5'000; ++i)
        reopened += u"<b id=%1>"_s.arg(i);
    QTest::newRow("reopened in each block") << reopened + repeated(u"<p>x"_s, 10'000);
}

void TestHtmlView::deepNestingIsShownAsWritten()
{
    QFETCH(const QString, html);
    View view(html);
    QVERIFY(!view.isLaidOut());
    QCOMPARE(view.plainText(), html);
    QVERIFY(view.picture() != View(QString()).picture());
    // The next text is none the worse for it.
    view.setHtml(u"<p>text"_s, {});
    QVERIFY(view.isLaidOut());
    QCOMPARE(view.plainText(), u"text"_s);
}

void TestHtmlView::moderateNestingIsLaidOut_data()
{
    QTest::addColumn<QString>("html");
    for (const QString &tag : {u"div"_s, u"b"_s, u"span"_s, u"ul"_s})
        QTest::newRow(qPrintable(tag)) << repeated(u'<' + tag + u'>', 200) + u"x"_s;
    QTest::newRow("tables") << repeated(u"<table><tr><td>"_s, 7) + u"x"_s;
    QTest::newRow("paragraphs that are not closed") << repeated(u"<p>"_s, 2'000) + u"x"_s;
}

void TestHtmlView::moderateNestingIsLaidOut()
{
    QFETCH(const QString, html);
    View view(html);
    QVERIFY(view.isLaidOut());
    QCOMPARE(view.plainText(), u"x"_s);
    QVERIFY(!view.picture().isNull());
}

void TestHtmlView::textThatWouldTakeForEverIsShownAsWritten_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("each table lays out the next several times")
        << repeated(u"<table><tr><td>"_s, 40) + u"x"_s;
    QTest::newRow("each part of a selector tries every element around")
        << u"<style>.none "_s + repeated(u"div "_s, 30) + u"b { color: red }</style>"_s +
               repeated(u"<div>"_s, 150) + u"<b>x"_s;
    QTest::newRow("each attribute is compared to all") << [] {
        QString html = u"<p"_s;
        for (int i = 0; i < 150'000; ++i)
            html += u" a%1=1"_s.arg(i);
        return html + u">x"_s;
    }();
    QTest::newRow("too long") << repeated(u"<p>text</p>"_s, 200'000);
    QTest::newRow("too many elements") << repeated(u"<br>"_s, 200'000);
}

void TestHtmlView::textThatWouldTakeForEverIsShownAsWritten()
{
    QFETCH(const QString, html);
    HtmlView view;
    view.setHtml(html, {});
    QVERIFY(!view.isLaidOut());
    QCOMPARE(view.plainText(), html);
}

void TestHtmlView::trickIsHarmless_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("variable that is its own value")
        << u"<style>* { --a: var(--a); color: var(--a) }</style>"
           "<p style='--b: var(--b); color: var(--b)'>text"_s;
    QTest::newRow("selector without end")
        << u"<style>"_s + repeated(u"a "_s, 50'000) + u"{ color: red }</style>text"_s;
    QTest::newRow("blocks in blocks")
        << u"<style>"_s + repeated(u"@media screen {"_s, 10'000) + u"</style>text"_s;
    QTest::newRow("comments") << u"<style>"_s + repeated(u"/**/"_s, 60'000) + u"</style>text"_s;
    QTest::newRow("cells that span a million")
        << u"<table><tr><td colspan=1000000000 rowspan=1000000000>text</table>"_s;
    QTest::newRow("many cells that span many")
        << u"<table>"_s + repeated(u"<tr><td colspan=1000>"_s, 2'000) + u"text</table>"_s;
    QTest::newRow("box that is larger than any screen")
        << u"<div style='width:2000000000px;height:2000000000px;border:7px dashed red;"
           "border-radius:50px;background:green'>text</div>"_s;
    QTest::newRow("large letters") << u"<p style='font-size:99999999px'>text"_s;
    QTest::newRow("no letters") << u"<p style='font-size:-9px'>text"_s;
    QTest::newRow("item of a high number") << u"<ol start=2147483647 type=I><li>text</ol>"_s;
}

void TestHtmlView::trickIsHarmless()
{
    QFETCH(const QString, html);
    View view(html);
    QVERIFY(view.isLaidOut());
    QCOMPARE(view.plainText(), u"text"_s);
    QVERIFY(!view.picture().isNull());
}

void TestHtmlView::malformedTextIsShown_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("text");
    QTest::newRow("cut in a tag") << u"text<a hre"_s << u"text"_s;
    QTest::newRow("cut in an attribute") << u"text<a href=\"http://x"_s << u"text"_s;
    QTest::newRow("cut behind a bracket") << u"text<"_s << u"text<"_s;
    QTest::newRow("cut in an end tag") << u"<b>text</"_s << u"text</"_s;
    QTest::newRow("comment without an end") << u"text<!-- x"_s << u"text"_s;
    QTest::newRow("comment that is cut") << u"text<!-"_s << u"text"_s;
    QTest::newRow("style without an end") << u"text<style>p { color: "_s << u"text"_s;
    QTest::newRow("script without an end") << u"text<script>if (1 <"_s << u"text"_s;
    QTest::newRow("style sheet of brackets")
        << u"<style>}}{{@;@media{;:}</style>text"_s << u"text"_s;
    QTest::newRow("declaration of signs")
        << u"<p style=':;:;{}!important;color:;:red'>text"_s << u"text"_s;
    QTest::newRow("ends that nothing began")
        << u"</p></table></td></div></body></html>text"_s << u"text"_s;
    QTest::newRow("crossed") << u"<b><i>te</b>xt</i>"_s << u"text"_s;
    QTest::newRow("table without rows") << u"<table>text<td></table>"_s << u"text"_s;
    QTest::newRow("numbers that are none") << u"<table border=x cellpadding=%%><tr><td colspan=-1>"
                                              "text</table><img width=-5 height=a>"_s
                                           << u"text"_s;
    QTest::newRow("unpaired surrogate")
        << u"text<b title='"_s + QChar(0xD800) + u"'></b>"_s << u"text"_s;
    QTest::newRow("characters of no text")
        << u"text<b title='\x01\x02\x7F\xFFFF'></b>"_s << u"text"_s;
}

void TestHtmlView::malformedTextIsShown()
{
    QFETCH(const QString, html);
    View view(html);
    QVERIFY(view.isLaidOut());
    QTEST(view.plainText(), "text");
    QVERIFY(!view.picture().isNull());
}

void TestHtmlView::longLineShownAsWrittenIsBroken()
{
    View view(repeated(u"<div>"_s, 10'000));
    QVERIFY(!view.isLaidOut());
    QCOMPARE(view.horizontalScrollBar()->maximum(), 0);
    const int before = view.verticalScrollBar()->maximum();
    QVERIFY(before > 0);
    view.resize(view.width() / 2, view.height());
    QVERIFY(view.verticalScrollBar()->maximum() > before);
    QTest::keyClick(&view, Qt::Key_End);
    QVERIFY(view.picture() != View(QString()).picture());
}

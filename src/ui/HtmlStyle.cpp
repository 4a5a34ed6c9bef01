#include "ui/HtmlStyle.h"

const char *const HtmlStyle = R"css(
html { display: block; color: #000000; height: 100%; }
body { display: block; margin: 8px; }
head, title, meta, link, base, style, script, noscript, template, object, embed, applet, audio,
video, canvas, svg, math, map, area, datalist, param, source, iframe, frameset, noframes, input,
select, textarea, dialog { display: none; }

address, article, aside, blockquote, center, dd, details, dir, div, dl, dt, fieldset, figcaption,
figure, footer, form, h1, h2, h3, h4, h5, h6, header, hgroup, hr, legend, listing, main, menu, nav,
ol, optgroup, option, p, pre, search, section, summary, ul, xmp { display: block; }

p, dl, menu, dir, ul, ol { margin: 1em 0; }
ul ul, ul ol, ol ul, ol ol { margin: 0; }
blockquote, figure { margin: 1em 40px; }
dd { margin-left: 40px; }
ul, ol, menu, dir { padding-left: 40px; }
li { display: list-item; }
br, img { display: inline-block; }
ul, menu, dir { list-style-type: disc; }
ul ul, ol ul { list-style-type: circle; }
ul ul ul, ul ol ul, ol ul ul, ol ol ul { list-style-type: square; }
ol { list-style-type: decimal; }
ul[type="circle"] { list-style-type: circle; }
ul[type="disc"] { list-style-type: disc; }
ul[type="square"] { list-style-type: square; }

h1 { font-size: 2em; margin: 0.67em 0; }
h2 { font-size: 1.5em; margin: 0.83em 0; }
h3 { font-size: 1.17em; margin: 1em 0; }
h4 { margin: 1.33em 0; }
h5 { font-size: 0.83em; margin: 1.67em 0; }
h6 { font-size: 0.67em; margin: 2.33em 0; }
h1, h2, h3, h4, h5, h6, b, strong, th { font-weight: bold; }
i, em, cite, var, dfn, address { font-style: italic; }
u, ins { text-decoration: underline; }
s, strike, del { text-decoration: line-through; }
a[href] { color: #0000ee; text-decoration: underline; }
big { font-size: 1.2em; }
small { font-size: 0.83em; }
sub { display: inline-block; position: relative; top: 0.3em; font-size: 0.83em; }
sup { display: inline-block; position: relative; top: -0.4em; font-size: 0.83em; }
mark { background-color: #ffff00; color: #000000; }
tt, code, kbd, samp, pre, listing, xmp { font-family: monospace; font-size: 13px; }
pre, listing, xmp { white-space: pre; margin: 1em 0; }
nobr, td[nowrap], th[nowrap] { white-space: nowrap; }
center { text-align: center; }
hr { border: 1px inset #808080; margin: 0.5em auto; }
fieldset { border: 2px groove #c0c0c0; margin: 0 2px; padding: 0.35em 0.75em 0.6em 0.75em; }
button { display: inline-block; border: 1px solid #808080; padding: 1px 6px; text-align: center; }

table { display: table; border-collapse: separate; border-spacing: 2px; text-align: left;
    font-weight: normal; font-style: normal; }
caption { display: table-caption; text-align: center; }
thead { display: table-header-group; vertical-align: middle; }
tbody { display: table-row-group; vertical-align: middle; }
tfoot { display: table-footer-group; vertical-align: middle; }
col { display: table-column; }
colgroup { display: table-column-group; }
tr { display: table-row; vertical-align: inherit; }
td, th { display: table-cell; vertical-align: inherit; padding: 1px; }
th { text-align: center; }

h1[align="center"], h2[align="center"], h3[align="center"], h4[align="center"],
h5[align="center"], h6[align="center"] { text-align: center; }
h1[align="right"], h2[align="right"], h3[align="right"], h4[align="right"],
h5[align="right"], h6[align="right"] { text-align: right; }
img[align="left"] { float: left; }
img[align="right"] { float: right; }
img[align="middle"] { vertical-align: middle; }
img[align="top"] { vertical-align: top; }
br[clear="all"] { clear: both; }
)css";

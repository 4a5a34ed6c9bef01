#pragma once

/// How the elements of HTML look before a message's own styles.
extern const char *const HtmlStyle;

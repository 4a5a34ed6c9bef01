#pragma once

#include <QHash>
#include <QString>

#include <litehtml/litehtml.h>

#include <string_view>

class HtmlLimits;

/// What stands for the pictures that cannot be shown, by their links.
using PictureTexts = QHash<QString, QString>;

/// The element for a tag, which keeps within the limits; null when the library's own will do.
/// Pictures add their texts to `pictureTexts`.
[[nodiscard]] litehtml::element::ptr makeElement(std::string_view tag,
                                                 const litehtml::document::ptr &document,
                                                 HtmlLimits &limits, PictureTexts &pictureTexts);

#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

#include <string>

/// Whether an HTML text (UTF-8) grows into a tree that can be laid out: not nested so deeply that
/// the stack would not hold it, and without the tricks by which a short text fills the memory or
/// takes longer than until the deadline to be read.
[[nodiscard]] bool isOrdinaryHtml(const QByteArray &html, QDeadlineTimer deadline);

/// A style sheet without its comments and variables; empty when it is nothing that anybody would
/// write for a message, as one with blocks in blocks in blocks.
[[nodiscard]] std::string ordinaryStyleSheet(std::string_view css);
/// The same for the declarations in an element's own style attribute.
[[nodiscard]] std::string ordinaryDeclarations(std::string declarations);

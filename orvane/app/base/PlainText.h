#pragma once

#include <QString>

namespace orvane {

// Names of nodes and files come from anywhere. Qt takes a text that looks like HTML for HTML in labels, message boxes
// and tool tips, and for commands in menus and window titles. Each text that holds such a name goes through one of
// these on its way to the user.

/// The text in one line, with a visible sign for each control character and for what isn't valid Unicode.
[[nodiscard]] QString oneLine(const QString& text);
/// One line of at most `length` characters; what is cut out of the middle leaves an ellipsis. For places that grow with
/// their text or would take long to lay it out.
[[nodiscard]] QString shortLine(const QString& text, qsizetype length = 80);
/// A tool tip that shows the text as it is, in its lines; these are broken at 100 characters and end after 20.
[[nodiscard]] QString plainToolTip(const QString& text);
/// The text of a menu entry or a button, at most 80 characters, without marks for keys.
[[nodiscard]] QString menuText(const QString& text);
/// The text as a part of a window's title, at most 80 characters.
[[nodiscard]] QString titleText(const QString& text);

} // namespace orvane

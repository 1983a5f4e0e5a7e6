#pragma once

#include "orvane/app/look/Look.h"

#include <QIcon>
#include <QString>

#include <optional>

class QColor;
class QObject;
class QPainter;
class QRect;

/// The tool's own icons, drawings of lines on a square of 16 units (orvane/app/icons/symbols). They have the colour of
/// the text beside them, whatever the palette, and are drawn for the pixels of the screen.
namespace orvane::look {

/// The icon of that drawing, such as "undo". Its colour is that of the text of buttons, also of disabled ones; with a
/// tint it is the tint's colour for marks.
[[nodiscard]] QIcon symbol(const QString& name, std::optional<Tint> tint = {});
/// Paints a drawing in a colour.
void paintSymbol(QPainter& painter, const QString& name, const QRect& place, const QColor& color);

/// Gives the actions below `parent` the icons of what they do, by their object names; those without a drawing stay as
/// they are. So do the docks, which have theirs in tabs and as windows.
void setSymbols(const QObject& parent);

} // namespace orvane::look

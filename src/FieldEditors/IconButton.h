#pragma once

class QPixmap;
class QPushButton;
class QString;
class QWidget;

namespace orvane {

/// Makes a button that shows an icon only and grows to the metrics `buttonWidth` and `buttonHeight` at most; the parent
/// owns it.
[[nodiscard]] QPushButton* makeIconButton(QWidget* parent, const QString& name, const QPixmap& icon);

} // namespace orvane

#pragma once

class QHBoxLayout;
class QLineEdit;
class QWidget;

namespace orvane {

/// Adds the line named "lineEdit" that takes all the width of an edit area; the area owns it.
[[nodiscard]] QLineEdit* addEditLine(QWidget& area, QHBoxLayout& layout);

} // namespace orvane

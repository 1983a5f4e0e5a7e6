#pragma once

class DvMFieldWidget;
class QColor;

namespace orvane {

/// The colour of a row, from the texts of its components; not valid with a component outside 0 to 1. A row without a
/// fourth text is opaque.
[[nodiscard]] QColor rowColor(DvMFieldWidget* editor, int row);
/// Whether a row of the list has a component for opacity.
[[nodiscard]] bool hasOpacity(DvMFieldWidget* editor, int row);

} // namespace orvane

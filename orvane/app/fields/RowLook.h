#pragma once

#include <QColor>
#include <QVariant>

/// How the texts of rows of the field table look.
namespace orvane {

/// The colour of texts that are less important, on the background of a list.
[[nodiscard]] QColor quietTextColor();
/// A font with these properties; nothing for the font of the view, which then needs no resolving.
[[nodiscard]] QVariant rowFont(bool isBold, bool isStruckOut);

} // namespace orvane

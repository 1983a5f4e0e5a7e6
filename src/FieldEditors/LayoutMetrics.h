#pragma once

class QString;

/// A margin, spacing or size of the field editors by its name, in pixels (in points for a font); 0 for a name that
/// there is no metric of. Thread of the user interface only.
[[nodiscard]] int getLayoutMetric(const QString& name);

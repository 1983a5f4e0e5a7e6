#pragma once

class QLayout;
class QString;

/// A margin, spacing or size of the field editors by its name, in pixels (in points for a font); 0 for an unknown name.
/// Thread of the user interface only.
[[nodiscard]] int getLayoutMetric(const QString& name);

/// Gives a layout its spacing and the same margin on all sides, both by the names of their metrics.
void setLayoutMetrics(QLayout* layout, const QString& marginMetric, const QString& spacingMetric);

#pragma once

#include <QString>
#include <QStringList>

/// The name filters of the file dialogs. They follow from the table of formats.
namespace orvane {

/// Scenes and models that can be opened.
[[nodiscard]] QStringList openFilters();
/// Models that can be added to a scene.
[[nodiscard]] QStringList importFilters();
/// Scenes.
[[nodiscard]] QStringList saveFilters();
/// The formats that models can be written in, one filter each.
[[nodiscard]] QStringList exportFilters();

/// The extension of the files that one of `exportFilters` shows, without the dot.
[[nodiscard]] QString exportSuffix(const QString& filter);

} // namespace orvane

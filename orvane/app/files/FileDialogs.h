#pragma once

class QFileDialog;
class QWidget;
class SceneDocument;

/// The dialogs that choose files. Each starts in the folder of the open scene and deletes itself when it is closed.
namespace orvane {

[[nodiscard]] QFileDialog* makeOpenDialog(QWidget* window, const SceneDocument& document);
[[nodiscard]] QFileDialog* makeImportDialog(QWidget* window, const SceneDocument& document);
[[nodiscard]] QFileDialog* makeSaveDialog(QWidget* window, const SceneDocument& document);
[[nodiscard]] QFileDialog* makeCompareDialog(QWidget* window, const SceneDocument& document);
[[nodiscard]] QFileDialog* makeExportDialog(QWidget* window, const SceneDocument& document);

} // namespace orvane

#pragma once

#include <QString>
#include <QWidget>

class QCompleter;
class QFileDialog;
class QLineEdit;
class QStringListModel;
class QToolButton;

/// A line for the path of a file, which completes what is typed, with a button that opens a dialog. A file that is
/// dropped on it is taken.
///
/// Relative paths begin at a folder, that of the scene. User-interface thread only.
class PathEdit : public QWidget {
    Q_OBJECT

public:
    /// `folder` is empty for a scene that has no file yet.
    explicit PathEdit(QString folder, QWidget* parent = nullptr);

    [[nodiscard]] QLineEdit* line() const noexcept { return m_line; }
    /// Opens the dialog at the file that is named, or in its folder.
    void openDialog();
    [[nodiscard]] bool isDialogOpen() const noexcept { return m_dialog != nullptr; }

Q_SIGNALS:
    /// A file was chosen in the dialog or dropped. `path` is relative if the file and the folder are near each other.
    void chosen(const QString& path);
    /// The dialog has closed without a choice.
    void dialogClosed();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void complete(const QString& text);
    void take(const QString& fileName);

    QString m_folder;
    QLineEdit* m_line;
    QToolButton* m_button;
    QCompleter* m_completer;
    QStringListModel* m_completions;
    QFileDialog* m_dialog = nullptr;
};

namespace orvane {

/// The file that a path in a scene in `folder` names; absolute.
[[nodiscard]] QString namedFile(const QString& path, const QString& folder);
/// The path by which a scene in `folder` names a file.
[[nodiscard]] QString pathOfFile(const QString& fileName, const QString& folder);

} // namespace orvane

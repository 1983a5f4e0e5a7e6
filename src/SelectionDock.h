#pragma once

class NxTypedObject;
class OrvEditor;
class OrvExtension;
class QDockWidget;
class QString;

namespace orvane {

/// What the two extensions that follow a selection have in common: a dock widget that shows the best editor for the
/// selected object.
///
/// An object of this class works on the dock and the editor that the extension keeps as members of its own. The
/// extension owns the dock; the editor is another extension, which lives longer than the selection.
class SelectionDock final {
public:
    /// The three must live as long as this object. `dock` and `currentEditor` are null at first.
    SelectionDock(OrvExtension& extension, QDockWidget*& dock, OrvEditor*& currentEditor);

    /// Creates the dock, hidden and without a parent.
    void load(const QString& title);
    void unload();

    /// Adds the dock to the right area of the main window and announces the extension.
    void enterShell();
    /// The counterpart of `enterShell`.
    void leaveShell();

    /// Releases the current editor, even if it is chosen again, and shows the best one for the object. Without an
    /// object, or if no editor handles it, the dock stays hidden and empty.
    void show(NxTypedObject* object);
    /// Takes the current editor out of the dock, if there is one, and hides the extension. The editor's widget has no
    /// parent afterwards, so that the dock can't destroy it.
    void release();

private:
    [[nodiscard]] OrvEditor* bestEditor(const NxTypedObject& object) const;
    void takeOut(const OrvEditor& editor);
    /// The editor is null if it has deleted itself.
    void giveUp(const OrvEditor* editor);

    OrvExtension& m_extension;
    QDockWidget*& m_dock;
    OrvEditor*& m_currentEditor;
};

} // namespace orvane

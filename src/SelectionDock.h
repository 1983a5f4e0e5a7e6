#pragma once

class NxTypedObject;
class OrvEditor;
class OrvExtension;
class OrvProfileSetting;
class QDockWidget;
class QString;

// What the two docks that follow a selection have in common. Each is an extension of its own with a dock widget, which
// it owns, and a current editor, which is another extension and lives longer than the selection.
namespace orvane {

/// A hidden dock of that title, without a parent. The caller owns it.
[[nodiscard]] QDockWidget* makeSelectionDock(const QString& title);

/// Puts the dock into the right area of the main window and announces the extension.
void enterShell(OrvExtension& extension, QDockWidget* dock);
/// The counterpart of `enterShell`.
void leaveShell(OrvExtension& extension, QDockWidget* dock);

/// Of the controlled extensions, the editor whose handled type fits the object best: the most derived one; of several
/// that handle the same type, the last by address. Null when none fits.
[[nodiscard]] OrvEditor* findBestEditor(const OrvProfileSetting& setting, const NxTypedObject& object);

/// Takes the current editor, if there is one, out of the dock and hides the extension. The editor's widget has no
/// parent afterwards, so that the dock can't destroy it.
void releaseEditor(OrvExtension& extension, QDockWidget* dock, OrvEditor*& currentEditor);

/// Answers a selection: releases the current editor, be it the one that will be chosen again, and shows the best one
/// for the object. With none, or without an object, the dock stays hidden and empty.
void showEditor(OrvExtension& extension, QDockWidget* dock, OrvEditor*& currentEditor, NxTypedObject* object);

} // namespace orvane

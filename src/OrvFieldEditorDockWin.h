#pragma once

#include "SelectionDock.h"

#include "orvane/extender/OrvExtension.h"

class NxField;
class OrvEditor;
class QDockWidget;

/// Follows the selected field and shows the editor that fits it best in a dock on the right.
class OrvFieldEditorDockWin final : public OrvExtension {
    Q_OBJECT

public:
    OrvFieldEditorDockWin();
    ~OrvFieldEditorDockWin() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

private Q_SLOTS:
    void s_selectedFieldChanged(NxField* field);

private:
    // Made for each call: the extension has no other data than the dock and its editor.
    [[nodiscard]] orvane::SelectionDock selectionDock() { return {*this, m_dock, m_currentEditor}; }

    QDockWidget* m_dock = nullptr;
    OrvEditor* m_currentEditor = nullptr;
};

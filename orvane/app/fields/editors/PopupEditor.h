#pragma once

#include "orvane/app/fields/editors/CellEditor.h"

#include <functional>

class PopupFrame;

/// Edits a value in a popup. Everything until the popup closes is one step of the history; Escape takes it back.
///
/// An editor that is reached by Tab shows that the cell has the focus, and opens its popup by Return, Space, F2, the
/// arrow key down or a click. Tab goes on.
class PopupEditor : public CellEditor {
    Q_OBJECT

public:
    PopupEditor(const CellEdit& edit, QWidget* parent);

    /// Sets the popup, a child of this, before the editor is shown. `show` makes it show the present value.
    void setPopup(PopupFrame* popup, std::function<void(const NxField&)> show);
    void refresh() override;

    using CellEditor::edit;
    /// Writes each field by a function while the popup is open. What can't be written is said at the popup.
    void write(const std::function<bool(NxField&)>& function);
    /// Called when the popup is accepted, before the step ends. For popups that don't write at once.
    std::function<void()> onAccepted;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void open();
    void close(bool accepted);

    PopupFrame* m_popup = nullptr;
    std::function<void(const NxField&)> m_show;
    bool m_isOpen = false;
    bool m_isLive = false;
};

#pragma once

#include "orvane/app/fields/editors/CellEditor.h"

#include <functional>

/// Changes a value that needs no input, such as a flag. An editor that is opened by a key changes it at once; one that
/// is reached by Tab changes it by Space and Return, and Escape restores.
class ToggleEditor : public CellEditor {
    Q_OBJECT

public:
    ToggleEditor(const CellEdit& edit, std::function<void(const FieldSet&)> toggle, QWidget* parent);

    void refresh() override { }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void toggle();
    void conclude(bool keep);

    std::function<void(const FieldSet&)> m_toggle;
    bool m_isLive = false;
};

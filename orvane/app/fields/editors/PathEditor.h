#pragma once

#include "orvane/app/fields/editors/CellEditor.h"

class PathEdit;

/// Edits the path of a file in a line with completion, and in a dialog.
class PathEditor : public CellEditor {
    Q_OBJECT

public:
    PathEditor(const CellEdit& edit, QWidget* parent);

    void refresh() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] bool write();
    [[nodiscard]] bool handleKey(const QKeyEvent& event);
    void leave();

    PathEdit* m_path;
};

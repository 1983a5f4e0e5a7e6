#pragma once

#include "orvane/app/fields/editors/TextLineEditor.h"

class PathEdit;

/// Edits the path of a file in a line with completion, and in a dialog, which Alt+Down opens as well.
class PathEditor : public TextLineEditor {
    Q_OBJECT

public:
    PathEditor(const CellEdit& edit, QWidget* parent);

protected:
    [[nodiscard]] QString shownText(const NxField& field) const override;
    [[nodiscard]] QString formOf(const QString& text) const override;
    void leave() override;
    [[nodiscard]] bool handleKey(const QKeyEvent& event) override;

private:
    PathEdit* m_path;
};

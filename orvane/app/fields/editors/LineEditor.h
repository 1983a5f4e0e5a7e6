#pragma once

#include "orvane/app/fields/editors/TextLineEditor.h"

#include <functional>

/// Edits a value as a line of text.
class LineEditor : public TextLineEditor {
    Q_OBJECT

public:
    /// `shown` gives the text of a field, `formOf` its text form from what was typed.
    using Shown = std::function<QString(const NxField&)>;
    using FormOf = std::function<QString(const QString&)>;

    LineEditor(const CellEdit& edit, Shown shown, FormOf formOf, QWidget* parent);

protected:
    [[nodiscard]] QString shownText(const NxField& field) const override;
    [[nodiscard]] QString formOf(const QString& text) const override;

private:
    Shown m_shown;
    FormOf m_formOf;
};

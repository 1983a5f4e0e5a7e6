#pragma once

#include "orvane/app/fields/editors/CellEditor.h"

#include <QLineEdit>

#include <functional>

/// Edits a value as a line of text. Return, Tab and leaving write it, Escape restores; a text that can't be taken
/// stays, with the reason below it.
class LineEditor : public CellEditor {
    Q_OBJECT

public:
    /// `shown` gives the text of a field, `formOf` its text form from what was typed.
    using Shown = std::function<QString(const NxField&)>;
    using FormOf = std::function<QString(const QString&)>;

    LineEditor(const CellEdit& edit, Shown shown, FormOf formOf, QWidget* parent);

    void refresh() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// False when the text was refused.
    [[nodiscard]] bool write();
    void leave();
    [[nodiscard]] bool handleKey(const QKeyEvent& event);

    QLineEdit* m_line;
    Shown m_shown;
    FormOf m_formOf;
};

#pragma once

#include "orvane/app/fields/editors/CellEditor.h"

class QLineEdit;

/// The base of editors that write a value from a line of text.
///
/// Return, Tab and leaving write what is typed, Escape restores. A text that can't be taken stays, with the reason
/// below it. Where values differ, the line is empty and says so.
class TextLineEditor : public CellEditor {
    Q_OBJECT

public:
    void refresh() final;

protected:
    using CellEditor::CellEditor;

    /// To be called once by the constructor of the derived class, which has the line as a child.
    void setLine(QLineEdit* line);

    /// The text of a field that the line shows.
    [[nodiscard]] virtual QString shownText(const NxField& field) const = 0;
    /// The text form of the value that was typed.
    [[nodiscard]] virtual QString formOf(const QString& text) const = 0;
    /// Writes what was typed; false if it was refused.
    [[nodiscard]] bool write();
    /// The line has lost the focus, for good.
    virtual void leave();
    /// True if the key is done with.
    [[nodiscard]] virtual bool handleKey(const QKeyEvent& event);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QLineEdit* m_line = nullptr;
};

#pragma once

#include "orvane/app/fields/editors/CellEdit.h"
#include "orvane/app/fields/values/FieldSet.h"

#include <QWidget>

class FieldWriter;

/// The editor of one cell, or of one part of its value. It writes by itself, through the writer of the services.
///
/// The fields may vanish while it is open; then `fields` is empty, nothing is written any more, and the view closes the
/// editor.
class CellEditor : public QWidget {
    Q_OBJECT

public:
    /// What is edited after this.
    enum class Next { Nothing, Forward, Backward };

    CellEditor(const CellEdit& edit, QWidget* parent);

    [[nodiscard]] int part() const noexcept { return m_edit.part; }
    /// The fields of the cell, as the table has them now; while their edit is deferred, those with the pending values.
    [[nodiscard]] FieldSet fields() const;

    /// Shows the present value, unless the user is typing.
    virtual void refresh() = 0;

Q_SIGNALS:
    /// The user is done, and what was to be written is written.
    void finished(CellEditor::Next next);

protected:
    [[nodiscard]] const CellEdit& edit() const noexcept { return m_edit; }
    [[nodiscard]] CellServices& services() const noexcept { return *m_edit.services; }
    [[nodiscard]] FieldWriter& writer() const;
    /// Says in a tool tip whether what is shown is still to be written, and returns it.
    bool showPending();

    /// Emits `finished`, once.
    void finish(Next next = Next::Nothing);
    [[nodiscard]] bool isFinished() const noexcept { return m_isFinished; }

    /// The key Tab isn't for the widgets in the editor.
    bool focusNextPrevChild(bool next) override;

private:
    CellEdit m_edit;
    bool m_isFinished = false;
};

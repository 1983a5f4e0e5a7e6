#pragma once

#include "meridane/query/Query.h"

#include <QWidget>

class FilterLine;
class QToolButton;

/// The line above the field table that chooses which rows it shows.
class FieldFilterBar : public QWidget {
    Q_OBJECT

public:
    explicit FieldFilterBar(QWidget* parent = nullptr);

    /// The query of the line, or the last one that made sense.
    [[nodiscard]] const meridane::Query& query() const;
    /// Whether anything may be hidden.
    [[nodiscard]] bool isOn() const;
    [[nodiscard]] bool isChangedOnly() const;
    [[nodiscard]] FilterLine* line() const noexcept { return m_line; }
    void clear();

Q_SIGNALS:
    void changed();
    /// The user goes on in the table.
    void left();

private:
    FilterLine* m_line;
    QToolButton* m_changedOnly;
};

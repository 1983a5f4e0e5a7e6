#pragma once

#include "orvane/sdk/detail/AnyField.h"

#include <QString>

class QLineEdit;
class QToolButton;
class QWidget;

namespace orv {

/// A row of a form for one field: its name, on which a click selects the field, and a control that fits its class.
class FieldRow {
public:
    /// `example` is a field of the class and name that the row is for. The layout that gets label and control owns
    /// them.
    explicit FieldRow(NxField& example);

    [[nodiscard]] QToolButton& label() const noexcept { return *m_label; }
    [[nodiscard]] QWidget& control() const noexcept { return *m_control; }

    /// Shows another field of that class, or none.
    void attach(NxField* field) { m_field.attach(field); }

private:
    [[nodiscard]] QToolButton* makeLabel(NxField& example);
    [[nodiscard]] QWidget* makeControl(NxField& example);
    [[nodiscard]] QWidget* makeFlag();
    [[nodiscard]] QWidget* makeChoice(NxField& example);
    [[nodiscard]] QWidget* makeColor();
    [[nodiscard]] QWidget* makeSummary();
    [[nodiscard]] QLineEdit* makeLine();
    void writeLine(QLineEdit& line);
    void chooseColor(QWidget& button);

    AnyField m_field;
    QString m_name;
    QToolButton* m_label;
    QWidget* m_control;
};

} // namespace orv

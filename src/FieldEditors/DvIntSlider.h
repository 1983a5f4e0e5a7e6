#pragma once

#include "FieldEditors/DvSlider.h"

class QIntValidator;

/// A slider for a signed integer of 32 or 16 bits, whose positions are its values.
class DvIntSlider final : public DvSlider {
public:
    /// `kind` is the number of an `orvane::IntegerKind`, `Int32` or `Int16`; any other has the range of an int.
    DvIntSlider(int kind, int mode, OrvFieldEditors* owner, QWidget* parent, int row = 0, int column = 1);
    ~DvIntSlider() override;

    /// Sets the range within the bounds of the type. A bounded range limits what can be typed; any other grows to any
    /// value.
    void setRange(int lower, int upper, bool bounded);
    [[nodiscard]] int value() const { return m_value; }

    /// Takes a value in its text form.
    /// Contract: the first text decides for ever whether the line is decimal, with a validator, or octal or
    /// hexadecimal, without one.
    void setValueText(QString text) override;

protected:
    void showValue() override;
    void readValueFromEdit() override;
    void setValueFromPosition(int position) override;
    void saveCommandValue() override;

private:
    int m_min = 0;
    int m_max = 0;
    int m_value = 0;
    QIntValidator* m_validator; // holds the bounds of the type, set on the line by the first decimal text
    bool m_bounded = false;
    bool m_firstText = true;
};

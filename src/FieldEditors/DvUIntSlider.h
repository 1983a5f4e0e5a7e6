#pragma once

#include "FieldEditors/DvSlider.h"

/// A slider for an unsigned integer of 32 or 16 bits. Its line accepts any text; one that is no number changes nothing.
class DvUIntSlider final : public DvSlider {
public:
    /// `kind` is the number of an `orvane::IntegerKind`, `UInt32` or `UInt16`; any other is like `UInt32`.
    DvUIntSlider(int kind, int mode, OrvFieldEditors* owner, QWidget* parent, int row = 0, int column = 1);

    /// Sets the range within the limits of the type; it grows to any value.
    /// Contract: a bounded range narrows the limits and leaves range and slider as they are, unlike the signed slider.
    void setRange(unsigned lower, unsigned upper, bool bounded);
    [[nodiscard]] unsigned value() const { return m_value; }

    /// Takes a value in its text form.
    /// Contract: the first text decides for ever whether the line is decimal, octal or hexadecimal.
    void setValueText(QString text) override;

protected:
    void showValue() override;
    void readValueFromEdit() override;
    void setValueFromPosition(int position) override;
    void saveCommandValue() override;

private:
    unsigned m_min = 0;
    unsigned m_max = 0;
    unsigned m_value = 0;
    unsigned m_limitTop;
    unsigned m_limitBottom = 0;
    bool m_bounded = false;
    bool m_firstText = true;
};

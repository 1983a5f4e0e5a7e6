#pragma once

#include "FieldEditors/DvSlider.h"

class QDoubleValidator;

/// A slider for a float or a double: a hundred steps across the range, whatever the range.
class DvRealSlider final : public DvSlider {
public:
    /// `isFloat` selects six decimals and the bounds of a float, else fifteen digits and the bounds of a double.
    DvRealSlider(int mode, OrvFieldEditors* owner, QWidget* parent, bool isFloat = true, int row = 0, int column = 1);
    ~DvRealSlider() override;

    /// Sets the range. A bounded range limits what can be typed; any other grows to any value.
    void setRange(double lower, double upper, bool bounded);
    [[nodiscard]] double lowerBound() const { return m_min; }
    [[nodiscard]] double upperBound() const { return m_max; }
    [[nodiscard]] bool isBounded() const { return m_bounded; }

    /// Shows a value and keeps the number that its text reads as, so a float is rounded to six decimals.
    void setValue(double value);
    [[nodiscard]] double value() const { return m_value; }

protected:
    void showValue() override;
    void readValueFromEdit() override;
    void setValueFromPosition(int position) override;
    void saveCommandValue() override;

private:
    [[nodiscard]] QString textOf(double value) const;
    [[nodiscard]] int positionOf(double value) const;

    double m_min = 0;
    double m_max = 0;
    double m_value = 0;
    QDoubleValidator* m_validator;
    bool m_bounded = false;
    bool m_isFloat;
};

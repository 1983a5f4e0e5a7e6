#pragma once

#include "meridane/base/values/VbString.h"

#include <QFrame>

#include <algorithm>

class OrvFieldEditors;
class QCheckBox;
class QHBoxLayout;
class QLineEdit;
class QSlider;

/// A frame of check box, slider and line edit that shows one number and notifies its owner when the user changes it.
///
/// It never accesses a field. The check box decides whether the owner is notified of each step of a drag or only of the
/// release. The subclasses hold the value, its range and its text.
class DvSlider : public QFrame {
    Q_OBJECT

public:
    /// How the owner is notified of a change: by `applyChanges`, or by `setCellValue` for the slider's row and column.
    enum Mode { FieldEditor = 0, TableCell = 1 };

    DvSlider(int mode, OrvFieldEditors* owner, QWidget* parent, int row = 0, int column = 1);
    ~DvSlider() override;

    /// True if the line holds typed text that hasn't been replaced since.
    [[nodiscard]] bool edited() const;
    /// The line's text with the prefix of its radix.
    [[nodiscard]] QString editText() const;
    [[nodiscard]] QLineEdit* edit() const { return m_edit; }
    /// True from the press of the slider to its release or its first step.
    [[nodiscard]] bool isInDrag() const { return m_inDrag; }
    /// The text of the value when a drag began; null otherwise. A command that takes it makes it null.
    [[nodiscard]] VbString& commandValue() { return m_commandValue; }

    /// Takes a value in its text form, as an integer field writes it. Does nothing in a real slider.
    virtual void setValueText(QString text);

protected:
    /// Writes the value into the line edit.
    virtual void showValue();
    /// Takes value and position from the line edit's text.
    virtual void readValueFromEdit();
    /// Takes the value from a position of the slider.
    virtual void setValueFromPosition(int position);
    /// Puts the value as text into `m_commandValue`.
    virtual void saveCommandValue();

    /// Like `std::clamp`, but the lower bound may exceed the upper one.
    template <typename Value>
    [[nodiscard]] static Value limited(Value value, Value lower, Value upper)
    {
        return std::min(std::max(value, lower), upper);
    }

    /// The value that a typed one results in: a bounded range limits it; an unbounded one grows to it, and so does that
    /// of the slider.
    template <typename Value, typename PositionOf>
    [[nodiscard]] Value fitted(Value value, Value& lower, Value& upper, bool bounded, PositionOf positionOf)
    {
        if (bounded)
            return limited(value, lower, upper);
        if (value > upper) {
            upper = value;
            setSliderMaximum(positionOf(value));
        }
        if (value < lower) {
            lower = value;
            setSliderMinimum(positionOf(value));
        }
        return value;
    }

    /// Shows a text, takes its value and moves the slider to it.
    void takeText(const QString& text);
    /// Sets the line's text, which clears its modified flag, and shows the beginning of a long text.
    void setEditText(const QString& text);
    /// An integer's text without the prefix of `m_radix`.
    [[nodiscard]] QString withoutPrefix(const QString& text) const;
    void setCommandValue(const QString& text);

    /// Moves the slider to `m_position`. Moves by the frame itself, also by a change of the range, notify nobody.
    void moveSliderSilently();
    void setSliderMinimum(int minimum);
    void setSliderMaximum(int maximum);
    void setSliderRange(int minimum, int maximum);

    QLineEdit* m_edit = nullptr;
    VbString m_commandValue;
    QHBoxLayout* m_layout = nullptr;
    int m_position = 0;
    QSlider* m_qslider = nullptr;
    QCheckBox* m_checkBox = nullptr;
    bool m_notify = true;
    bool m_inDrag = false;
    bool m_reactToSlider = false;
    int m_mode = FieldEditor;
    int m_radix = 10;

private Q_SLOTS:
    void changeValueFromEdit();
    void eventNotify(bool state);
    void beginCallback();
    void finishCallback();
    void valueChangeSlot(int newValue);

private:
    void notifyOwner();

    OrvFieldEditors* m_owner; // not owned
    int m_row;
    int m_column;
};

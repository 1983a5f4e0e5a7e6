#pragma once

#include "meridane/base/values/VbString.h"

#include <QFrame>

#include <algorithm>

class OrvFieldEditors;
class QCheckBox;
class QHBoxLayout;
class QLineEdit;
class QSlider;

/// The frame of check box, slider and line edit that shows one number and tells its owner when the user changes it.
///
/// It never touches a field. The check box decides whether each step of a drag goes to the owner or the release alone.
/// The value itself, its range and its text lie in the subclasses.
class DvSlider : public QFrame {
    Q_OBJECT

public:
    /// How a change reaches the owner: by `applyChanges`, or by `setCellValue` for the slider's row and column.
    enum Mode { FieldEditor = 0, TableCell = 1 };

    DvSlider(int mode, OrvFieldEditors* owner, QWidget* parent, int row = 0, int column = 1);
    ~DvSlider() override;

    /// True when the line holds typed text that hasn't been rewritten since.
    [[nodiscard]] bool edited() const;
    /// The line's text with the prefix of its radix.
    [[nodiscard]] QString editText() const;
    [[nodiscard]] QLineEdit* edit() const { return m_edit; }
    /// True from the press of the slider to its release or its first step.
    [[nodiscard]] bool isInDrag() const { return m_inDrag; }
    /// The value as text at the moment a drag began; null otherwise. A command that takes it makes it null.
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

    /// `std::clamp` for bounds that may stand the wrong way round.
    template <typename Value>
    [[nodiscard]] static Value limited(Value value, Value lower, Value upper)
    {
        return std::min(std::max(value, lower), upper);
    }

    /// What a typed value comes out as: a bounded range limits it, an unbounded one grows to it and takes the slider
    /// along.
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

    /// Shows a text, takes its value and brings the slider in line.
    void takeText(const QString& text);
    /// Rewrites the line, which clears its modified flag, and shows the beginning of a long text.
    void setEditText(const QString& text);
    /// An integer's text without the prefix that `m_radix` stands for.
    [[nodiscard]] QString withoutPrefix(const QString& text) const;
    void setCommandValue(const QString& text);

    /// Brings the slider to `m_position`. The frame's own moves, those of a range change included, tell nobody.
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

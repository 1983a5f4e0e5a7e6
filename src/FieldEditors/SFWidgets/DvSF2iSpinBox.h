#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QSpinBox;

/// Base of the editors of two integers: a labelled spin box for x and one for y.
///
/// Each step of a spin box writes the field and pushes a command.
/// Contract: so does a spin box that a refresh from the field changes, while the other one still has its former value.
/// A change of both numbers from outside causes two writes and two commands.
class DvSF2iSpinBox : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSF2iSpinBox(const char* name = nullptr);
    ~DvSF2iSpinBox() override;

    void load() override;

    /// Writes the two names, of x and y, above the spin boxes.
    void setLabels(const QString* names);
    /// `kind` is the number of an `orvane::SpinBoxKind`; any other changes nothing.
    void setSpinBoxRange(int kind);

protected:
    /// Shows x, then y; the signals aren't blocked.
    void showNumbers(int x, int y);

    QSpinBox* m_ySpinBox = nullptr;
    QSpinBox* m_xSpinBox = nullptr;
    QLabel* m_yLabel = nullptr;
    QLabel* m_xLabel = nullptr;

private:
    void addColumn(QLabel*& label, QSpinBox*& spinBox);
};

#pragma once

#include "orvane/app/manners/EditorLine.h"

#include <QObject>
#include <QPointer>

class QSlider;

/// Makes the slider in a cell of a list write its own row.
///
/// The sliders of some lists write the first row, whichever cell they are in. After each write of the slider, the first
/// row gets its value back, and the row of the cell gets that of the slider. It is all the same step of the history.
/// It belongs to the slider.
class CellSlider : public QObject {
    Q_OBJECT

public:
    /// `target` is the line beside the slider, in the same cell.
    CellSlider(QSlider* slider, const EditorLine& target);
    ~CellSlider() override;

private:
    void remember();
    void correct();

    EditorLine m_target;
    QPointer<QLineEdit> m_line;
    double m_first = 0; // the value of the first row
};

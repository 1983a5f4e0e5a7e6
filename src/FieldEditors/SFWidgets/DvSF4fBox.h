#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

#include "meridane/base/values/VbVec.h"

class QLineEdit;

/// Base of the editors of four floats: a labelled line for each of x, y, z and the fourth number, which is named w
/// whatever it means.
class DvSF4fBox : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSF4fBox(const char* name = nullptr);
    ~DvSF4fBox() override;

    void load() override;
    [[nodiscard]] bool edited() override;

    /// Writes the four names, of x, y, z and w, above the lines.
    void setLabels(const QString* names);
    /// Shows the beginning of each line's text.
    void resetLinesCursor();

protected:
    /// Shows the numbers and the beginning of each text.
    void showNumbers(float x, float y, float z, float w);
    /// The numbers in the lines.
    [[nodiscard]] VbVec4f numbers() const;

    QLineEdit* m_zLine = nullptr;
    QLineEdit* m_yLine = nullptr;
    QLineEdit* m_xLine = nullptr;
    QLineEdit* m_wLine = nullptr;
    QLabel* m_zLabel = nullptr;
    QLabel* m_yLabel = nullptr;
    QLabel* m_xLabel = nullptr;
    QLabel* m_wLabel = nullptr;

private:
    void addColumn(QLabel*& label, QLineEdit*& line);
};

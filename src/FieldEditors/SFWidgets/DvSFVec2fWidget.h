#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QLineEdit;

/// Edits two floats.
class DvSFVec2fWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFVec2fWidget(const char* name = nullptr);
    ~DvSFVec2fWidget() override;

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
    [[nodiscard]] bool edited() override;

private:
    void addColumn(QLabel*& label, QLineEdit*& line);

    QLineEdit* m_yLine = nullptr;
    QLineEdit* m_xLine = nullptr;
    QLabel* m_yLabel = nullptr;
    QLabel* m_xLabel = nullptr;
};

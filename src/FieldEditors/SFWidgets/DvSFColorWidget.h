#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

class QColor;
class QLineEdit;

/// Edits a colour with a line for each component and a button that shows it and opens the colour dialog.
///
/// A typed number is shown on the button at once and written to the field on Return or when the line is left.
/// Contract: components aren't limited to 0 to 1; the button keeps the last colour that can be shown.
class DvSFColorWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFColorWidget(const char* name = nullptr);
    ~DvSFColorWidget() override;

    void load() override;
    void updateFromField() override;
    void applyChanges() override;
    [[nodiscard]] bool edited() override;

    // In the order of the meta object.
public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    void changeRValue(const QString& str);
    void changeGValue(const QString& str);
    void changeBValue(const QString& str);
    void getColorEditor();

private:
    void addRow(QLabel*& label, QLineEdit*& line);
    [[nodiscard]] QColor color() const;
    void showComponents();

    QPushButton* m_colorDisp = nullptr;
    QLineEdit* m_redLine = nullptr;
    QLineEdit* m_greenLine = nullptr;
    QLineEdit* m_blueLine = nullptr;
    QLabel* m_redLabel = nullptr;
    QLabel* m_greenLabel = nullptr;
    QLabel* m_blueLabel = nullptr;
    // The numbers in the lines, nominally 0 to 1.
    float m_red = 0;
    float m_green = 0;
    float m_blue = 0;
};

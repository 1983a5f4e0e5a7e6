#pragma once

#include "FieldEditors/OrvFieldEditors.h"

#include <QPixmap>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;

/// The common body of every single-value editor: one row of type label, edit area and the two buttons "Set to default"
/// and "Ignore this field".
///
/// A concrete editor sets handled type and name in its constructor. Its `load` calls `setFieldTypeLabel`, then this
/// `load`, and adds its controls to `m_editLayout`.
class DvSFieldWidget : public OrvFieldEditors {
    Q_OBJECT

public:
    /// For the editors with a slider: `sliderKind` is the number of an `orvane::SliderKind`; any other gives the plain
    /// edit area.
    DvSFieldWidget(int sliderKind, const char* name);
    /// For all others. Without a name the object name stays empty.
    explicit DvSFieldWidget(const char* name);
    ~DvSFieldWidget() override;

    /// Builds the row. Needs the type label to be there.
    void load() override;
    void setField(NxField* field) override;
    /// Shows the field's ignored flag; an override calls this body last.
    void updateFromField() override;
    void setRefreshEnabled(bool enabled) override;
    void swapRows(int first, int second) override;
    void reservedRowOperation() override;
    void setCellValue(int row, int column, QString value) override;
    void setRowColor(int row, const VbVec4f& value) override;

    /// Whether a line holds text that was typed and not yet written to the field.
    [[nodiscard]] virtual bool edited();

    // The order of the slots is that of the meta object. Three of them write a pending edit to the field: applyChanges
    // and setCommandValue always, setFocusLeaveEvent only if a text was typed.
public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    virtual void languageChange();
    virtual void setCommandValue();
    void setFocusLeaveEvent();
    void ignoreButtonStateChanged();
    virtual void setDefaultFieldValue();
    void applyChanges() override;

protected:
    /// Makes the label on first need. The text is set once: a later call changes nothing.
    void setFieldTypeLabel(const QString& typeName);
    /// Keeps the edit area at its own width, in the middle between label and buttons.
    void centreEditionArea();

    QLabel* m_label = nullptr;
    QPushButton* m_defaultButton = nullptr;
    QPushButton* m_ignoreButton = nullptr;
    NxField* m_field = nullptr;
    QFrame* m_editionFrame = nullptr;
    QHBoxLayout* m_mainLayout = nullptr;
    QHBoxLayout* m_buttonsLayout = nullptr;
    QHBoxLayout* m_editLayout = nullptr;
    QHBoxLayout* m_editionAreaLayout = nullptr;
    QSpacerItem* m_labelSpacer = nullptr;
    QSpacerItem* m_editionSpacer = nullptr;
    QPixmap m_defaultPixmap;
    QPixmap m_ignorePixmap;

private:
    void buildLabel();
    void buildEditionArea();
    void buildButtons();
};

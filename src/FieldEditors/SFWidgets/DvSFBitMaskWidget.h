#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

#include <QList>

class NxSFEnum;
class QCheckBox;
class QVBoxLayout;

/// Edits a set of bits with a check box for each name of one or more bits.
///
/// Contract: the boxes show the value that the field had when it was set. They follow neither later changes nor the
/// default button.
/// Contract: a click writes the field and pushes no command.
class DvSFBitMaskWidget final : public DvSFieldWidget {
    Q_OBJECT

public:
    explicit DvSFBitMaskWidget(const char* name = nullptr);
    ~DvSFBitMaskWidget() override;

    void load() override;
    void unload() override;
    /// Replaces the boxes by those of the field.
    void setField(NxField* field) override;

public Q_SLOTS:
    /// Writes the bits of all boxes to the field; bits that have no box are cleared.
    virtual void setBitMaskValue();

private:
    void addBoxes(const NxSFEnum& field);
    void removeBoxes();

    QList<QCheckBox*> m_checkBoxes;
    QVBoxLayout* m_boxLayout = nullptr; // owned by the edit layout while there are boxes, else by this object
};

#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

#include <QList>

class NxSFEnum;
class QCheckBox;
class QVBoxLayout;

/// Edits a set of bits with a check box for each name that stands for any.
///
/// The way from the boxes to the field is one-way: the boxes show what the field had when it was taken in, and follow
/// neither later changes nor the default button. What they write doesn't reach the history. Both is meant.
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
    QVBoxLayout* m_boxLayout = nullptr; // the edit layout's while there are boxes, ours before and in between
};

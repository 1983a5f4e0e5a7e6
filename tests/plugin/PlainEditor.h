#pragma once

#include "FieldEditors/SFWidgets/DvSFieldWidget.h"

/// The least that a concrete editor adds to the skeleton.
class PlainEditor : public DvSFieldWidget {
public:
    explicit PlainEditor(const char* name = "PlainEditor")
        : DvSFieldWidget(name)
    {
    }
    explicit PlainEditor(int sliderKind, const char* name = nullptr)
        : DvSFieldWidget(sliderKind, name)
    {
    }

    using DvSFieldWidget::setFieldTypeLabel;

    void load() override
    {
        setFieldTypeLabel(QStringLiteral("SFPlain"));
        DvSFieldWidget::load();
    }
    [[nodiscard]] bool edited() override
    {
        ++askedForEdits;
        return hasEdits;
    }
    void applyChanges() override { ++applied; }

    [[nodiscard]] NxField* field() const { return m_field; }
    [[nodiscard]] QFrame* editionFrame() const { return m_editionFrame; }
    [[nodiscard]] QHBoxLayout* editLayout() const { return m_editLayout; }

    bool hasEdits = false;
    int askedForEdits = 0;
    int applied = 0;
};

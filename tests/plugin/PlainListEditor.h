#pragma once

#include "FieldEditors/MFWidgets/DvMFieldWidget.h"

/// The skeleton with its type label, and its protected parts in reach.
class PlainListEditor final : public DvMFieldWidget {
public:
    explicit PlainListEditor(const char* name = nullptr)
        : DvMFieldWidget(name)
    {
    }
    void load() override
    {
        setElementTypeLabel(QStringLiteral("MFPlain"));
        setElementTypeLabel(QStringLiteral("another"));
        DvMFieldWidget::load();
    }
    bool prepareForField(NxField* field) override { return accepts && field != nullptr; }
    [[nodiscard]] unsigned revision() const { return fieldRevision(); }
    bool accepts = true;
};

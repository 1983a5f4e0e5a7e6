#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/// Edits a list of single-precision numbers, with the range that follows from the node that owns the field.
class DvMFFloatWidget final : public DvMFLineWidget {
    Q_OBJECT

public:
    explicit DvMFFloatWidget(const char* name = nullptr);
    ~DvMFFloatWidget() override;

    void load() override;
    bool prepareForField(NxField* field) override;
};

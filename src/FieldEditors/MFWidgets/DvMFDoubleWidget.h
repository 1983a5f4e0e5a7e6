#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/// Edits a list of double-precision numbers, with the range that follows from the node that owns the field.
class DvMFDoubleWidget final : public DvMFLineWidget {
    Q_OBJECT

public:
    explicit DvMFDoubleWidget(const char* name = nullptr);
    ~DvMFDoubleWidget() override;

    void load() override;
    bool prepareForField(NxField* field) override;
};

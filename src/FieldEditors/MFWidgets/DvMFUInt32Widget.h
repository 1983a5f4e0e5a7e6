#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/// Edits a list of unsigned 32-bit numbers.
class DvMFUInt32Widget final : public DvMFLineWidget {
    Q_OBJECT

public:
    explicit DvMFUInt32Widget(const char* name = nullptr);
    ~DvMFUInt32Widget() override;

    void load() override;
    bool prepareForField(NxField* field) override;
};

#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/// Edits a list of signed 32-bit numbers.
class DvMFInt32Widget final : public DvMFLineWidget {
    Q_OBJECT

public:
    explicit DvMFInt32Widget(const char* name = nullptr);
    ~DvMFInt32Widget() override;

    void load() override;
    bool prepareForField(NxField* field) override;
};

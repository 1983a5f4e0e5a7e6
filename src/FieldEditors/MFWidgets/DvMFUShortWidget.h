#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/// Edits a list of unsigned 16-bit numbers.
class DvMFUShortWidget final : public DvMFLineWidget {
    Q_OBJECT

public:
    explicit DvMFUShortWidget(const char* name = nullptr);
    ~DvMFUShortWidget() override;

    void load() override;
    bool prepareForField(NxField* field) override;
};

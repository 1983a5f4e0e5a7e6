#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/// Edits a list of signed 16-bit numbers.
class DvMFShortWidget final : public DvMFLineWidget {
    Q_OBJECT

public:
    explicit DvMFShortWidget(const char* name = nullptr);
    ~DvMFShortWidget() override;

    void load() override;
    bool prepareForField(NxField* field) override;
};

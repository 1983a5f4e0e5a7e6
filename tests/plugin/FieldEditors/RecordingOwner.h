#pragma once

#include "FieldEditors/OrvFieldEditors.h"

#include <QStringList>

#include <functional>

/// A field editor that only records the calls of a slider.
class RecordingOwner final : public OrvFieldEditors {
public:
    void updateFromField() override { }
    void setRefreshEnabled(bool enabled) override
    {
        calls << (enabled ? QStringLiteral("refresh on") : QStringLiteral("refresh off"));
    }
    void swapRows(int /*first*/, int /*second*/) override { }
    void reservedRowOperation() override { }
    void setCellValue(int row, int column, QString value) override
    {
        calls << QStringLiteral("cell %1 %2 %3").arg(row).arg(column).arg(value);
    }
    void setRowColor(int /*row*/, const VbVec4f& /*value*/) override { }
    void applyChanges() override
    {
        calls << QStringLiteral("apply");
        if (onApply)
            onApply();
    }

    QStringList calls;
    /// What else happens when a change is applied.
    std::function<void()> onApply;
};

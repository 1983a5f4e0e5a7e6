#pragma once

#include "FieldEditors/SFWidgets/DvSF4fBox.h"

/// Edits a rotation: its axis as it stands in the field, and its angle in radians.
///
/// A rotation is written on Return alone: who leaves a line leaves the text there, unapplied. That is meant.
class DvSFRotationWidget final : public DvSF4fBox {
    Q_OBJECT

public:
    explicit DvSFRotationWidget(const char* name = nullptr);
    ~DvSFRotationWidget() override;

    void load() override;
    void updateFromField() override;
    void applyChanges() override;

    /// Writes what was typed. For whoever wants to apply a pending text by hand: no control leads here.
    virtual void applyIfModified();
};

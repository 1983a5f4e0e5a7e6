#pragma once

#include "FieldEditors/SFWidgets/DvSF4fBox.h"

/// Edits a rotation: its axis as the field has it, and its angle in radians.
///
/// Contract: only Return writes the rotation. Leaving a line keeps the typed text there, unapplied.
class DvSFRotationWidget final : public DvSF4fBox {
    Q_OBJECT

public:
    explicit DvSFRotationWidget(const char* name = nullptr);
    ~DvSFRotationWidget() override;

    void load() override;
    void updateFromField() override;
    void applyChanges() override;

    /// Writes a typed text. Contract: no control calls it.
    virtual void applyIfModified();
};

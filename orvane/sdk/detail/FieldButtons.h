#pragma once

#include "orvane/sdk/detail/AnyField.h"

class NxField;
class QPushButton;
class QWidget;

namespace orv {

/// The two buttons at the end of a field editor: "Set to default" and "Ignore this field".
class FieldButtons {
public:
    /// The parent owns the buttons.
    explicit FieldButtons(QWidget& parent);

    void attach(NxField* field) { m_binding.attach(field); }

    [[nodiscard]] QPushButton& defaultButton() noexcept { return *m_default; }
    [[nodiscard]] QPushButton& ignoreButton() noexcept { return *m_ignore; }

private:
    AnyField m_binding;
    QPushButton* m_default;
    QPushButton* m_ignore;
};

} // namespace orv

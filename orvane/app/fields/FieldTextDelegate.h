#pragma once

#include "orvane/app/input/FoundTextDelegate.h"

/// Paints the names and the types of fields. A filter is about the rows, not about the titles of their groups.
class FieldTextDelegate final : public FoundTextDelegate {
    Q_OBJECT

public:
    using FoundTextDelegate::FoundTextDelegate;

protected:
    [[nodiscard]] bool isSearched(const QModelIndex& index) const override;
};

#pragma once

#include "orvane/sdk/FieldLink.h"

namespace orv {

/// Follows a field of whatever class, without reading its text, which may be long.
class AnyField : public FieldLink {
public:
    using FieldLink::addWidget;
    using FieldLink::context;

    void attach(NxField* field) { follow(field); }
    [[nodiscard]] NxField* field() const noexcept { return followed(); }
};

} // namespace orv

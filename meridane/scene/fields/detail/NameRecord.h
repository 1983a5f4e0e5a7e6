#pragma once

#include "meridane/scene/fields/ChangeRecord.h"

#include <utility>

namespace meridane {

/// The name of a node before a change.
class NameRecord final : public ChangeRecord {
public:
    explicit NameRecord(NxFieldContainer& node)
        : ChangeRecord(Kind::Name, node)
        , m_name(node.m_name)
    {
    }

    void exchange() override { std::swap(node().m_name, m_name); }
    [[nodiscard]] bool isSameAsNow() const override { return node().m_name == m_name; }
    void notify() const override
    {
        NxFieldContainer::noteStructureChange();
        node().touch();
    }
    [[nodiscard]] std::size_t bytes() const override { return sizeof(*this) + m_name.view().size(); }

    void close() noexcept override { node().m_isNameRecorded = 0; }

private:
    VbString m_name;
};

} // namespace meridane

#pragma once

#include "meridane/scene/fields/detail/FieldRecords.h"

namespace meridane {

/// The ignored flag of a field before the first change of a step.
class IgnoredRecord final : public FieldRecord {
public:
    explicit IgnoredRecord(NxField& field)
        : FieldRecord(Kind::Ignored, field)
        , m_ignored(field.m_ignored)
    {
    }

    void exchange() override { std::swap(field()->m_ignored, m_ignored); }
    [[nodiscard]] bool isSameAsNow() const override { return field()->m_ignored == m_ignored; }
    [[nodiscard]] std::size_t bytes() const override { return sizeof(*this); }
    void close() noexcept override { field()->m_isIgnoredRecorded = false; }

private:
    bool m_ignored;
};

} // namespace meridane

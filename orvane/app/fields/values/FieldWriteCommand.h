#pragma once

#include "orvane/app/fields/values/FieldSet.h"
#include "orvane/extender/OrvCommand.h"

#include <functional>
#include <memory>
#include <vector>

namespace meridane {
class ChangeRecord;
}

/// Writes the fields of a set, all or none.
///
/// It keeps the values from before, so that it can be undone to the bit with and without a journal.
class FieldWriteCommand final : public OrvCommand {
public:
    /// Writes the field with that number in the set. Returns false and changes nothing if it can't.
    using Write = std::function<bool(NxField& field, std::size_t number)>;

    /// `done` is set by `execute`: whether all fields were written. If one can't be written, the others are put back.
    FieldWriteCommand(FieldSet fields, Write write, bool& done);
    /// For fields that have been written already: `records` hold their values from before.
    explicit FieldWriteCommand(std::vector<std::unique_ptr<meridane::ChangeRecord>> records);
    ~FieldWriteCommand() override;

    void execute() override;
    void undo() override;
    void redo() override;

private:
    [[nodiscard]] bool writeAll();
    void exchangeAll();

    FieldSet m_fields;
    Write m_write; // null when all has been written
    bool* m_done = nullptr; // until it has been executed
    std::vector<std::unique_ptr<meridane::ChangeRecord>> m_records; // of the fields that were written
};

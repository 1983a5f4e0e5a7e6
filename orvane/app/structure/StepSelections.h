#pragma once

#include "orvane/app/structure/TreeNodes.h"

#include <QObject>

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

class OrvServices;

/// Which rows of the tree were selected before and after steps of the history that changed the structure, so that undo
/// and redo select them again.
class StepSelections : public QObject {
    Q_OBJECT

public:
    using Rows = std::vector<orvane::TreeRows>;

    /// The services live longer.
    explicit StepSelections(OrvServices& services, QObject* parent = nullptr);

    /// Notes the selections of a step that was pushed just now.
    void note(Rows before, Rows after);
    /// The rows to be selected after the step of that index was undone or redone; null if they aren't known.
    [[nodiscard]] const Rows* afterMove(int index) const;

private:
    struct Entry {
        Rows before;
        Rows after;
    };

    void takePending();
    void forgetDropped();

    OrvServices& m_services;
    std::optional<Entry> m_pending; // of the step that hasn't ended yet
    std::map<std::uint64_t, Entry> m_entries; // by the number of the step
};

#pragma once

#include "orvane/app/structure/TreeNodes.h"

#include <QObject>
#include <QString>

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

    /// Notes the selections of a step that was pushed just now with that label.
    void note(const QString& label, Rows before, Rows after);
    /// The rows to be selected after the step of that index was undone or redone; null if they aren't known.
    [[nodiscard]] const Rows* afterMove(int index) const;

private:
    struct Entry {
        Rows before;
        Rows after;
    };

    /// Whether the step done last has that label and no entry yet.
    [[nodiscard]] bool isLatest(const QString& label) const;
    void takePending();
    void forgetDropped();

    OrvServices& m_services;
    std::optional<Entry> m_pending; // of the step that hasn't ended yet
    QString m_pendingLabel;
    std::map<std::uint64_t, Entry> m_entries; // by the number of the step
};

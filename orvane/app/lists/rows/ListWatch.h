#pragma once

#include "meridane/scene/fields/NxFieldSensor.h"
#include "meridane/scene/journal/JournalListener.h"

#include <QObject>

#include <vector>

class NxMField;
class OrvDocument;

/// `removed` rows of a list from `start` on were replaced by `inserted` others.
struct RowSplice {
    int start = 0;
    int removed = 0;
    int inserted = 0;
};

/// Follows the changes of one list.
///
/// Where rows come and go is known from the journal of the open document. Which values were written isn't: a step
/// reports the first write to a row only.
class ListWatch : public QObject, private meridane::JournalListener {
    Q_OBJECT

public:
    /// The document lives longer.
    explicit ListWatch(OrvDocument& document, QObject* parent = nullptr);
    ~ListWatch() override;

    /// Watches that list, or none if null.
    void watch(NxMField* list);
    /// Another number after each change that is known of, before and after `changed`. What was read from the list under
    /// another number may be wrong.
    [[nodiscard]] int revision() const noexcept { return m_revision; }

Q_SIGNALS:
    /// The list has changed, a moment ago. The splices are those since the last signal, in their order; together they
    /// explain the present number of rows. If they are unknown, there is one for the whole list.
    void changed(const std::vector<RowSplice>& splices);

private:
    void listen();
    void leave();
    void report();
    void aboutToChange(const meridane::PlaceChange& change) noexcept override;

    OrvDocument& m_document;
    NxMField* m_list = nullptr;
    NxFieldSensor m_sensor;
    std::vector<RowSplice> m_splices;
    int m_count = 0; // of the rows when it was reported last
    int m_revision = 0;
    bool m_isReplaced = false; // the whole list was written
};

#include "orvane/extender/OrvDocument.h"

#include "meridane/scene/journal/Journal.h"

#include <chrono>
#include <utility>

OrvDocument::OrvDocument() = default;
OrvDocument::~OrvDocument() = default;

std::shared_ptr<meridane::Journal> OrvDocument::makeJournal(NxGroup& root)
{
    auto journal = std::make_shared<meridane::Journal>(root);
    while (journal->run(std::chrono::hours(1))) { }
    return journal;
}

void OrvDocument::open(std::shared_ptr<meridane::Journal> journal)
{
    close();
    m_root = NxRef<NxGroup>(&journal->scene());
    m_journal = std::move(journal);
    m_journal->record();
    Q_EMIT opened();
}

void OrvDocument::close()
{
    if (m_root.get() == nullptr)
        return;
    Q_EMIT aboutToClose();
    m_journal.reset();
    m_root = NxRef<NxGroup>();
    Q_EMIT closed();
}

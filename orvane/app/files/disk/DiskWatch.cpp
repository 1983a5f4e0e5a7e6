#include "orvane/app/files/disk/DiskWatch.h"

#include "orvane/app/files/disk/FileCheck.h"
#include "orvane/app/scene/SceneDocument.h"

DiskWatch::DiskWatch(SceneDocument& document)
    : m_document(document)
{
    connect(&m_watch, &FileWatch::settled, this, &DiskWatch::check);
    // Also emitted for a file that was opened, saved or reloaded.
    connect(&document, &SceneDocument::fileNameChanged, this, &DiskWatch::begin);
    begin();
}

DiskWatch::~DiskWatch() = default;

void DiskWatch::begin()
{
    delete m_check;
    m_kept.reset();
    m_found = {};
    m_watch.watch(m_document.fileContent() ? m_document.fileName() : QString());
    setState(State::Same);
}

void DiskWatch::check()
{
    delete m_check;
    m_check = new FileCheck(m_document.fileName(), this);
    connect(m_check, &FileCheck::finished, this, [this](const DiskContent& found) {
        m_check->deleteLater(); // it is inside its signal
        m_check.clear();
        judge(found);
    });
    m_check->start();
}

void DiskWatch::judge(const DiskContent& found)
{
    const bool isAnother = found != m_found;
    m_found = found;
    const State state = stateOf(found);
    if (state != m_state || (isAnother && state != State::Same))
        setState(state);
}

DiskWatch::State DiskWatch::stateOf(const DiskContent& found) const
{
    switch (found.kind) {
    case DiskContent::Kind::Missing:
        return State::Missing;
    case DiskContent::Kind::NoFile:
        return State::NoFile;
    case DiskContent::Kind::Unreadable:
        return State::Unreadable;
    case DiskContent::Kind::File:
        break;
    }
    if (m_document.fileContent() == found.hash)
        return State::Same;
    return m_kept == found.hash ? State::Kept : State::Changed;
}

bool DiskWatch::isUnseen(const DiskContent& content) const
{
    return m_document.fileContent() && stateOf(content) == State::Changed;
}

void DiskWatch::keep()
{
    if (m_state != State::Changed)
        return;
    m_kept = m_found.hash;
    setState(State::Kept);
}

void DiskWatch::setState(State state)
{
    m_state = state;
    m_document.setFileLost(state == State::Kept || state == State::Missing || state == State::NoFile);
    Q_EMIT changed();
}

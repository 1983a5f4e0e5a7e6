#include "orvane/app/window/DiskChangeBar.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/SceneDocument.h"

namespace {

const QString topic = QStringLiteral("disk");

} // namespace

DiskChangeBar::DiskChangeBar(SceneDocument& document, FileFlow& flow, MessageBar& messages, QObject* parent)
    : QObject(parent)
    , m_document(document)
    , m_flow(flow)
    , m_disk(flow.disk())
    , m_messages(messages)
{
    connect(&m_disk, &DiskWatch::changed, this, &DiskChangeBar::update);
    connect(&flow, &FileFlow::reloadRefused, this, [this] {
        if (!m_isAsking && m_disk.state() == DiskWatch::State::Changed)
            ask();
    });
    connect(&messages, &MessageBar::closed, this, [this](const QString& closed) {
        if (closed == topic)
            m_isAsking = false;
    });
    // Later, since a reload changes both at once.
    connect(
        &document, &SceneDocument::modifiedChanged, this,
        [this] {
            if (m_reloadsByItself && !m_document.isModified() && m_disk.state() == DiskWatch::State::Changed)
                m_flow.reload(SceneReload::Trigger::Watch);
        },
        Qt::QueuedConnection);
}

void DiskChangeBar::setReloadsByItself(bool reloads)
{
    m_reloadsByItself = reloads;
}

void DiskChangeBar::update()
{
    m_isAsking = false;
    switch (m_disk.state()) {
    case DiskWatch::State::Same:
    case DiskWatch::State::Kept:
        m_messages.clearTopic(topic);
        return;
    case DiskWatch::State::Changed:
        if (m_reloadsByItself && !m_document.isModified())
            m_flow.reload(SceneReload::Trigger::Watch);
        else
            ask();
        return;
    default:
        m_messages.showMessage(MessageBar::Severity::Warning, lossText(), topic);
        return;
    }
}

void DiskChangeBar::ask()
{
    m_isAsking = true;
    m_messages.showQuestion(tr("%1 has changed on disk.").arg(orvane::shortLine(m_document.displayName())), topic,
        {{tr("Reload"), QStringLiteral("reloadFromDisk"), [this] { m_flow.reload(); }, false},
            {tr("Keep Mine"), QStringLiteral("keepMine"), [this] { m_disk.keep(); }},
            {tr("Compare"), QStringLiteral("compareWithDisk"), [this] { m_flow.compareWith(m_document.fileName()); },
                false}});
}

QString DiskChangeBar::lossText() const
{
    const QString name = orvane::shortLine(m_document.displayName());
    const bool isModel = m_document.saveFileName().isEmpty();
    switch (m_disk.state()) {
    case DiskWatch::State::Missing:
        return isModel
            ? tr("%1 was deleted or moved. The scene is still here: save it to keep it.").arg(name)
            : tr("%1 was deleted or moved. The scene is still here, and saving writes the file again.").arg(name);
    case DiskWatch::State::NoFile:
        return tr("%1 was replaced by something that is no file. The scene is still here: save it under another name.")
            .arg(name);
    default:
        return tr("It can't be seen whether %1 has changed on disk, because it can't be read: %2")
            .arg(name, m_disk.reason());
    }
}

#include "orvane/app/problems/LiveCheck.h"

#include "orvane/app/images/ImageFolderQuestion.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/extender/OrvDocument.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/journal/Journal.h"

#include <QTimerEvent>

#include <chrono>
#include <new>
#include <utility>

namespace {

// Leaves time in a slice for the rows that are added to the list.
constexpr std::chrono::milliseconds sliceOfCheck(4);
constexpr std::chrono::milliseconds openStepInterval(200);

} // namespace

LiveCheck::LiveCheck(Session& session, ImageFolderQuestion& folders, SliceClock::Clock clock)
    : m_session(session)
    , m_folders(folders)
    , m_clock(clock)
{
    OrvServices& services = session.services();
    connect(&services.document(), &OrvDocument::aboutToClose, this, &LiveCheck::end);
    connect(&session.document(), &SceneDocument::sceneChanged, this, &LiveCheck::begin);
    // Relative paths may count from another folder now.
    connect(&session.document(), &SceneDocument::fileNameChanged, this, &LiveCheck::restart);
    connect(&folders, &ImageFolderQuestion::changed, this, &LiveCheck::restart);
    connect(&services, &OrvServices::stepFinished, this, [this] {
        m_openStep.stop();
        if (m_check == nullptr)
            return;
        m_check->noteStep(true);
        goOn();
    });
    connect(&m_files, &FileSearch::found, this, [this] {
        if (m_check == nullptr)
            return;
        m_check->noteFilesFound();
        goOn();
    });
}

LiveCheck::~LiveCheck()
{
    end();
}

void LiveCheck::setOn(bool isOn)
{
    if (std::exchange(m_isOn, isOn) == isOn)
        return;
    if (isOn)
        begin();
    else
        end();
}

void LiveCheck::restart()
{
    begin();
}

void LiveCheck::begin()
{
    end();
    const SceneDocument& document = m_session.document();
    m_journal = m_session.services().document().journal();
    if (!m_isOn || !document.isOpen() || m_journal == nullptr) {
        m_journal = nullptr;
        return;
    }
    m_files.restart(document.pathFolder(), m_folders.allowedFolders());
    NxCheckOptions options;
    options.findFile = [this](const std::string& name, bool isImage) { return m_files.find(name, isImage); };
    m_check = std::make_unique<NxSceneCheck>(NxRef<NxGroup>(document.scene()), std::move(options));
    m_journal->addListener(*this);
    Q_EMIT replaced();
    goOn();
}

void LiveCheck::end()
{
    m_slices.stop();
    m_openStep.stop();
    if (m_journal != nullptr)
        m_journal->removeListener(*this);
    m_journal = nullptr;
    if (m_check == nullptr)
        return;
    // Whoever shows problems must let go of them first.
    const std::unique_ptr<NxSceneCheck> old = std::move(m_check);
    setSettled(false);
    Q_EMIT replaced();
}

void LiveCheck::aboutToChange(const meridane::PlaceChange& change) noexcept
{
    m_check->aboutToChange(change);
    if (!m_openStep.isActive())
        m_openStep.start(static_cast<int>(openStepInterval.count()), this);
    goOn();
}

void LiveCheck::goOn() noexcept
{
    m_isSettled = false;
    if (!m_slices.isActive())
        m_slices.start(0, this);
}

void LiveCheck::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_slices.timerId()) {
        runSlice();
    } else if (event->timerId() == m_openStep.timerId()) {
        m_check->noteStep(false);
        goOn();
    }
}

void LiveCheck::runSlice()
{
    NxSceneCheck::State state = NxSceneCheck::State::Working;
    bool isOutOfMemory = false;
    try {
        state = m_check->step(meridane::WorkBudget(sliceOfCheck, m_clock));
    } catch (const std::bad_alloc&) {
        isOutOfMemory = true;
    }
    if (isOutOfMemory) {
        setOn(false);
        return;
    }
    if (const std::vector<std::uint32_t> lists = m_check->takeChangedLists(); !lists.empty())
        Q_EMIT changed(lists);
    if (state == NxSceneCheck::State::Done) {
        m_slices.stop();
        setSettled(true);
    } else {
        Q_EMIT settledChanged();
    }
}

void LiveCheck::setSettled(bool isSettled)
{
    m_isSettled = isSettled;
    Q_EMIT settledChanged();
}

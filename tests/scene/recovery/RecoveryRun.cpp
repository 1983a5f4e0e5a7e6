#include "scene/recovery/RecoveryRun.h"

#include "scene/SceneText.h"

#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/recovery/RecoveryReplay.h"

#include <utility>

using meridane::RecoveryDescription;
using meridane::RecoveryFileReader;
using meridane::RecoveryReplay;

RecoveryRun::RecoveryRun(meridane::Journal& journal, RecoveryDescription::Base base)
    : m_base(NxSceneWriter::toText(&journal.scene()))
{
    RecoveryDescription description;
    description.base = base;
    description.displayName = "robot";
    description.fileName = "/scenes/robot.mrd";
    description.fileSize = m_base.size();
    description.fileHash = meridane::ContentHash::of(m_base);
    m_capture = std::make_unique<meridane::RecoveryCapture>(journal, std::move(description), &now);
}

std::chrono::system_clock::time_point RecoveryRun::now()
{
    return std::chrono::system_clock::time_point(std::chrono::milliseconds(1'600'000'000'123));
}

bool RecoveryRun::runSlice()
{
    return m_capture->run(m_bytes, std::chrono::seconds(0));
}

int RecoveryRun::runAll()
{
    int slices = 1;
    while (runSlice())
        ++slices;
    return slices;
}

NxRef<NxGroup> RecoveryRun::recover(const std::string& bytes) const
{
    RecoveryFileReader file(bytes);
    if (file.run() != RecoveryFileReader::State::Done)
        return nullptr;
    const bool hasFile = file.description().base == RecoveryDescription::Base::File;
    RecoveryReplay replay(file, hasFile ? SceneText::read(m_base) : nullptr);
    while (replay.step(std::chrono::seconds(0)) == RecoveryReplay::State::Working) { }
    return replay.takeScene();
}

std::string RecoveryRun::recoverText(const std::string& bytes) const
{
    RecoveryFileReader file(bytes);
    if (file.run() != RecoveryFileReader::State::Done)
        return "(" + file.failure() + ")";
    const bool hasFile = file.description().base == RecoveryDescription::Base::File;
    RecoveryReplay replay(file, hasFile ? SceneText::read(m_base) : nullptr);
    if (replay.run() != RecoveryReplay::State::Done)
        return "(" + replay.failure() + ")";
    return NxSceneWriter::toText(replay.takeScene().get());
}

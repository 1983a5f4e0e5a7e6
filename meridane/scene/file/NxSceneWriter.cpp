#include "meridane/scene/file/NxSceneWriter.h"

#include "meridane/scene/file/detail/ScenePrinter.h"

NxSceneWriter::NxSceneWriter(NxGroup* scene)
    : m_printer(std::make_unique<meridane::ScenePrinter>(scene))
{
}

NxSceneWriter::~NxSceneWriter() = default;

void NxSceneWriter::setPathMap(PathMap map)
{
    m_printer->setPathMap(std::move(map));
}

bool NxSceneWriter::step(std::string& text, const meridane::WorkBudget& budget)
{
    return m_printer->step(text, budget);
}

std::string NxSceneWriter::toText(NxGroup* scene)
{
    NxSceneWriter writer(scene);
    std::string text;
    while (writer.step(text, std::chrono::hours(1))) { }
    return writer.failure().empty() ? text : std::string();
}

double NxSceneWriter::progress() const noexcept
{
    return m_printer->progress();
}

const std::string& NxSceneWriter::failure() const noexcept
{
    return m_printer->failure();
}

#include "meridane/scene/file/NxSceneReader.h"

#include "meridane/scene/file/detail/SceneParser.h"

#include <utility>

NxSceneReader::NxSceneReader(std::string text, std::string fileName)
    : m_parser(std::make_unique<meridane::SceneParser>(std::move(text), std::move(fileName)))
{
}

NxSceneReader::~NxSceneReader() = default;

std::optional<NxReadFailure> NxSceneReader::checkBeginning(std::string beginning, std::string fileName)
{
    meridane::SceneParser parser(std::move(beginning), std::move(fileName));
    parser.readFirstLine();
    return parser.hasFailed() ? std::optional(parser.failure()) : std::nullopt;
}

NxSceneReader::State NxSceneReader::step(const meridane::WorkBudget& budget)
{
    m_parser->step(budget);
    return state();
}

NxSceneReader::State NxSceneReader::run()
{
    while (step(std::chrono::hours(1)) == State::Working) { }
    return state();
}

NxSceneReader::State NxSceneReader::state() const noexcept
{
    return m_parser->isDone() ? State::Done : m_parser->hasFailed() ? State::Failed : State::Working;
}

double NxSceneReader::progress() const noexcept
{
    return m_parser->progress();
}

const NxReadFailure& NxSceneReader::failure() const noexcept
{
    return m_parser->failure();
}

NxRef<NxGroup> NxSceneReader::takeScene()
{
    return m_parser->takeScene();
}

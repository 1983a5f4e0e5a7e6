#include "meridane/scene/file/NxSceneReader.h"

#include "meridane/scene/file/detail/SceneParser.h"

#include <utility>

NxSceneReader::NxSceneReader(std::string text, std::string fileName)
    : m_parser(std::make_unique<Parser>(std::move(text), std::move(fileName)))
{
}

NxSceneReader::~NxSceneReader() = default;

std::optional<NxReadFailure> NxSceneReader::checkBeginning(std::string beginning, std::string fileName)
{
    Parser parser(std::move(beginning), std::move(fileName));
    parser.readFirstLine();
    return parser.state() == State::Failed ? std::optional(parser.failure()) : std::nullopt;
}

NxSceneReader::State NxSceneReader::step(const meridane::WorkBudget& budget)
{
    return m_parser->step(budget);
}

NxSceneReader::State NxSceneReader::run()
{
    while (step(std::chrono::hours(1)) == State::Working) { }
    return state();
}

NxSceneReader::State NxSceneReader::state() const noexcept
{
    return m_parser->state();
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

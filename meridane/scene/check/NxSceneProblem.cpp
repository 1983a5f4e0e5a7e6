#include "meridane/scene/check/NxSceneProblem.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"

namespace meridane {
namespace {

std::string number(std::size_t count)
{
    return std::to_string(count);
}

/// Such as "3 of 12 values aren't finite numbers", or "it isn't a finite number".
std::string valuesText(const ProblemFacts& problem, const char* one, const char* several)
{
    if (problem.total == 1)
        return std::string("it ") + one;
    return number(problem.count) + " of " + number(problem.total) + " numbers " + (problem.count == 1 ? one : several);
}

std::string rowsText(const ProblemFacts& problem, const std::string& what, const char* one, const char* several)
{
    return number(problem.count) + " of " + number(problem.total) + " " + what + " "
        + (problem.count == 1 ? one : several);
}

/// A list that has to have one value for each position.
std::string countText(const ProblemFacts& problem, const char* what)
{
    return number(problem.count) + " " + what + " for " + number(problem.total) + " positions; drawn as if it had none";
}

/// What a part of the positions or indices of a mesh is.
std::string partText(const ProblemFacts& problem, const std::string& what)
{
    return number(problem.count) + " of " + number(problem.total) + " " + what + "; what they belong to isn't drawn";
}

std::string incompleteText(const ProblemFacts& problem)
{
    return "the number of its " + std::string(problem.detail) + ", " + number(problem.total) + ", isn't a multiple of "
        + number(problem.limit) + "; the last ones aren't drawn";
}

std::string largeImageText(const ProblemFacts& problem)
{
    return "its image of " + std::string(problem.detail) + " pixels is drawn smaller; the GPU takes "
        + number(problem.limit) + " a side";
}

std::string lightsText(const ProblemFacts& problem)
{
    const std::string limit = number(problem.limit);
    if (problem.isShared)
        return "more than " + limit + " lights shine on this and " + number(problem.count - 1)
            + " more of its group; those behind the first " + limit + " are left out";
    return number(problem.count) + " lights shine on it; those behind the first " + limit + " are left out";
}

std::string switchText(const ProblemFacts& problem)
{
    return "it has no child of that number, so it shows none; it has " + number(problem.total)
        + (problem.total == 1 ? " child" : " children");
}

std::string duplicateText(const ProblemFacts& problem)
{
    const std::string name = "'" + std::string(problem.detail) + "'";
    if (problem.isShared)
        return number(problem.count) + " more names of this group are those of several children, such as " + name;
    return number(problem.count) + " children of the same group are called " + name;
}

const char* unusedWord(NxProblemKind kind) noexcept
{
    switch (kind) {
    case NxProblemKind::UnusedMaterial:
        return "material";
    case NxProblemKind::UnusedTexture:
        return "texture";
    case NxProblemKind::UnusedLight:
        return "light";
    default:
        return "complexity";
    }
}

std::string unusedText(NxProblemKind kind, const ProblemFacts& problem)
{
    const std::string what = unusedWord(kind);
    if (problem.isShared)
        return "this " + what + " and " + number(problem.count - 1)
            + " more of its group apply to nothing, since no mesh follows them";
    return "no mesh follows this " + what + " in its group, so it applies to nothing";
}

// Of the kinds that say the same of every node.
const char* fixedText(NxProblemKind kind)
{
    switch (kind) {
    case NxProblemKind::ZeroScale:
        return "a scale factor is 0; what it places is flat or can't be drawn";
    case NxProblemKind::ZeroAxis:
        return "its axis has length 0, so it has no direction";
    case NxProblemKind::SingularMatrix:
        return "its matrix can't be inverted; what it places is flat or can't be drawn";
    case NxProblemKind::NoPositions:
        return "it has no positions to draw";
    case NxProblemKind::NoImage:
        return "it has neither an image nor an image file; surfaces are drawn without it";
    case NxProblemKind::CameraDistances:
        return "its far distance isn't greater than its near distance, so it sees nothing";
    case NxProblemKind::EmptyGroup:
        return "it has no children";
    case NxProblemKind::UnknownClass:
        return "its class isn't known here; it is kept as it is";
    default:
        return "";
    }
}

} // namespace

// One long switch, so that the compiler finds a kind without a text.
std::string problemText(NxProblemKind kind, const ProblemFacts& problem)
{
    switch (kind) {
    case NxProblemKind::NotFinite:
        return valuesText(problem, "isn't a finite number", "aren't finite numbers");
    case NxProblemKind::OutOfRange:
        return valuesText(problem, "is out of range", "are out of range") + ", " + std::string(problem.detail);
    case NxProblemKind::PositionNotFinite:
        return partText(problem, "positions are no finite numbers");
    case NxProblemKind::IndexOutOfRange:
        return partText(problem, "indices are out of range, from 0 to " + number(problem.limit - 1));
    case NxProblemKind::IncompletePrimitive:
        return incompleteText(problem);
    case NxProblemKind::NormalCount:
        return countText(problem, "normals");
    case NxProblemKind::ColorCount:
        return countText(problem, "colours");
    case NxProblemKind::CoordinateCount:
        return countText(problem, "texture coordinates");
    case NxProblemKind::ZeroNormal:
        return rowsText(problem, "normals", "has length 0", "have length 0");
    case NxProblemKind::NormalLength:
        return rowsText(problem, "normals", "doesn't have length 1", "don't have length 1");
    case NxProblemKind::DegenerateFaces:
        return rowsText(problem, std::string(problem.detail), "has no size", "have no size") + " and can't be seen";
    case NxProblemKind::MissingFile:
        return "the file '" + std::string(problem.detail) + "' doesn't exist";
    case NxProblemKind::UnreadableFile:
        return "the file " + std::string(problem.detail);
    case NxProblemKind::ImageTooLarge:
        return largeImageText(problem);
    case NxProblemKind::LightWithoutEffect:
        return "it is on, but " + std::string(problem.detail) + ", so it lights nothing";
    case NxProblemKind::TooManyLights:
        return lightsText(problem);
    case NxProblemKind::SwitchIndex:
        return switchText(problem);
    case NxProblemKind::DuplicateName:
        return duplicateText(problem);
    case NxProblemKind::UnusedMaterial:
    case NxProblemKind::UnusedTexture:
    case NxProblemKind::UnusedLight:
    case NxProblemKind::UnusedComplexity:
        return unusedText(kind, problem);
    case NxProblemKind::ZeroScale:
    case NxProblemKind::ZeroAxis:
    case NxProblemKind::SingularMatrix:
    case NxProblemKind::NoPositions:
    case NxProblemKind::NoImage:
    case NxProblemKind::CameraDistances:
    case NxProblemKind::EmptyGroup:
    case NxProblemKind::UnknownClass:
        return fixedText(kind);
    }
    return {};
}

} // namespace meridane

std::string NxSceneProblem::sentence() const
{
    std::string text = meridane::problemText(kind, {count, total, limit, detail, places != nullptr});
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text + '.';
}

#pragma once

#include "orvane/app/view/handles/HandleShape.h"

#include <array>
#include <optional>

/// Turns a drag of a part of handles, or numbers that are typed, into a change in the scene. Doesn't know nodes.
class HandleDrag {
public:
    using Kind = meridane::PlacementChange::Kind;
    /// Distances along the axes, angles about them in degrees, or factors; those that aren't given are absent.
    using Numbers = std::array<std::optional<double>, 3>;

    /// The drag begins at `start`. The projection mustn't change while it lasts.
    HandleDrag(Kind kind, HandlePart part, const HandleFrame& frame, const meridane::PictureProjection& projection,
        const meridane::PicturePlace& start);

    [[nodiscard]] Kind kind() const noexcept { return m_kind; }
    [[nodiscard]] HandlePart part() const noexcept { return m_part; }
    [[nodiscard]] const HandleFrame& frame() const noexcept { return m_frame; }

    /// The change for a pointer at that place. Snapped to a round distance, 15 degrees or a tenth of a factor.
    [[nodiscard]] meridane::PlacementChange changeAt(const meridane::PicturePlace& place, bool snaps);
    /// The change of numbers. A turn takes the last of them that is given; three are one about the line of sight.
    [[nodiscard]] meridane::PlacementChange changeOf(const Numbers& numbers);
    /// What the latest change does along the axes; what it leaves as it is is absent.
    [[nodiscard]] const Numbers& numbers() const noexcept { return m_numbers; }
    /// The axis that a number without a letter is for: 0 to 2, or -1 for all, or for the line of sight.
    [[nodiscard]] int numberAxis() const;
    /// The distance to which moves are snapped, in scene units: a 1, 2 or 5 with zeros.
    [[nodiscard]] double snapDistance() const;

private:
    [[nodiscard]] meridane::PlacementChange moveAt(const meridane::PicturePlace& place, bool snaps);
    [[nodiscard]] meridane::PlacementChange turnAt(const meridane::PicturePlace& place, bool snaps);
    [[nodiscard]] meridane::PlacementChange scaleAt(const meridane::PicturePlace& place, bool snaps);
    [[nodiscard]] VbVec3d axis(int number) const;
    [[nodiscard]] double alongAxis(const meridane::PicturePlace& place) const;
    [[nodiscard]] VbVec3d onPlane(const meridane::PicturePlace& place) const;
    [[nodiscard]] double angleAt(const meridane::PicturePlace& place) const;

    Kind m_kind;
    HandlePart m_part;
    HandleFrame m_frame;
    meridane::PictureProjection m_projection;
    meridane::PicturePlace m_start;
    VbVec3d m_sight; // from the eye to the pivot
    VbVec3d m_normal; // of the plane in which the pointer moves
    double m_startAlong = 0;
    VbVec3d m_startPoint;
    double m_lastAngle = 0;
    double m_angle = 0; // of the whole turn, which may be several times around
    Numbers m_numbers;
};

#pragma once

#include "meridane/gl/geometry/PictureProjection.h"
#include "meridane/gl/geometry/PlacementChange.h"

#include <array>
#include <vector>

/// The parts of handles: what is dragged.
enum class HandlePart {
    None,
    X, ///< along the x axis, or about it
    Y,
    Z,
    YZ, ///< in the plane of two axes
    ZX,
    XY,
    Center, ///< in the plane of the picture, about the line of sight, or the same along all axes
};

/// Where handles are in the scene.
struct HandleFrame {
    VbVec3d pivot; ///< in scene units
    std::array<VbVec3d, 3> axes{VbVec3d(1, 0, 0), VbVec3d(0, 1, 0), VbVec3d(0, 0, 1)}; ///< each of length 1
};

/// The shape of handles in a picture, of the same size at any distance, and which part is at a place.
class HandleShape {
public:
    using Kind = meridane::PlacementChange::Kind;

    /// The length of an arm, and the radius of the rings, in points of the screen.
    static constexpr double armLength = 80;
    /// The cosine of the angle between the line of sight and the normal of a plane below which the plane is seen from
    /// its edge.
    static constexpr double flattest = 0.15;

    /// A line or an area of a part.
    struct Piece {
        HandlePart part = HandlePart::None;
        std::vector<meridane::PicturePlace> places;
        bool isArea = false; ///< filled, and closed
    };

    HandleShape(Kind kind, const HandleFrame& frame, const meridane::PictureProjection& projection);

    /// Whether the pivot is in front of the viewer; if it isn't, there are no handles.
    [[nodiscard]] bool isSeen() const noexcept { return m_isSeen; }
    [[nodiscard]] const meridane::PicturePlace& center() const noexcept { return m_center; }
    /// The pieces, from the one that is farthest behind to the one in front. An axis that points at the viewer has no
    /// arm, and a plane that is seen from its edge no area.
    [[nodiscard]] const std::vector<Piece>& pieces() const noexcept { return m_pieces; }
    /// The part at a place, or None.
    [[nodiscard]] HandlePart partAt(const meridane::PicturePlace& place) const;

private:
    void addArms(const HandleFrame& frame, const meridane::PictureProjection& projection);
    void addPlanes(const HandleFrame& frame, const meridane::PictureProjection& projection);
    void addRings(const HandleFrame& frame, const meridane::PictureProjection& projection);

    double m_unit = 1; // the length of an arm in the scene
    bool m_isSeen = false;
    meridane::PicturePlace m_center{};
    std::vector<Piece> m_pieces;
};

/// The axis of a part with one axis, or the one across the plane of a part with two: 0 to 2, or -1 for the center.
[[nodiscard]] int axisOf(HandlePart part);

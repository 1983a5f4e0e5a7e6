#pragma once

/// \file
/// The progress of a picture that is drawn bit by bit.

/// How far a picture is that is drawn bit by bit: see `NxSceneDrawing::proceed`.
enum class NxPictureState {
    Unfinished, ///< more is to be drawn
    Finished, ///< as if it had been drawn at once
    Outdated, ///< something has changed, or another picture was drawn; it can't be finished
};

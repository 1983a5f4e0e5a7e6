#pragma once

#include "orvane/app/command_line/CommandLine.h"

class NxGroup;

/// The picture of the scene that a command line asks for.
namespace orvane {

/// Refuses, before the scene is opened, what can't work whatever is in it: the format of the file, or a transparent
/// background in a format without it. Nothing to refuse if no picture is asked for.
Result<> checkPicture(const CommandLine& commandLine);
/// Draws the picture, from the camera or bookmark of the command line, or of the whole scene, and writes it.
Result<> writePicture(NxGroup* scene, const CommandLine& commandLine);
/// Says that images in a folder outside the scene's own aren't loaded.
void printRefusedFolder(const QString& folder);

} // namespace orvane

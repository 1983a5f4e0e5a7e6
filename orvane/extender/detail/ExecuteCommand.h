#pragma once

class OrvCommand;

namespace orvane {

/// Executes a command. What a plug-in throws ends with the call, and the plug-in is named. A command may push commands;
/// those that do so without end are stopped after 100 in each other, as if the last one had thrown.
void executeCommand(OrvCommand& command);

} // namespace orvane

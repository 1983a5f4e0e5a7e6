#include "orvane/extender/OrvCommand.h"

OrvCommand::OrvCommand() = default;

OrvCommand::~OrvCommand() = default;

#pragma once

/// One change that the user made, as the undo history keeps it.
///
/// A command is made with `new`, handed to `OrvServices::pushCommand` at once and owned by the host from then on. It
/// has no label and is never merged. Its operations must not throw. Thread of the user interface only.
class OrvCommand {
public:
    /// The host's one call when the command is pushed.
    virtual void execute() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual ~OrvCommand();

    OrvCommand(const OrvCommand&) = delete;
    OrvCommand& operator=(const OrvCommand&) = delete;

protected:
    OrvCommand();
};

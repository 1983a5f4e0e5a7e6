#pragma once

/// One change by the user, kept in the undo history.
///
/// Make a command with `new` and pass it to `OrvServices::pushCommand` at once; from then on the host owns it. A
/// command has no label and is never merged. Its operations must not throw. Thread of the user interface only.
class OrvCommand {
public:
    /// The host calls it once, when the command is pushed.
    virtual void execute() = 0;
    virtual void undo() = 0; ///< Takes back what `execute` or `redo` did.
    virtual void redo() = 0; ///< Does again what `undo` took back.
    virtual ~OrvCommand();

    OrvCommand(const OrvCommand&) = delete;
    OrvCommand& operator=(const OrvCommand&) = delete;

protected:
    OrvCommand();
};

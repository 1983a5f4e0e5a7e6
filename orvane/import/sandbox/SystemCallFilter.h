#pragma once

/// What this process may ask the kernel for.
namespace orvane {

/// Lets this process, from now on, read files and memory, compute, write to what is open already and end; whatever else
/// it asks the kernel for fails with EPERM: opening a file for writing, changing folders, sockets, processes and
/// threads of its own, other programs, signals to others, tracing, memory that holds code.
///
/// An allow list, so that calls which later kernels bring are refused too. An error rather than the death of the
/// process, so that a library that tries something needless, and can go on without, still gives its result or a
/// message of its own. False when the kernel, or a sandbox around this process, has no such filters.
[[nodiscard]] bool filterSystemCalls();

} // namespace orvane

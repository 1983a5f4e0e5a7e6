#pragma once

/// Restricts the system calls of this process.
namespace orvane {

/// From now on this process can read files, use memory, write to open files and exit. All other system calls fail with
/// EPERM: opening a file for writing, changing folders, sockets, new processes and threads, other programs, signals to
/// others, tracing, executable memory.
///
/// It is an allow list, so that system calls of later kernels are refused too. They fail with an error and don't kill
/// the process, so that a library that tries something unnecessary still gives its result or its own message. Returns
/// false if the kernel, or a sandbox around this process, has no such filters.
[[nodiscard]] bool filterSystemCalls();

} // namespace orvane

#include "meridane/base/errors/NxErrorHandler.h"

#include "meridane/base/errors/NxDebugError.h"

#include <algorithm>
#include <condition_variable>
#include <iostream>
#include <list>
#include <mutex>
#include <string>
#include <thread>

namespace meridane {

namespace {

/// A handler in progress.
struct Call {
    const ErrorHandlerSlot* slot;
    std::uint64_t generation;
    std::thread::id thread;
    /// The handler is replacing a handler itself, and waits for other calls to end.
    bool isWaiting = false;
};

/// The calls of all classes. Errors are rare, so that one lock serves them all; it is never held during a call.
struct CallRegistry {
    std::mutex mutex;
    std::condition_variable hasChanged;
    std::list<Call> calls;

    void setWaiting(std::thread::id thread, bool isWaiting)
    {
        for (Call& call : calls) {
            if (call.thread == thread)
                call.isWaiting = isWaiting;
        }
        hasChanged.notify_all();
    }
};

CallRegistry& callRegistry()
{
    // Never destroyed, because threads and static destructors may post until the process ends.
    static CallRegistry& registry = *new CallRegistry;
    return registry;
}

/// Keeps a call in the registry while its handler runs, however it ends.
class CallScope {
public:
    explicit CallScope(std::list<Call>::iterator call)
        : m_call(call)
    {
    }
    CallScope(const CallScope&) = delete;
    CallScope& operator=(const CallScope&) = delete;
    ~CallScope()
    {
        CallRegistry& registry = callRegistry();
        const std::lock_guard lock(registry.mutex);
        registry.calls.erase(m_call);
        registry.hasChanged.notify_all();
    }

private:
    std::list<Call>::iterator m_call;
};

const char* labelOf(const NxError& error)
{
    switch (NxDebugError::severityOf(error)) {
    case NxDebugError::Error:
        return "error: ";
    case NxDebugError::Warning:
        return "warning: ";
    case NxDebugError::Information:
        return "information: ";
    }
    return "";
}

void print(const NxError& error)
{
    std::string line = labelOf(error);
    line += error.getDebugString().view();
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    line += '\n';
    // One block, so that lines of several threads aren't mixed.
    std::cerr.write(line.c_str(), static_cast<std::streamsize>(line.size()));
}

} // namespace

NxErrorHandler ErrorHandlerSlot::callback() const
{
    const std::lock_guard lock(callRegistry().mutex);
    return m_callback;
}

void* ErrorHandlerSlot::data() const
{
    const std::lock_guard lock(callRegistry().mutex);
    return m_data;
}

void ErrorHandlerSlot::set(NxErrorHandler handler, void* data)
{
    CallRegistry& registry = callRegistry();
    std::unique_lock lock(registry.mutex);
    m_callback = handler;
    m_data = data;
    const std::uint64_t generation = ++m_generation;
    const std::thread::id self = std::this_thread::get_id();
    const auto isToWaitFor = [this, generation, self](const Call& call) {
        return call.slot == this && call.generation < generation && call.thread != self && !call.isWaiting;
    };
    // Handlers that set handlers must not wait for each other in a circle, so a call that waits here counts as ended.
    registry.setWaiting(self, true);
    registry.hasChanged.wait(
        lock, [&] { return std::none_of(registry.calls.begin(), registry.calls.end(), isToWaitFor); });
    registry.setWaiting(self, false);
}

void ErrorHandlerSlot::deliver(const NxError& error) const
{
    CallRegistry& registry = callRegistry();
    std::unique_lock lock(registry.mutex);
    if (m_callback == nullptr) {
        lock.unlock();
        print(error);
        return;
    }
    const NxErrorHandler handler = m_callback;
    void* const data = m_data;
    registry.calls.push_front({this, m_generation, std::this_thread::get_id()});
    const CallScope scope(registry.calls.begin());
    lock.unlock();
    handler(&error, data);
}

} // namespace meridane

#pragma once

#include "meridane/base/errors/NxError.h"

#include <mutex>
#include <string>
#include <vector>

/// Gives an error class a handler for as long as it lives, then the former one back.
template <typename ErrorClass>
class HandlerGuard {
public:
    HandlerGuard(NxErrorHandler callback, void* data)
        : m_callback(ErrorClass::getHandlerCallback())
        , m_data(ErrorClass::getHandlerData())
    {
        ErrorClass::setHandlerCallback(callback, data);
    }
    HandlerGuard(const HandlerGuard&) = delete;
    HandlerGuard& operator=(const HandlerGuard&) = delete;
    ~HandlerGuard() { ErrorClass::setHandlerCallback(m_callback, m_data); }

private:
    NxErrorHandler m_callback;
    void* m_data;
};

/// A handler that keeps the texts it is given. Any thread.
class TextRecorder {
public:
    static void record(const NxError* error, void* data)
    {
        auto* const recorder = static_cast<TextRecorder*>(data);
        const std::lock_guard lock(recorder->m_mutex);
        recorder->m_texts.emplace_back(error->getDebugString().view());
    }

    [[nodiscard]] std::vector<std::string> texts() const
    {
        const std::lock_guard lock(m_mutex);
        return m_texts;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_texts;
};

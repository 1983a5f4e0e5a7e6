#pragma once

#include <QtGlobal>

#include <unistd.h>

/// Takes the rights of the super user away for its lifetime, so that permissions count.
class OrdinaryUser {
public:
    OrdinaryUser()
        : m_privileged(::geteuid() == 0)
    {
        constexpr uid_t nobody = 65534;
        if (m_privileged)
            m_ready = ::seteuid(nobody) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_privileged && ::seteuid(0) != 0)
            qFatal("the rights can't be taken back");
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    [[nodiscard]] bool isReady() const { return m_ready; }

private:
    bool m_privileged;
    bool m_ready = true;
};

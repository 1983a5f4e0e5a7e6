#pragma once

#include "orvane/app/problems/LiveCheck.h"

#include "meridane/query/QueryFacts.h"

#include <QBasicTimer>
#include <QObject>

#include <cstddef>
#include <memory>

/// Which nodes of the open scene are unused and which files are missing, kept up to date by a check in slices while it
/// is switched on.
class FindFacts : public QObject {
    Q_OBJECT

public:
    using Facts = std::shared_ptr<const meridane::QueryFacts>;

    /// Both live longer.
    FindFacts(Session& session, ImageFolderQuestion& folders);

    void setOn(bool isOn);
    /// What was found last; null if nothing was yet.
    [[nodiscard]] const Facts& facts() const noexcept { return m_facts; }
    /// Whether the facts are those of the scene as it is now.
    [[nodiscard]] bool isSettled() const noexcept { return m_facts != nullptr && m_check.isSettled() && !m_coming; }

Q_SIGNALS:
    /// There are other facts.
    void changed();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void follow();
    bool takeNext();

    LiveCheck m_check;
    Facts m_facts;
    std::shared_ptr<meridane::QueryFacts> m_coming; // while they are taken from the problems
    std::size_t m_list = 0;
    std::size_t m_problem = 0; // of the list
    std::size_t m_sibling = 0; // of the problem
    QBasicTimer m_slices;
};

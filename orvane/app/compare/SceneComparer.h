#pragma once

#include "meridane/scene/compare/NxSceneDifference.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QObject>
#include <QString>

#include <memory>

class ComparisonJob;
class DifferencePanel;
class JobBar;
class MessageBar;
class SceneDisposal;
class Session;

/// Compares the open scene with another one and shows the differences in a panel. The comparison belongs to the scene
/// that was open when it was asked for: it ends with it.
class SceneComparer : public QObject {
    Q_OBJECT

public:
    /// All live longer than the comparer, or are deleted with it by its parent.
    SceneComparer(Session& session, MessageBar& messages, JobBar& jobBar, DifferencePanel* panel, QObject* parent);
    ~SceneComparer() override;

    /// Compares the open scene with another, which the user knows as the file of that name. Doesn't block; `started`
    /// is emitted at once and `ended` in the end. A comparison that still runs is given up, its result isn't shown.
    /// Does nothing if no scene is open.
    void compare(const NxRef<NxGroup>& other, const QString& fileName);
    /// Compares with the same scene again.
    void compareAgain();
    /// Drops the other scene and the result.
    void clear();
    [[nodiscard]] bool isWorking() const noexcept { return m_job != nullptr; }

Q_SIGNALS:
    void started();
    /// The result is shown, or the user cancelled the comparison, or it failed.
    void ended();

private:
    void leaveScene();
    void takeResult();
    void giveUp();
    void retireJob();
    [[nodiscard]] QString otherName() const;

    Session& m_session;
    MessageBar& m_messages;
    JobBar& m_jobBar;
    DifferencePanel* m_panel;
    NxRef<NxGroup> m_other;
    QString m_otherFile;
    std::unique_ptr<ComparisonJob> m_job;
};

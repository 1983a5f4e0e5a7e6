#pragma once

#include "app/AppScenes.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/files/FileFlow.h"

#include "meridane/scene/nodes/NxTransform.h"

#include <QFileInfo>

#include <vector>

/// Jobs that read and write nothing, and run until the test lets them end. So it's the test that decides what happens
/// while a job runs, not the speed of the machine.
class HeldJobs {
public:
    /// The scene of any file "x.mrd" is one group "x" with a child.
    class Load : public SceneJob {
    public:
        Load(HeldJobs& jobs, const QString& fileName)
            : SceneJob(fileName)
            , m_jobs(jobs)
        {
        }
        ~Load() override { m_jobs.forget(this); }

        void start() override { m_jobs.started(this, QStringLiteral("read ")); }
        void finish()
        {
            const NxRef<NxGroup> scene(new NxGroup);
            const NxRef<NxTransform> group(new NxTransform);
            if (m_jobs.m_note.isConverted)
                group->scaleFactor.setValue(VbVec3f(0.01F, 0.01F, 0.01F));
            group->setName(orvane::toVbString(QFileInfo(fileName()).completeBaseName()));
            group->addChild(new NxGroup);
            scene->addChild(group.get());
            setWarnings(m_jobs.m_warnings);
            setNote(m_jobs.m_note);
            finishAtOnceWith(scene);
        }
        void fail(const QString& message) { failToRead({{}, 0, 0, message.toStdString()}); }

    private:
        HeldJobs& m_jobs;
    };

    /// Notes which scene it was to write.
    class Save : public FileJob {
    public:
        Save(HeldJobs& jobs, const NxRef<NxGroup>& scene, const QString& fileName)
            : FileJob(fileName)
            , m_jobs(jobs)
            , m_scene(scene)
        {
        }
        ~Save() override { m_jobs.forget(this); }

        void start() override { m_jobs.started(this, QStringLiteral("write %1 to ").arg(nameOf(m_scene.get()))); }
        using FileJob::fail;
        using FileJob::finish;

    private:
        HeldJobs& m_jobs;
        NxRef<NxGroup> m_scene;
    };

    [[nodiscard]] FileFlow::JobMakers makers()
    {
        return {[this](const QString& fileName) { return std::make_unique<Load>(*this, fileName); },
            [this](const NxRef<NxGroup>& scene, const QString& fileName, const QString& /*pathFolder*/) {
                return std::make_unique<Save>(*this, scene, fileName);
            }};
    }

    /// The jobs that run, in the order in which they were started.
    [[nodiscard]] const std::vector<FileJob*>& running() const { return m_running; }
    [[nodiscard]] QStringList& log() { return m_log; }
    /// The warnings of the files that are read from now on.
    void setWarnings(const QStringList& warnings) { m_warnings = warnings; }
    void setNote(const orvane::SpaceNote& note) { m_note = note; }

    static void finish(FileJob* job)
    {
        if (auto* load = dynamic_cast<Load*>(job))
            load->finish();
        else
            static_cast<Save*>(job)->finish();
    }
    static void fail(FileJob* job, const QString& message)
    {
        if (auto* load = dynamic_cast<Load*>(job))
            load->fail(message);
        else
            static_cast<Save*>(job)->fail(message);
    }

    /// The names of a scene's top nodes.
    static QString nameOf(NxGroup* scene)
    {
        QStringList names;
        for (int index = 0; scene != nullptr && index < scene->getNumChildren(); ++index)
            names += orvane::toQString(scene->getChild(index)->getName());
        return scene == nullptr ? QStringLiteral("nothing") : u'[' + names.join(u'+') + u']';
    }

private:
    void started(FileJob* job, const QString& what)
    {
        m_running.push_back(job);
        m_log += what + QFileInfo(job->fileName()).fileName();
    }
    void forget(FileJob* job) { std::erase(m_running, job); }

    std::vector<FileJob*> m_running;
    QStringList m_log;
    QStringList m_warnings;
    orvane::SpaceNote m_note;
};

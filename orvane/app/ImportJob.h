#pragma once

#include "orvane/app/FileJob.h"
#include "orvane/app/HelperProcess.h"

#include "meridane/scene/NxSceneReader.h"

#include <QTimer>

#include <memory>

/// Reads a foreign model: the import helper turns it into the text of a scene, which is read in slices. The paths of
/// textures in the scene are relative to the folder of the model. A failure is posted as an `NxReadError` too.
class ImportJob : public SceneJob {
    Q_OBJECT

public:
    explicit ImportJob(const QString& fileName, const HelperOptions& options = {});
    ~ImportJob() override;

    void start() override;
    void cancel() override;

private:
    void readScene();
    void readSlice();
    void fail(const QString& message);
    void end();

    HelperProcess m_helper;
    std::unique_ptr<NxSceneReader> m_reader;
    QTimer m_slices;
    bool m_ended = false;
};

#pragma once

#include "orvane/app/base/HelperProcess.h"
#include "orvane/app/files/FileJob.h"
#include "orvane/transfer/PackedSceneReader.h"

#include "meridane/base/FileHasher.h"

#include <memory>

/// Reads a foreign model: the import helper turns it into a packed scene, which is read in slices as soon as it is
/// there as a whole, while the helper ends. The paths of textures in the scene are relative to the folder of the model.
class ImportJob : public SceneJob {
    Q_OBJECT

public:
    explicit ImportJob(const QString& fileName, const HelperOptions& options = {});
    ~ImportJob() override;

    void start() override;

protected:
    void readSlice() override;
    void release() override;

private:
    void hashFile();
    void takeOutput();
    void startReading();
    void finishWhenAllIsDone();
    void failForNoScene(const QString& reason);
    void failToImport(const QString& message);

    /// Before the helper is started, so that a change of the file while it is read is noticed later.
    meridane::FileHasher m_hasher;
    HelperProcess m_helper;
    orvane::PackedParts m_parts;
    std::unique_ptr<orvane::PackedSceneReader> m_reader; // once all parts are there, or the helper has ended
    bool m_helperEnded = false;
};

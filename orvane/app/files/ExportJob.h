#pragma once

#include "orvane/app/base/HelperProcess.h"
#include "orvane/app/files/FileJob.h"
#include "orvane/transfer/FramedFiles.h"

#include "meridane/base/Files.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <cstddef>
#include <memory>
#include <vector>

/// Writes a scene as a foreign model, in the format that the file's extension names: the text of the scene goes to the
/// import helper, and the files that come back are written, all of them or none. The scene must not change meanwhile.
///
/// The model's file replaces one of its name, and so do the files that belong to it by the same name with another
/// extension. No other file is ever replaced: not such a file without a model, nor what has the name of an image.
class ExportJob : public FileJob {
    Q_OBJECT

public:
    /// Relative file paths in the scene count from `pathFolder`, see `orvane::rebasedPath`.
    ExportJob(const NxRef<NxGroup>& scene, const QString& fileName, const HelperOptions& options = {},
        const QString& pathFolder = {});
    ~ExportJob() override;

    void start() override;

protected:
    void runSlice() override;
    void release() override;

private:
    void writeScene();
    void checkFile();
    void takeFiles();
    void writeFiles();
    void commitFiles();

    NxRef<NxGroup> m_scene;
    QString m_pathFolder;
    HelperProcess m_helper;
    std::unique_ptr<NxSceneWriter> m_writer;
    std::vector<orvane::NamedFile> m_files;
    std::size_t m_unchecked = 0; // of them, from the first; the model's own file needn't be checked
    bool m_replacesModel = false;
    std::vector<std::unique_ptr<meridane::FileReplacer>> m_replacers; // of the files that are open, in their order
    std::size_t m_written = 0; // of the last of them, in bytes
};

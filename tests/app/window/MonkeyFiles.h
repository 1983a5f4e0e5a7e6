#pragma once

#include "TestFiles.h"
#include "app/AppScenes.h"

#include "orvane/app/base/TextConversion.h"

#include <QDir>
#include <QTemporaryDir>

#include <array>
#include <cstddef>

/// The files that a random test of the window reads and writes, some of which can't be.
class MonkeyFiles {
public:
    MonkeyFiles()
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("folder.mrd"));
        writeFile(path("small.mrd"), AppScenes::robotText);
        restorePart();
        writeFile(path("part.obj"), "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
        writeFile(path("broken.mrd"), "#mrd 1.0\nGroup {\n");
        // Several slices of reading and of writing.
        writeFile(path("large.mrd"), QByteArray::fromStdString(NxSceneWriter::toText(AppScenes::wide(4000).get())));
    }

    [[nodiscard]] QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    /// Writes the file that is added to scenes. One that was saved to, parts included, would grow beyond all bounds.
    void restorePart() { writeFile(path("part.mrd"), "#mrd 1.0\nMesh \"bolt\" {}\n"); }

    /// How many models from those files have been added to a scene.
    [[nodiscard]] static int countParts(const NxGroup* scene)
    {
        int count = 0;
        for (const NxNode* child : scene->getChildren())
            count += orvane::toQString(child->getName()) == QLatin1String("part") ? 1 : 0;
        return count;
    }

    /// A file for a random number.
    [[nodiscard]] QString toRead(std::size_t number) const
    {
        static constexpr std::array<const char*, 8> names{
            "small.mrd", "small.mrd", "large.mrd", "large.mrd", "one.mrd", "broken.mrd", "missing.mrd", "part.obj"};
        return path(names[number % names.size()]);
    }
    [[nodiscard]] QString toWrite(std::size_t number) const
    {
        static constexpr std::array<const char*, 6> names{
            "one.mrd", "two.mrd", "small.mrd", "large.mrd", "folder.mrd", "missing/x.mrd"};
        return path(names[number % names.size()]);
    }

private:
    QTemporaryDir m_folder;
};

#pragma once

#include "TestFiles.h"
#include "import/HelperRun.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QStringList>
#include <QTemporaryDir>

#include <string>
#include <string_view>
#include <vector>

/// A folder of models that a test writes and has the helper read.
class ReadModels {
public:
    /// Writes a file of the folder, without reading it.
    void write(const char* name, const QByteArray& bytes) const { writeFile(path(name), bytes); }

    /// Writes a model and reads it with these further arguments. Returns null if it is refused.
    NxRef<NxGroup> read(const char* name, const QByteArray& model, const QStringList& arguments = {})
    {
        write(name, model);
        const HelperRun run = runHelper(QStringList{QStringLiteral("--read"), path(name)} + arguments);
        m_crashed = run.crashed;
        m_message = run.message();
        m_warnings.clear();
        m_note.clear();
        for (const QString& line : run.error.split(u'\n')) {
            if (line.startsWith(QStringLiteral("warning: ")))
                m_warnings += line.mid(9);
            if (line.startsWith(QStringLiteral("note: ")))
                m_note = line.mid(6);
        }
        std::string error;
        return run.status == 0 ? sceneOf(run.output, error) : NxRef<NxGroup>();
    }

    [[nodiscard]] QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    /// The warnings of the model that was read last.
    [[nodiscard]] const QStringList& warnings() const { return m_warnings; }
    /// What was said of its space.
    [[nodiscard]] const QString& note() const { return m_note; }
    /// Why it was refused, without the path.
    [[nodiscard]] QString message() const { return m_message.section(QStringLiteral(": "), 1); }
    [[nodiscard]] bool hasCrashed() const { return m_crashed; }

    /// All nodes of a class below a group, in order.
    template <typename Node>
    static std::vector<Node*> all(const NxGroup& group)
    {
        std::vector<Node*> found;
        for (NxNode* child : group.getChildren()) {
            if (auto* node = dynamic_cast<Node*>(child))
                found.push_back(node);
            if (const auto* inner = dynamic_cast<const NxGroup*>(child)) {
                const std::vector<Node*> below = all<Node>(*inner);
                found.insert(found.end(), below.begin(), below.end());
            }
        }
        return found;
    }

private:
    QTemporaryDir m_folder;
    QString m_message;
    QStringList m_warnings;
    QString m_note;
    bool m_crashed = false;
};

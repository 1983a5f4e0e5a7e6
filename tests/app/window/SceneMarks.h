#pragma once

#include "TestFiles.h"
#include "app/AppScenes.h"

#include "orvane/app/base/TextConversion.h"

#include <QMultiHash>
#include <QRegularExpression>
#include <QString>

/// Marks scenes by the name of a node, so that a file shows whose it is, and knows which of them each file may hold.
class SceneMarks {
public:
    /// Of the scene that was marked last, or 0.
    [[nodiscard]] int current() const { return m_current; }
    /// For a window without a scene.
    void clear() { m_current = 0; }

    /// Gives a scene a mark of its own.
    void mark(NxGroup* scene)
    {
        static int last = 0;
        m_current = ++last;
        renew(scene);
    }

    /// Puts its mark in place of the one that it has from a file.
    void renew(NxGroup* scene) const
    {
        for (int index = scene->getNumChildren() - 1; index >= 0; --index) {
            if (orvane::toQString(scene->getChild(index)->getName()).startsWith(prefix()))
                scene->removeChild(index);
        }
        const NxRef<NxGroup> node(new NxGroup);
        // Twice, since a random edit of the name could make it that of another scene.
        node->setName(orvane::toVbString(prefix() + QStringLiteral("%1-%1z").arg(m_current)));
        scene->insertChild(node.get(), 0);
    }

    /// The scene with that mark may be in the file from now on.
    void allow(const QString& fileName, int mark) { m_allowed.insert(fileName, mark); }

    /// Counts the files with a marked scene in `count`. Returns what is wrong with them, or an empty text.
    [[nodiscard]] QString findWrongFile(int& count) const
    {
        static const QRegularExpression pattern(prefix() + QStringLiteral("([0-9]+)-\\1z"));
        for (const QString& fileName : m_allowed.uniqueKeys()) {
            const QRegularExpressionMatch match = pattern.match(QString::fromUtf8(readFile(fileName).left(200)));
            if (!match.hasMatch())
                continue;
            ++count;
            const int mark = match.captured(1).toInt();
            if (!m_allowed.contains(fileName, mark))
                return fileName + QStringLiteral(" has the scene %1").arg(mark);
        }
        return {};
    }

private:
    static QString prefix() { return QStringLiteral("stamp"); }

    int m_current = 0;
    QMultiHash<QString, int> m_allowed;
};

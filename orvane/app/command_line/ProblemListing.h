#pragma once

#include <QString>

class NxSceneCheck;
class NxGroup;
class QTextStream;

/// Prints the problems of a scene in its order. docs/checking.md describes both forms.
class ProblemListing {
public:
    /// The check must be done. All must outlive the listing.
    ProblemListing(const NxSceneCheck& check, const NxGroup& scene, QTextStream& output)
        : m_check(check)
        , m_scene(scene)
        , m_output(output)
    {
    }

    /// One line for each problem: path, severity, identifier and sentence, separated by tabs. Nothing for a scene
    /// without problems. Ends early when the output can't be written any more, as does the other form.
    void print() const;
    /// One JSON object, a line for each problem.
    void printJson(const QString& file) const;

private:
    const NxSceneCheck& m_check;
    const NxGroup& m_scene;
    QTextStream& m_output;
};

#pragma once

#include "meridane/scene/compare/NxSceneDifferences.h"

#include <QString>

class QTextStream;

/// Prints the differences of two scenes. docs/compare.md describes both forms.
class DifferenceListing {
public:
    /// Both must outlive the listing.
    DifferenceListing(const NxSceneDifferences& differences, QTextStream& output)
        : m_differences(differences)
        , m_output(output)
    {
    }

    /// One line for each difference: kind, path, old and new text, separated by tabs. Long values are shortened.
    /// Nothing for scenes that are equal. Ends early when the output can't be written any more, as does the other form.
    void print() const;
    /// One JSON object, a line for each difference, with whole values.
    void printJson(const QString& oldFile, const QString& newFile) const;

private:
    const NxSceneDifferences& m_differences;
    QTextStream& m_output;
};

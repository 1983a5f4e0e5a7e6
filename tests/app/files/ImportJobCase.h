#pragma once

#include "base/HandlerGuard.h"
#include "import/FakeHelper.h"
#include "import/HelperRun.h"
#include "import/JobRecord.h"

#include "orvane/app/files/ImportJob.h"

#include "meridane/base/errors/NxReadError.h"

#include <QTemporaryDir>
#include <QTest>

/// A test of jobs that import a model, in a folder of its own.
class ImportJobCase : public QObject {
protected:
    /// The helper that users have.
    static HelperOptions realHelper()
    {
        HelperOptions options;
        options.program = helperProgram();
        return options;
    }

    QTemporaryDir m_folder;
    int m_errors = 0; // that were posted

private:
    static void countError(const NxError*, void* count) { ++*static_cast<int*>(count); }

    HandlerGuard<NxReadError> m_guard{&countError, &m_errors};
};

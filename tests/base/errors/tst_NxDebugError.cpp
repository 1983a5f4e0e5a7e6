#include "base/HandlerGuard.h"
#include "base/errors/StreamCapture.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QTest>

class TestNxDebugError : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSeverityArrivesWithTheError_data()
    {
        QTest::addColumn<int>("severity");
        QTest::addColumn<QByteArray>("label");
        QTest::newRow("error") << 0 << QByteArray("error");
        QTest::newRow("warning") << 1 << QByteArray("warning");
        QTest::newRow("information") << 2 << QByteArray("information");
        QTest::newRow("unknown counts as error") << 3 << QByteArray("error");
        QTest::newRow("negative counts as error") << -1 << QByteArray("error");
    }
    void theSeverityArrivesWithTheError()
    {
        QFETCH(const int, severity);
        int seen = -100;
        const HandlerGuard<NxDebugError> guard(
            [](const NxError* error, void* data) {
                if (error->isOfType(NxDebugError::getClassTypeId()))
                    *static_cast<int*>(data) = static_cast<const NxDebugError*>(error)->getSeverity();
            },
            &seen);
        NxDebugError::post(severity, "text");
        QCOMPARE(seen, severity);
    }

    void theDefaultLineIsLabelledBySeverity_data() { theSeverityArrivesWithTheError_data(); }
    void theDefaultLineIsLabelledBySeverity()
    {
        QFETCH(const int, severity);
        QFETCH(const QByteArray, label);
        const StreamCapture capture;
        NxDebugError::post(severity, "text");
        QCOMPARE(QByteArray::fromStdString(capture.text()), label + ": text\n");
    }

    void errorsOfEveryClassAreClassified()
    {
        QCOMPARE(NxDebugError::severityOf(NxDebugError(0, "text")), NxDebugError::Error);
        QCOMPARE(NxDebugError::severityOf(NxDebugError(1, "text")), NxDebugError::Warning);
        QCOMPARE(NxDebugError::severityOf(NxDebugError(2, "text")), NxDebugError::Information);
        QCOMPARE(NxDebugError::severityOf(NxDebugError(3, "text")), NxDebugError::Error);
        QCOMPARE(NxDebugError::severityOf(NxDebugError(-1, "text")), NxDebugError::Error);
        QCOMPARE(NxDebugError::severityOf(NxError("text")), NxDebugError::Error);
        QCOMPARE(NxDebugError::severityOf(NxReadError("file", 1, 1, "text")), NxDebugError::Error);
    }

    void theSeveritiesHaveTheirNumbers()
    {
        QCOMPARE(static_cast<int>(NxDebugError::Error), 0);
        QCOMPARE(static_cast<int>(NxDebugError::Warning), 1);
        QCOMPARE(static_cast<int>(NxDebugError::Information), 2);
    }
};

QTEST_APPLESS_MAIN(TestNxDebugError)
#include "tst_NxDebugError.moc"

#include "Console/MessageQueue.h"

#include <QCoreApplication>
#include <QTest>
#include <QTextEdit>
#include <QTextOption>
#include <QThread>

#include <memory>

class TestMessageQueue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMessageIsShownAtOnceWhileNothingWaits()
    {
        QTextEdit view;
        orvane::MessageQueue queue(view);
        queue.add(Qt::darkRed, QStringLiteral("first"));
        QCOMPARE(view.toPlainText(), QStringLiteral("first"));
        QCOMPARE(view.textColor(), QColor(Qt::darkRed));
    }

    void messagesBeyondATurnWaitAndKeepTheirOrder()
    {
        QTextEdit view;
        slowDown(view);
        orvane::MessageQueue queue(view);
        queue.add(Qt::darkRed, QStringLiteral("first"));
        queue.add(Qt::darkGreen, QStringLiteral("second"));
        queue.add(Qt::darkGreen, QStringLiteral("third"));
        QCOMPARE(view.toPlainText(), QStringLiteral("first"));
        queue.show(Qt::darkRed, QStringLiteral("between"));
        const QStringList expected{
            QStringLiteral("first"), QStringLiteral("between"), QStringLiteral("second"), QStringLiteral("third")};
        QTRY_COMPARE(lines(view), expected);
    }

    void waitingMessagesGoWithTheQueue()
    {
        QTextEdit view;
        slowDown(view);
        auto queue = std::make_unique<orvane::MessageQueue>(view);
        queue->add(Qt::darkRed, QStringLiteral("first"));
        queue->add(Qt::darkRed, QStringLiteral("second"));
        queue.reset();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(view.toPlainText(), QStringLiteral("first"));
    }

    void clearViewKeepsWhatWaits()
    {
        QTextEdit view;
        slowDown(view);
        orvane::MessageQueue queue(view);
        queue.add(Qt::darkRed, QStringLiteral("first"));
        queue.add(Qt::darkRed, QStringLiteral("second"));
        queue.clearView();
        QVERIFY(view.toPlainText().isEmpty());
        QTRY_COMPARE(view.toPlainText(), QStringLiteral("second"));
    }

    void longWordsAreWrappedAnywhereUntilTheViewIsCleared()
    {
        QTextEdit view;
        orvane::MessageQueue queue(view);
        queue.add(Qt::darkRed, QString(10'000, QLatin1Char('x')));
        QCOMPARE(view.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
        queue.add(Qt::darkRed, QString(10'001, QLatin1Char('x')));
        QCOMPARE(view.wordWrapMode(), QTextOption::WrapAnywhere);
        queue.clearView();
        QCOMPARE(view.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    }

private:
    /// A view that is so slow that one message fills a turn.
    static void slowDown(QTextEdit& view)
    {
        connect(&view, &QTextEdit::textChanged, &view, [] { QThread::msleep(401); });
    }
    static QStringList lines(const QTextEdit& view) { return view.toPlainText().split(QLatin1Char('\n')); }
};

QTEST_MAIN(TestMessageQueue)
#include "tst_MessageQueue.moc"

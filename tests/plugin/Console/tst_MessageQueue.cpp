#include "Console/MessageQueue.h"

#include <QCoreApplication>
#include <QTest>
#include <QTextEdit>
#include <QTextOption>
#include <QThread>

#include <memory>

class tst_MessageQueue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMessageIsShownAtOnceWhileNothingWaits();
    void messagesBeyondATurnWaitAndKeepTheirOrder();
    void waitingMessagesGoWithTheQueue();
    void clearViewKeepsWhatWaits();
    void longWordsAreWrappedAnywhereUntilTheViewIsCleared();

private:
    /// A view that is so slow that one message fills a turn.
    static void slowDown(QTextEdit& view)
    {
        connect(&view, &QTextEdit::textChanged, &view, [] { QThread::msleep(401); });
    }
    static QStringList lines(const QTextEdit& view) { return view.toPlainText().split(QLatin1Char('\n')); }
};

void tst_MessageQueue::aMessageIsShownAtOnceWhileNothingWaits()
{
    QTextEdit view;
    orvane::MessageQueue queue(view);
    queue.add(Qt::darkRed, QStringLiteral("first"));
    QCOMPARE(view.toPlainText(), QStringLiteral("first"));
    QCOMPARE(view.textColor(), QColor(Qt::darkRed));
}

void tst_MessageQueue::messagesBeyondATurnWaitAndKeepTheirOrder()
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

void tst_MessageQueue::waitingMessagesGoWithTheQueue()
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

void tst_MessageQueue::clearViewKeepsWhatWaits()
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

void tst_MessageQueue::longWordsAreWrappedAnywhereUntilTheViewIsCleared()
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

QTEST_MAIN(tst_MessageQueue)
#include "tst_MessageQueue.moc"

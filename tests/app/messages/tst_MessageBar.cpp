#include "Patience.h"

#include "orvane/app/messages/ErrorRelay.h"
#include "orvane/app/messages/MessageBar.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorStack.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <thread>

using Severity = MessageBar::Severity;

class TestMessageBar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isSeenOnlyWithMessages()
    {
        MessageBar bar;
        QVERIFY(bar.isHidden());
        bar.showMessage(Severity::Error, QStringLiteral("a"));
        QVERIFY(!bar.isHidden());
        bar.clear();
        QVERIFY(bar.isHidden());
    }

    void stacksMessagesAndDropsTheOldest()
    {
        MessageBar bar;
        for (const char* text : {"a", "b", "b", "c", "d", "e"})
            bar.showMessage(Severity::Warning, QLatin1String(text));
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("b c d e"));
    }

    void replacesTheMessageOfATopic()
    {
        MessageBar bar;
        const QString topic = QStringLiteral("file");
        bar.showMessage(Severity::Error, QStringLiteral("a"), topic);
        bar.showMessage(Severity::Error, QStringLiteral("other"));
        bar.showMessage(Severity::Error, QStringLiteral("b"), topic);
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("other b"));
        bar.clearTopic(topic);
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("other"));
    }

    void aQuestionIsAnsweredByItsButton()
    {
        MessageBar bar;
        QSignalSpy closed(&bar, &MessageBar::closed);
        int accepted = 0;
        bar.showQuestion(
            QStringLiteral("May I?"), QStringLiteral("consent"), QStringLiteral("Yes"), [&] { ++accepted; });
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar, testPatience));
        auto* button = bar.findChild<QPushButton*>(QStringLiteral("acceptMessage"));
        QCOMPARE(button->text(), QStringLiteral("Yes"));
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(accepted, 1);
        QVERIFY(bar.texts().isEmpty());
        QVERIFY(closed.isEmpty());
    }

    void aQuestionThatIsClosedIsReported()
    {
        MessageBar bar;
        QSignalSpy closed(&bar, &MessageBar::closed);
        bar.showQuestion(
            QStringLiteral("May I?"), QStringLiteral("consent"), QStringLiteral("Yes"), [] { QFAIL("no"); });
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar, testPatience));
        QTest::mouseClick(bar.findChild<QToolButton*>(QStringLiteral("closeMessage")), Qt::LeftButton);
        QCOMPARE(closed.size(), 1);
        QCOMPARE(closed.front().front().toString(), QStringLiteral("consent"));
    }

    void messagesDoNotDisplaceAQuestion()
    {
        MessageBar bar;
        bar.showQuestion(QStringLiteral("May I?"), QStringLiteral("consent"), QStringLiteral("Yes"), [] {});
        for (const char* text : {"a", "b", "c", "d", "e"})
            bar.showMessage(Severity::Warning, QLatin1String(text));
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("May I? c d e"));
    }

    void errorsOutliveWarnings()
    {
        MessageBar bar;
        bar.showMessage(Severity::Information, QStringLiteral("i"));
        bar.showMessage(Severity::Error, QStringLiteral("E"));
        for (const char* text : {"a", "b", "c", "d"})
            bar.showMessage(Severity::Warning, QLatin1String(text));
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("E b c d"));
        // What is less important goes first, however new it is.
        bar.showMessage(Severity::Information, QStringLiteral("j"));
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("E b c d j"));
        bar.showMessage(Severity::Error, QStringLiteral("F"));
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("E c d F"));
    }

    void theNewestIsSeenAmongErrorsOnly()
    {
        MessageBar bar;
        for (const char* text : {"A", "B", "C", "D"})
            bar.showMessage(Severity::Error, QLatin1String(text));
        bar.showMessage(Severity::Warning, QStringLiteral("a"));
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("A B C D a"));
        bar.showMessage(Severity::Warning, QStringLiteral("b"));
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("A B C D b"));
        bar.showMessage(Severity::Error, QStringLiteral("E"));
        QCOMPARE(bar.texts().join(u' '), QStringLiteral("B C D E"));
    }

    void closesAMessageByItsButton()
    {
        MessageBar bar;
        bar.showMessage(Severity::Information, QStringLiteral("a"));
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar, testPatience));
        QTest::mouseClick(bar.findChild<QToolButton*>(QStringLiteral("closeMessage")), Qt::LeftButton);
        QVERIFY(bar.texts().isEmpty());
        QVERIFY(bar.isHidden());
    }

    void showsTextAsItIsAndLetsItBeSelected()
    {
        MessageBar bar;
        bar.showMessage(Severity::Error, QStringLiteral("<b>a</b>"));
        auto* text = bar.findChild<QPlainTextEdit*>(QStringLiteral("messageText"));
        QCOMPARE(text->toPlainText(), QStringLiteral("<b>a</b>"));
        bar.show();
        QVERIFY(QTest::qWaitForWindowActive(&bar, testPatience));
        QTest::mouseDClick(text->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(8, text->height() / 2));
        QVERIFY(text->textCursor().hasSelection());
        QTest::keyClick(text, Qt::Key_X);
        QCOMPARE(text->toPlainText(), QStringLiteral("<b>a</b>"));
    }

    void aLongNameIsBrokenAndWidensNothing()
    {
        MessageBar bar;
        bar.showMessage(Severity::Error, QStringLiteral("short"));
        const int width = bar.minimumSizeHint().width();
        const QString name(400, u'x');
        bar.showMessage(Severity::Error, name + QStringLiteral(".mrd: No such file or directory"));
        QCOMPARE(bar.minimumSizeHint().width(), width);
        bar.resize(500, 200);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar, testPatience));
        const auto* text = bar.findChildren<QPlainTextEdit*>(QStringLiteral("messageText")).back();
        QVERIFY(text->height() > text->fontMetrics().lineSpacing());
        QVERIFY(!text->verticalScrollBar()->isVisible() || text->verticalScrollBar()->maximum() > 0);
        QVERIFY(text->width() < bar.width());
    }

    void aTextOfManyLinesIsScrolled()
    {
        MessageBar bar;
        bar.showMessage(Severity::Error, QStringList(200, QStringLiteral("line")).join(u'\n'));
        bar.resize(500, 200);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar, testPatience));
        const auto* text = bar.findChild<QPlainTextEdit*>(QStringLiteral("messageText"));
        QCOMPARE(text->height(), 5 * text->fontMetrics().lineSpacing());
        QVERIFY(text->verticalScrollBar()->isVisible());
    }

    void bringsEveryKindOfToolkitErrorFromAnyThread()
    {
        ErrorRelay relay;
        QStringList reports;
        QList<Severity> severities;
        connect(&relay, &ErrorRelay::reported, this, [&](Severity severity, const QString& text) {
            severities.append(severity);
            reports.append(text);
        });
        std::thread([] {
            NxError::post("one");
            NxDebugError::post(NxDebugError::Warning, "two");
            NxErrorStack::post({"three", "cause"});
            NxGLError::post(1280, "four");
            NxMemoryError::post(nullptr, 0, 5);
            NxReadError::post("six.mrd", 1, 2, "bad");
        }).join();
        QVERIFY(reports.isEmpty());
        QTRY_COMPARE(reports.size(), 6);
        QCOMPARE(reports.front(), QStringLiteral("one"));
        QCOMPARE(reports.at(2), QStringLiteral("three: cause"));
        QCOMPARE(reports.back(), QStringLiteral("six.mrd:1:2: bad"));
        QCOMPARE(severities.at(0), Severity::Error);
        QCOMPARE(severities.at(1), Severity::Warning);
    }

    void givesTheHandlersBackWhenTheRelayGoes()
    {
        {
            const ErrorRelay relay;
            QVERIFY(NxError::getHandlerCallback() != nullptr);
        }
        QVERIFY(NxError::getHandlerCallback() == nullptr);
        QVERIFY(NxReadError::getHandlerCallback() == nullptr);
    }
};

QTEST_MAIN(TestMessageBar)
#include "tst_MessageBar.moc"

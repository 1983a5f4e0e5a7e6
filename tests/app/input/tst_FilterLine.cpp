#include "orvane/app/input/FilterLine.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/look/Look.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using meridane::Query;
using namespace Qt::Literals::StringLiterals;

/// A line for the query of a list.
class TestFilterLine : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QWidget> m_window;
    FilterLine* m_line = nullptr;
    std::unique_ptr<QSignalSpy> m_queries;

    [[nodiscard]] QString message() const
    {
        const InputMessage* const shown = InputMessage::shownIn(m_line);
        return shown != nullptr ? shown->text() : QString();
    }
    [[nodiscard]] bool isRed() const
    {
        const QColor base = m_line->palette().color(QPalette::Base);
        return m_line->palette().color(QPalette::Text) == orvane::look::textColor(orvane::look::Tint::Error, base);
    }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto* const layout = new QVBoxLayout(m_window.get());
        m_line = new FilterLine(Query::Subject::Scene, m_window.get());
        layout->addWidget(m_line);
        layout->addStretch();
        m_window->resize(400, 200);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), testPatience));
        m_line->setFocus();
        m_queries = std::make_unique<QSignalSpy>(m_line, &FilterLine::queryChanged);
    }
    void cleanup()
    {
        m_queries.reset();
        m_window.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void theQueryFollowsEachKey()
    {
        QVERIFY(m_line->query().isEmpty());
        QTest::keyClicks(m_line, u"t:Mesh"_s);
        QVERIFY(m_queries->size() >= 4);
        QVERIFY(!m_line->error());
        QVERIFY(!isRed());
        const NxRef<NxMesh> mesh(new NxMesh);
        QVERIFY(m_line->query().matches(*mesh));
        m_line->selectAll();
        QTest::keyClicks(m_line, u"t:Switch"_s);
        QVERIFY(!m_line->query().matches(*mesh));
    }

    void aWrongTextKeepsTheLastQuery()
    {
        QTest::keyClicks(m_line, u"t:Mesh "_s);
        const qsizetype queries = m_queries->size();
        QTest::keyClicks(m_line, u"("_s);
        QCOMPARE(m_queries->size(), queries);
        QVERIFY(m_line->error().has_value());
        QVERIFY(isRed());
        const NxRef<NxMesh> mesh(new NxMesh);
        QVERIFY(m_line->query().matches(*mesh));
        QVERIFY(message().isEmpty());
        QTRY_VERIFY(message().startsWith(u"A word is missing"_s));
        QCOMPARE(m_line->accessibleDescription(), message());
        QTest::keyClick(m_line, Qt::Key_Backspace);
        QVERIFY(message().isEmpty());
        QVERIFY(!isRed());
        QCOMPARE(m_queries->size(), queries + 1);
    }

    void returnShowsTheErrorAndItsPlace()
    {
        QSignalSpy left(m_line, &FilterLine::left);
        m_line->setText(u"\u00E4rmel "_s);
        QTest::keyClicks(m_line, u"f:radius >1,234.5"_s);
        QTest::keyClick(m_line, Qt::Key_Return);
        QVERIFY(message().startsWith(u"Signs between thousands"_s));
        QCOMPARE(m_line->cursorPosition(), 16);
        QVERIFY(left.isEmpty());
        m_line->selectAll();
        QTest::keyClicks(m_line, u"arm"_s);
        QVERIFY(message().isEmpty());
        QTest::keyClick(m_line, Qt::Key_Return);
        QCOMPARE(left.size(), 1);
        QTest::keyClick(m_line, Qt::Key_Down);
        QCOMPARE(left.size(), 2);
    }

    void escapeClearsTheLineFirst()
    {
        QSignalSpy left(m_line, &FilterLine::left);
        QTest::keyClicks(m_line, u"arm ("_s);
        QTest::keyClick(m_line, Qt::Key_Escape);
        QVERIFY(m_line->text().isEmpty());
        QVERIFY(m_line->query().isEmpty());
        QVERIFY(!isRed());
        QVERIFY(left.isEmpty());
        QTest::keyClick(m_line, Qt::Key_Escape);
        QCOMPARE(left.size(), 1);
    }

    void aLineIsClearedWithoutASignal()
    {
        QTest::keyClicks(m_line, u"arm ("_s);
        m_queries->clear();
        m_line->reset();
        QVERIFY(m_queries->isEmpty());
        QVERIFY(m_line->text().isEmpty());
        QVERIFY(m_line->query().isEmpty());
        QVERIFY(!m_line->error());
        QVERIFY(!isRed());
        QTest::keyClicks(m_line, u"x"_s);
        QCOMPARE(m_queries->size(), 1);
    }

    void aTextOfAMegabyteIsRefused()
    {
        m_line->setMaxLength(2'000'000);
        m_line->setText(QString(1'000'000, u'x'));
        QTest::keyClick(m_line, Qt::Key_Return);
        QVERIFY(message().startsWith(u"The text is longer than 4096 characters"_s));
        QVERIFY(m_line->query().isEmpty());
    }
};

QTEST_MAIN(TestFilterLine)
#include "tst_FilterLine.moc"

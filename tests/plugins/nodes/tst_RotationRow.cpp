#include "plugins/nodes/RotationRow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <numbers>

namespace {

constexpr auto quarter = static_cast<float>(std::numbers::pi / 2);

} // namespace

/// A rotation as three turns, or as an axis and an angle.
class TestRotationRow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_row = std::make_unique<nodes::RotationRow>();
        m_row->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_row.get()));
    }

    void turnsAreInDegrees()
    {
        m_row->setRotation({VbVec3f(0, 1, 0), quarter});
        QCOMPARE(texts(), QStringList({QStringLiteral("0"), QStringLiteral("90"), QStringLiteral("0")}));
    }

    void axisAndAngleAreShownInTheOtherForm()
    {
        m_row->setRotation({VbVec3f(0, 2, 0), quarter});
        chooseAxis();
        QCOMPARE(texts(),
            QStringList({QStringLiteral("0"), QStringLiteral("2"), QStringLiteral("0"), QStringLiteral("90")}));
    }

    void aTypedTurnIsTaken()
    {
        QSignalSpy spy(m_row.get(), &nodes::RotationRow::rotationEdited);
        type(2, QStringLiteral("45"));
        QCOMPARE(spy.count(), 1);
        QVERIFY(std::abs(m_row->rotation().getAngle() - quarter / 2) < 1e-5F);
        QVERIFY(std::abs(m_row->rotation().getAxis()[2] - 1) < 1e-5F);
    }

    void aTypedAngleIsTakenWithTheAxisAsItIs()
    {
        m_row->setRotation({VbVec3f(0, 0, 3), quarter});
        chooseAxis();
        type(3, QStringLiteral("22,5"));
        QCOMPARE(m_row->rotation().getAxis(), VbVec3f(0, 0, 3));
        QVERIFY(std::abs(m_row->rotation().getAngle() - quarter / 4) < 1e-5F);
    }

    void whatIsNoNumberChangesNothing()
    {
        QSignalSpy spy(m_row.get(), &nodes::RotationRow::rotationEdited);
        m_row->setRotation({VbVec3f(0, 1, 0), quarter});
        type(0, QStringLiteral("much"));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(texts(), QStringList({QStringLiteral("0"), QStringLiteral("90"), QStringLiteral("0")}));
    }

    void aLineThatWasOnlyVisitedChangesNothing()
    {
        QSignalSpy spy(m_row.get(), &nodes::RotationRow::rotationEdited);
        m_row->setRotation({VbVec3f(1, 1, 1), 0.3F});
        line(0)->setFocus();
        QTest::keyClick(line(0), Qt::Key_Tab);
        QTest::keyClick(line(1), Qt::Key_Return);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(m_row->rotation(), VbRotation(VbVec3f(1, 1, 1), 0.3F));
    }

private:
    [[nodiscard]] QLineEdit* line(int number) const
    {
        return m_row->findChild<QLineEdit*>(QStringLiteral("number%1").arg(number));
    }
    [[nodiscard]] QStringList texts() const
    {
        QStringList all;
        for (int i = 0; i < 4; ++i) {
            if (line(i)->isVisible())
                all.append(line(i)->text());
        }
        return all;
    }
    void type(int number, const QString& text) const
    {
        line(number)->setFocus();
        line(number)->selectAll();
        QTest::keyClicks(line(number), text);
        QTest::keyClick(line(number), Qt::Key_Return);
    }
    void chooseAxis() const
    {
        auto* const form = m_row->findChild<QComboBox*>();
        form->setFocus();
        QTest::keyClick(form, Qt::Key_Down);
        QCOMPARE(form->currentIndex(), 1);
    }

    std::unique_ptr<nodes::RotationRow> m_row;
};

QTEST_MAIN(TestRotationRow)
#include "tst_RotationRow.moc"

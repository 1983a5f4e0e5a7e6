#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/look/Look.h"

#include <QApplication>
#include <QClipboard>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using orvane::NumberLimits;

// A line for one number, and the message below it, worked by keys.
class TestNumberLine : public QObject {
    Q_OBJECT

private:
    QString message() const
    {
        const InputMessage* const shown = InputMessage::shownIn(m_window.get());
        return shown != nullptr ? shown->text() : QString();
    }

    void type(const char* text)
    {
        m_line->selectAll();
        QTest::keyClicks(m_line, QString::fromUtf8(text));
    }

    QColor textColor() const { return m_line->palette().color(QPalette::Text); }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto* const layout = new QVBoxLayout(m_window.get());
        m_line = new NumberLine(m_window.get());
        m_other = new QLineEdit(m_window.get());
        layout->addWidget(m_line);
        layout->addWidget(m_other);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_line->setFocus();
        m_line->setValue(4);
    }

    void cleanup()
    {
        m_window.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void returnAccepts()
    {
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        const QSignalSpy restored(m_line, &NumberLine::restored);
        type("2.5");
        QVERIFY(m_line->isPending());
        QTest::keyClick(m_line, Qt::Key_Return);
        QCOMPARE(accepted.size(), 1);
        QVERIFY(restored.isEmpty());
        QVERIFY(message().isEmpty());
    }

    void formulasAreEvaluated_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        QTest::newRow("comma") << QStringLiteral("3,5") << 3.5;
        QTest::newRow("point") << QStringLiteral("2.5") << 2.5;
        QTest::newRow("formula") << QStringLiteral("2*3+1") << 7.0;
        QTest::newRow("the present value") << QStringLiteral("x*1,5") << 6.0;
        QTest::newRow("per cent") << QStringLiteral("50%") << 0.5;
    }
    void formulasAreEvaluated()
    {
        QFETCH(const QString, text);
        QFETCH(const double, number);
        for (const char* const locale : {"C", "de_DE", "fr_FR", "ar_EG"}) {
            QLocale::setDefault(QLocale(QLatin1String(locale)));
            const QSignalSpy accepted(m_line, &NumberLine::accepted);
            type(text.toUtf8().constData());
            QTest::keyClick(m_line, Qt::Key_Return);
            QCOMPARE(accepted.size(), 1);
            QCOMPARE(m_line->number(), number);
        }
        QLocale::setDefault(QLocale::c());
    }

    void severalValuesAreForTheOwner()
    {
        m_line->setMixed(QStringLiteral("mixed"));
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        type("x+1");
        QTest::keyClick(m_line, Qt::Key_Return);
        QCOMPARE(accepted.size(), 1);
        QVERIFY(qIsNaN(m_line->number()));
        QCOMPARE(std::get<double>(m_line->expression().evaluate(2)), 3.0);
    }

    void whatHasNoValueIsRefused_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* const text : {"1/0", "2*", "inf", "sqrt(0-1)", "apples", "1e999"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }
    void whatHasNoValueIsRefused()
    {
        QFETCH(const QString, text);
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        type(text.toUtf8().constData());
        QTest::keyClick(m_line, Qt::Key_Return);
        QVERIFY(accepted.isEmpty());
        QVERIFY(message().startsWith(QStringLiteral("“%1”: ").arg(text)));
        QVERIFY(message().contains(QStringLiteral("a number")));
    }

    void returnOnAnUntouchedTextWritesNothing()
    {
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        const QSignalSpy restored(m_line, &NumberLine::restored);
        QTest::keyClick(m_line, Qt::Key_Return);
        type("4");
        QTest::keyClick(m_line, Qt::Key_Return);
        QVERIFY(accepted.isEmpty());
        QCOMPARE(restored.size(), 2);
    }

    void escapeRestores()
    {
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        const QSignalSpy restored(m_line, &NumberLine::restored);
        type("99");
        QTest::keyClick(m_line, Qt::Key_Escape);
        QCOMPARE(m_line->text(), QStringLiteral("4"));
        QVERIFY(!m_line->isPending());
        QVERIFY(accepted.isEmpty());
        QCOMPARE(restored.size(), 1);
        QTest::keyClick(m_line, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_line->text(), QStringLiteral("99"));
    }

    void aTextThatIsNoNumberStaysForMending()
    {
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        type("2.5.5");
        QTest::keyClick(m_line, Qt::Key_Return);
        QVERIFY(accepted.isEmpty());
        QVERIFY(m_line->hasFocus());
        QCOMPARE(m_line->text(), QStringLiteral("2.5.5"));
        QCOMPARE(m_line->selectedText(), QStringLiteral("2.5.5"));
        QVERIFY(message().contains(QStringLiteral("2.5.5")));
        QCOMPARE(m_line->accessibleDescription(), message());
        QTest::keyClick(m_line, Qt::Key_End);
        QVERIFY(!message().isEmpty());
        QTest::keyClick(m_line, Qt::Key_Backspace);
        QVERIFY(message().isEmpty());
        QVERIFY(m_line->accessibleDescription().isEmpty());
    }

    void aNumberOutsideTheHardRangeIsRefusedWithTheRange()
    {
        NumberLimits limits;
        limits.hardMinimum = 0;
        limits.hardMaximum = 10;
        limits.isWhole = true;
        m_line->setLimits(limits);
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        for (const char* const text : {"11", "-1", "2.5"}) {
            type(text);
            QTest::keyClick(m_line, Qt::Key_Return);
            QVERIFY2(message().contains(QStringLiteral("a whole number from 0 to 10")), text);
            QVERIFY2(message().contains(QLatin1String(text)), text);
        }
        QVERIFY(accepted.isEmpty());
        type("10");
        QTest::keyClick(m_line, Qt::Key_Return);
        QCOMPARE(accepted.size(), 1);
    }

    void theOwnerCanRefuse()
    {
        connect(m_line, &NumberLine::accepted, m_line, [this] { m_line->refuse(QStringLiteral("the field is gone")); });
        type("5");
        QVERIFY(!m_line->accept());
        QVERIFY(message().contains(QStringLiteral("the field is gone")));
        QCOMPARE(m_line->text(), QStringLiteral("5"));
    }

    void leavingAcceptsWhatMakesSense()
    {
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        type("5");
        QTest::keyClick(m_line, Qt::Key_Tab);
        QVERIFY(m_other->hasFocus());
        QCOMPARE(accepted.size(), 1);
    }

    void leavingRestoresWhatMakesNone()
    {
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        const QSignalSpy restored(m_line, &NumberLine::restored);
        type("5 apples");
        QTest::mouseClick(m_other, Qt::LeftButton);
        QVERIFY(accepted.isEmpty());
        QCOMPARE(restored.size(), 1);
        QCOMPARE(m_line->text(), QStringLiteral("4"));
        QVERIFY(message().contains(QStringLiteral("5 apples")));
        m_line->setFocus();
        QTest::keyClick(m_line, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_line->text(), QStringLiteral("5 apples"));
    }

    void arrowsStep_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<double>("factor");
        QTest::newRow("up") << int(Qt::Key_Up) << int(Qt::NoModifier) << 1.0;
        QTest::newRow("down") << int(Qt::Key_Down) << int(Qt::NoModifier) << -1.0;
        QTest::newRow("coarse") << int(Qt::Key_Up) << int(Qt::ShiftModifier) << 10.0;
        QTest::newRow("fine") << int(Qt::Key_Down) << int(Qt::ControlModifier) << -0.1;
    }
    void arrowsStep()
    {
        QFETCH(const int, key);
        QFETCH(const int, modifiers);
        QFETCH(const double, factor);
        const QSignalSpy stepped(m_line, &NumberLine::stepped);
        const QSignalSpy accepted(m_line, &NumberLine::accepted);
        QTest::keyClick(m_line, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(stepped.size(), 1);
        QCOMPARE(stepped.front().front().toDouble(), factor);
        QVERIFY(accepted.isEmpty());
        type("7");
        QTest::keyClick(m_line, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(accepted.size(), 1); // what is typed comes first
        QCOMPARE(stepped.size(), 2);
        type("seven");
        QTest::keyClick(m_line, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(stepped.size(), 2);
        QVERIFY(message().contains(QStringLiteral("seven")));
    }

    void theColourSaysTheRange_data()
    {
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("base");
        QTest::newRow("light") << QColor(Qt::black) << QColor(Qt::white);
        QTest::newRow("dark") << QColor(0xEE, 0xEE, 0xEE) << QColor(0x20, 0x20, 0x20);
    }
    void theColourSaysTheRange()
    {
        QFETCH(const QColor, text);
        QFETCH(const QColor, base);
        QPalette palette = m_window->palette();
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::Base, base);
        m_window->setPalette(palette);
        NumberLimits limits;
        limits.softMaximum = 10;
        limits.validMaximum = 100;
        limits.hardMaximum = 1000;
        m_line->setLimits(limits);
        const QColor warning = orvane::look::textColor(orvane::look::Tint::Warning, base);
        const QColor error = orvane::look::textColor(orvane::look::Tint::Error, base);
        QCOMPARE(textColor(), text);
        type("11");
        QCOMPARE(textColor(), warning);
        type("101");
        QCOMPARE(textColor(), error);
        type("1001");
        QCOMPARE(textColor(), error);
        type("9");
        QCOMPARE(textColor(), text);
        m_line->setValue(12);
        QCOMPARE(textColor(), warning);
        m_line->setValue(120);
        QCOMPARE(textColor(), error);
        QVERIFY(orvane::look::contrast(error, base) >= orvane::look::textContrast);
        m_line->setMixed(QStringLiteral("mixed"));
        QCOMPARE(textColor(), text);
    }

    void aHugePasteIsRefusedWhole()
    {
        QApplication::clipboard()->setText(QString(1'000'000, u'1'));
        m_line->selectAll();
        QTest::keyClick(m_line, Qt::Key_V, Qt::ControlModifier);
        QTRY_VERIFY(message().contains(QString::number(NumberLine::longestText)));
        QCOMPARE(m_line->text(), QStringLiteral("4"));
        QApplication::clipboard()->clear();
    }

    void theMessageStaysOnTheScreen()
    {
        const QRect screen = m_window->screen()->availableGeometry();
        for (const QPoint& corner : {screen.topLeft(), screen.topRight() - QPoint(40, 0),
                 screen.bottomRight() - QPoint(40, 60), screen.bottomLeft() - QPoint(0, 60)}) {
            m_window->move(corner);
            type("seven");
            QTest::keyClick(m_line, Qt::Key_Return);
            const InputMessage* const shown = InputMessage::shownIn(m_window.get());
            QVERIFY(shown != nullptr && shown->isVisible());
            QVERIFY(screen.contains(shown->geometry()));
            QVERIFY(!shown->geometry().intersects(QRect(m_line->mapToGlobal(QPoint()), m_line->size())));
        }
    }

    void theMessageFollowsItsLineAndGoesWithIt()
    {
        m_window->move(100, 100);
        type("seven");
        QTest::keyClick(m_line, Qt::Key_Return);
        const InputMessage* const shown = InputMessage::shownIn(m_window.get());
        const QPoint before = shown->pos();
        m_window->move(150, 120);
        QTRY_COMPARE(shown->pos(), before + QPoint(50, 20));
        m_window->hide();
        QVERIFY(message().isEmpty());
        QCOMPARE(m_line->text(), QStringLiteral("seven"));
    }

    void aClickClosesTheMessage()
    {
        type("seven");
        QTest::keyClick(m_line, Qt::Key_Return);
        QTest::mouseClick(InputMessage::shownIn(m_window.get()), Qt::LeftButton);
        QVERIFY(message().isEmpty());
        QCOMPARE(m_line->text(), QStringLiteral("seven"));
        QVERIFY(m_line->hasFocus());
    }

    void theLineMayGoWhileItAccepts()
    {
        connect(m_line, &NumberLine::accepted, m_window.get(), [this] { delete m_line; });
        type("7");
        QTest::keyClick(m_line.data(), Qt::Key_Return);
        QVERIFY(m_line.isNull());
    }

private:
    std::unique_ptr<QWidget> m_window;
    QPointer<NumberLine> m_line;
    QLineEdit* m_other = nullptr;
};

QTEST_MAIN(TestNumberLine)
#include "tst_NumberLine.moc"

#include "app/look/LookCase.h"
#include "app/look/TextWalk.h"

#include "orvane/app/look/Look.h"

#include <QAbstractItemView>
#include <QHash>
#include <QImage>

#include <algorithm>
#include <utility>

/// All texts of the window and of its dialogs can be read whole, at each size of the font, and in each theme.
class TestTextFit : public LookCase {
    Q_OBJECT

private:
    /// The colour that most pixels have.
    static QColor groundOf(const QImage& image, const QRect& place)
    {
        QHash<QRgb, int> counts;
        QRgb best = image.pixel(place.topLeft());
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (const QRgb color = image.pixel(x, y); ++counts[color] > counts[best])
                    best = color;
            }
        }
        return QColor(best);
    }

    /// The contrast of the pixel that differs most from the ground.
    static double paintedContrast(const QImage& image, const QRect& place)
    {
        const QColor ground = groundOf(image, place);
        double most = 1;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x)
                most = std::max(most, orvane::look::contrast(image.pixelColor(x, y), ground));
        }
        return most;
    }

    static QString textOf(const QWidget& widget)
    {
        if (const auto* const label = qobject_cast<const QLabel*>(&widget))
            return label->text();
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
            const auto* const tool = qobject_cast<const QToolButton*>(button);
            return tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly ? QString() : button->text();
        }
        if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
            return line->text().isEmpty() ? line->placeholderText() : line->text();
        if (const auto* const box = qobject_cast<const QComboBox*>(&widget))
            return box->currentText();
        return {};
    }

    void check(double found, bool isEnabled, const QString& name)
    {
        const double least = isEnabled ? orvane::look::textContrast : orvane::look::markContrast;
        double& lowest = isEnabled ? m_lowest : m_lowestDisabled;
        lowest = std::min(lowest, found);
        ++m_measured;
        if (found < least)
            m_faults.append(QStringLiteral("%1 has %2").arg(name).arg(found, 0, 'f', 2));
    }

    void measure(QWidget* window, const QString& where)
    {
        const QImage image = window->grab().toImage();
        for (const QWidget* const widget : textWalk::widgetsOf(window)) {
            if (const auto* const view = qobject_cast<const QAbstractItemView*>(widget)) {
                measureCells(image, *window, *view, where);
                continue;
            }
            if (textOf(*widget).trimmed().isEmpty())
                continue;
            const QRect place = QRect(widget->mapTo(window, QPoint()), widget->size()) & image.rect();
            if (place.width() > 4 && place.height() > 4)
                check(paintedContrast(image, place), widget->isEnabled(),
                    where + QStringLiteral(": ") + textWalk::nameOf(*widget));
        }
    }

    void measureCells(const QImage& image, const QWidget& window, const QAbstractItemView& view, const QString& where)
    {
        const QWidget& viewport = *view.viewport();
        const QPoint corner = viewport.mapTo(&window, QPoint());
        for (int y = 2; y < viewport.height(); y += view.fontMetrics().height()) {
            for (int x = 4; x < viewport.width(); x += 4 * view.fontMetrics().averageCharWidth()) {
                const QModelIndex index = view.indexAt({x, y});
                if (index.data().toString().trimmed().isEmpty())
                    continue;
                const QRect cell = view.visualRect(index) & viewport.rect();
                const QRect place = cell.translated(corner) & image.rect();
                // Where its text has no room, a cell of the field table shows the letters of its axes alone, whose
                // strokes are thinner than a pixel; app/look/Look measures their colours.
                if (view.objectName() == QStringLiteral("fieldTable")
                    && view.fontMetrics().horizontalAdvance(index.data().toString()) > cell.width())
                    continue;
                if (cell.height() < view.fontMetrics().height() || cell.width() < 3 * view.fontMetrics().height())
                    continue; // partly out of sight
                check(paintedContrast(image, place), (index.flags() & Qt::ItemIsEnabled) != 0 && view.isEnabled(),
                    QStringLiteral("%1: %2 \"%3\"")
                        .arg(where, textWalk::nameOf(view), index.data().toString().left(30)));
            }
        }
    }

private Q_SLOTS:
    void cleanup() { endAll(); }

    void noTextIsCut_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<bool>("isLong");
        for (const int points : {8, 10, 14, 18}) {
            QTest::addRow("%d points", points) << points << false;
            QTest::addRow("%d points, long texts", points) << points << true;
        }
    }
    void noTextIsCut()
    {
        QFETCH(const int, points);
        QFETCH(const bool, isLong);
        LongTexts longTexts;
        if (isLong)
            QCoreApplication::installTranslator(&longTexts);
        showAll(points);
        const QString title = m_window->findChild<QDockWidget*>(QStringLiteral("historyDock"))->windowTitle();
        QCOMPARE(title.size() > 8, isLong);
        QStringList faults;
        m_dialogs = 0;
        forEach([&faults](QWidget* window, const QString& where) {
            for (const QString& fault : textWalk::clippedTexts(window)) {
                if (faults.contains(fault))
                    continue;
                faults.append(fault);
                qInfo("%s: %s", qPrintable(where), qPrintable(fault));
            }
        });
        QVERIFY(m_dialogs >= 6);
        QVERIFY2(faults.isEmpty(), "these texts are cut");
    }

    void eachTextHasContrast_data()
    {
        QTest::addColumn<Theme::Choice>("theme");
        QTest::newRow("light") << Theme::Choice::Light;
        QTest::newRow("dark") << Theme::Choice::Dark;
    }
    void eachTextHasContrast()
    {
        QFETCH(const Theme::Choice, theme);
        constexpr int points = 18; // lines of letters are wide enough to have their colour
        m_lowest = m_lowestDisabled = 21;
        m_measured = 0;
        m_faults.clear();
        showAll(points);
        m_window->findChild<Theme*>()->choose(theme);
        settle();
        forEach([this](QWidget* window, const QString& where) { measure(window, where); });
        qInfo("%d texts, the lowest contrast is %.2f, of disabled ones %.2f", m_measured, m_lowest, m_lowestDisabled);
        QVERIFY(m_measured > 300);
        for (const QString& fault : std::as_const(m_faults))
            qInfo("%s", qPrintable(fault));
        QVERIFY2(m_faults.isEmpty(), "these texts have too little contrast");
    }

private:
    QStringList m_faults;
    double m_lowest = 21;
    double m_lowestDisabled = 21;
    int m_measured = 0;
};

QTEST_MAIN(TestTextFit)
#include "tst_TextFit.moc"

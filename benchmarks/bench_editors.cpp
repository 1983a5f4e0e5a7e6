// The editors in a dock, on a platform without a display that paints for real: selecting a field, dragging a slider,
// typing in a line.

#include "EditorHost.h"
#include "Figure.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/extender/VbText.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include <malloc.h>

namespace {

using bench::EditorHost;

/// How often each thing is measured; the one in the middle counts.
constexpr int rounds = 101;

void exchange(QDockWidget* dock, QWidget* frame)
{
    dock->setWidget(frame);
    frame->show();
}

/// An editor against the frame of its twin, which has shown the field before.
void measureSelection(EditorHost& host, OrvEditor& editor, OrvEditor& twin, QDockWidget* dock, QWidget* otherFrame)
{
    NxField* const field = host.fieldOf(editor);
    if (field == nullptr)
        return;
    twin.setEditedObject(field);
    twin.activate();
    twin.deactivate();
    QWidget* const readyFrame = twin.getWidget();
    bench::compare(
        "field selected to editor painted: " + std::string(editor.getName().toUtf8()), 1.3, rounds,
        [&] {
            host.services.selectField(&host.node->sfName);
            bench::settle();
            return bench::secondsToPainted(editor.getWidget(), [&] { host.services.selectField(field); });
        },
        [&] {
            exchange(dock, otherFrame);
            bench::settle();
            return bench::secondsToPainted(readyFrame, [&] { exchange(dock, readyFrame); });
        });
}

/// All editors, each one in turn with the editor of names.
void measureSelections(EditorHost& host)
{
    OrvDefaults twins;
    twins.load();
    bench::DockWindow window;
    QDockWidget* const dock = window.addDock();
    window.show();
    QWidget* otherFrame = nullptr;
    QList<QPair<OrvEditor*, OrvEditor*>> pairs;
    for (qsizetype i = 0; i < twins.getExtensions().size(); ++i) {
        auto* const editor = dynamic_cast<OrvEditor*>(host.plugin.getExtensions().at(i));
        if (editor == nullptr)
            continue;
        auto* const twin = dynamic_cast<OrvEditor*>(twins.getExtensions().at(i));
        if (editor->getHandledType() == NxSFName::getClassTypeId())
            otherFrame = twin->getWidget();
        else
            pairs.emplaceBack(editor, twin);
    }
    for (const auto& [editor, twin] : pairs)
        measureSelection(host, *editor, *twin, dock, otherFrame);
    // The editors own the frames that they show nowhere.
    for (const auto& [editor, twin] : pairs)
        twin->getWidget()->setParent(nullptr);
    otherFrame->setParent(nullptr);
    twins.unload();
}

/// A slider that the mouse holds and moves to and fro.
class Drag {
public:
    explicit Drag(QSlider* slider)
        : m_slider(slider)
    {
        const int height = m_slider->height() / 2;
        const QRect groove = m_slider->rect().adjusted(height, 0, -height, 0);
        m_left = QPoint(groove.left(), height);
        m_right = QPoint(groove.right(), height);
        // The handle stands at the left, where the slider's value is the smallest.
        QTest::mousePress(window(), Qt::LeftButton, {}, inWindow(m_left));
        bench::settle();
    }
    Drag(const Drag&) = delete;
    Drag& operator=(const Drag&) = delete;
    ~Drag() { QTest::mouseRelease(window(), Qt::LeftButton, {}, inWindow(m_left)); }

    /// Moves by a quarter of the way; four steps there and four back.
    void step()
    {
        const int before = m_slider->value();
        m_step = (m_step + 1) % 8;
        const int quarters = m_step <= 4 ? m_step : 8 - m_step;
        QTest::mouseMove(window(), inWindow(m_left + (m_right - m_left) * quarters / 4));
        if (m_slider->value() == before)
            qFatal("the slider didn't move");
    }

private:
    [[nodiscard]] QWindow* window() const { return m_slider->window()->windowHandle(); }
    [[nodiscard]] QPoint inWindow(const QPoint& point) const { return m_slider->mapTo(m_slider->window(), point); }

    QSlider* m_slider;
    QPoint m_left;
    QPoint m_right;
    int m_step = 0;
};

void measureDrag(EditorHost& host)
{
    host.node->sfFloat.setValue(0);
    host.services.selectField(&host.node->sfFloat);
    bench::settle();
    auto* const slider = host.dock->findChild<QSlider*>();

    bench::DockWindow window;
    auto* const frame = new QFrame;
    auto* const layout = new QHBoxLayout(frame);
    auto* const bareSlider = new QSlider(Qt::Horizontal, frame);
    auto* const bareLine = new QLineEdit(frame);
    layout->addWidget(bareSlider);
    layout->addWidget(bareLine);
    bareSlider->setRange(0, 100);
    QObject::connect(bareSlider, &QSlider::valueChanged, bareLine, [bareLine](int position) {
        constexpr double positionsPerUnit = 10;
        bareLine->setText(QString::number(position / positionsPerUnit, 'f', 6));
        bareLine->setCursorPosition(0);
    });
    window.addDock()->setWidget(frame);
    window.show();
    bench::settle();

    const auto timedStep = [](QSlider* moved, QWidget* painted) {
        return [moved, painted] {
            Drag drag(moved);
            drag.step();
            return bench::secondsToPainted(painted, [&drag] { drag.step(); });
        };
    };
    bench::compare("step of a drag", 1.5, rounds, timedStep(slider, slider), timedStep(bareSlider, bareLine));
}

void measureHistory(EditorHost& host)
{
    constexpr int steps = 100'000;
    host.services.clearHistory();
    host.node->sfFloat.setValue(0);
    host.services.selectField(&host.node->sfFloat);
    bench::settle();
    Drag drag(host.dock->findChild<QSlider*>());
    const std::size_t before = mallinfo2().uordblks;
    for (int i = 0; i < steps; ++i)
        drag.step();
    bench::settle();
    bench::report(
        {"step of a drag: history", "bytes", static_cast<double>(mallinfo2().uordblks - before) / steps, 0, 200});
    host.services.clearHistory();
}

void measureKeystroke(EditorHost& host)
{
    const VbString text("3723.25");
    host.node->sfTime.set(text);
    host.services.selectField(&host.node->sfTime);
    auto* const line = host.dock->findChild<QLineEdit*>();

    bench::DockWindow window;
    auto* const bareLine = new QLineEdit;
    bareLine->setText(orvane::toQString(text));
    window.addDock()->setWidget(bareLine);
    window.show();
    bench::settle();
    const auto typeDigit = [](QLineEdit* typed) {
        return [typed] {
            typed->window()->activateWindow();
            typed->setFocus();
            typed->setCursorPosition(1);
            bench::settle();
            const double time = bench::secondsToPainted(typed, [typed] { QTest::keyClick(typed, Qt::Key_5); });
            QTest::keyClick(typed, Qt::Key_Backspace);
            bench::settle();
            if (typed->text() != QStringLiteral("3723.25"))
                qFatal("the line holds %s", qUtf8Printable(typed->text()));
            return time;
        };
    };
    bench::compare("keystroke in the generic line", 2, rounds, typeDigit(line), typeDigit(bareLine));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    EditorHost host;
    measureSelections(host);
    measureDrag(host);
    measureHistory(host);
    measureKeystroke(host);
    return 0;
}

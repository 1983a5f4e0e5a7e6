// The editors in a dock, on a platform without a display that paints for real: selecting a field, dragging a slider,
// typing in a line.

#include "EditorHost.h"
#include "Figure.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/extender/VbText.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include <optional>

#include <malloc.h>

namespace {

using bench::EditorHost;

/// The number of measurements; the median is reported.
constexpr int rounds = 101;

void exchange(QDockWidget* dock, QWidget* frame)
{
    dock->setWidget(frame);
    frame->show();
}

/// The classes of all visible widgets of a frame, in the order of creation.
QStringList controlsOf(const QWidget* frame)
{
    QStringList classes;
    for (const QWidget* const child : frame->findChildren<QWidget*>()) {
        if (child->isVisibleTo(frame))
            classes << QString::fromLatin1(child->metaObject()->className());
    }
    return classes;
}

/// Plain check boxes instead of those of a finished frame, created again for each exchange: an editor whose boxes have
/// the names of its field has none until it gets the field.
class FreshBoxes {
public:
    explicit FreshBoxes(const QWidget* frame)
        : m_ready(frame->findChildren<QCheckBox*>())
    {
        m_column = m_ready.constFirst()->parentWidget()->layout()->itemAt(0)->layout();
        for (QCheckBox* const box : m_ready) {
            m_column->removeWidget(box);
            box->hide();
        }
    }
    FreshBoxes(const FreshBoxes&) = delete;
    FreshBoxes& operator=(const FreshBoxes&) = delete;
    ~FreshBoxes() { remove(); }

    void remove()
    {
        for (QCheckBox* const box : m_fresh) {
            m_column->removeWidget(box);
            delete box;
        }
        m_fresh.clear();
    }
    void make()
    {
        for (const QCheckBox* const ready : m_ready) {
            auto* const box = new QCheckBox(ready->text(), ready->parentWidget());
            box->setChecked(ready->isChecked());
            m_column->addWidget(box);
            m_fresh << box;
        }
    }

private:
    QList<QCheckBox*> m_ready;
    QList<QCheckBox*> m_fresh;
    QLayout* m_column = nullptr;
};

/// An editor against the frame of its twin, which has shown the field before.
void measureSelection(EditorHost& host, OrvEditor& editor, OrvEditor& twin, QDockWidget* dock, OrvEditor& otherTwin)
{
    NxField* const field = host.fieldOf(editor);
    NxField* const otherField = host.fieldOf(otherTwin);
    if (field == nullptr)
        return;
    twin.setEditedObject(field);
    twin.activate();
    twin.deactivate();
    QWidget* const readyFrame = twin.getWidget();
    std::optional<FreshBoxes> boxes;
    if (editor.getHandledType() == NxSFBitMask::getClassTypeId())
        boxes.emplace(readyFrame);
    bench::compare(
        "field selected to editor painted: " + std::string(editor.getName().toUtf8()), 1.3, rounds,
        [&] {
            host.services.selectField(otherField);
            bench::settle();
            return bench::secondsToPainted(editor.getWidget(), [&] { host.services.selectField(field); });
        },
        [&] {
            exchange(dock, otherTwin.getWidget());
            if (boxes)
                boxes->remove();
            bench::settle();
            return bench::secondsToPainted(readyFrame, [&] {
                if (boxes)
                    boxes->make();
                exchange(dock, readyFrame);
            });
        });
    if (controlsOf(editor.getWidget()) != controlsOf(readyFrame))
        qFatal("the twin of %s has other controls", editor.getName().toUtf8());
}

/// All editors, each one in turn with the editor of names, and that one with the editor of texts.
void measureSelections(EditorHost& host)
{
    OrvDefaults twins;
    twins.load();
    bench::DockWindow window;
    QDockWidget* const dock = window.addDock();
    window.show();
    const auto twinFor = [&twins](const NxType& type) {
        for (OrvExtension* const extension : twins.getExtensions()) {
            auto* const editor = dynamic_cast<OrvEditor*>(extension);
            if (editor != nullptr && editor->getHandledType() == type)
                return editor;
        }
        qFatal("no editor of names or texts");
    };
    OrvEditor* const names = twinFor(NxSFName::getClassTypeId());
    OrvEditor* const texts = twinFor(NxSFString::getClassTypeId());
    QList<QWidget*> frames;
    for (qsizetype i = 0; i < twins.getExtensions().size(); ++i) {
        auto* const editor = dynamic_cast<OrvEditor*>(host.plugin.getExtensions().at(i));
        auto* const twin = dynamic_cast<OrvEditor*>(twins.getExtensions().at(i));
        if (editor == nullptr)
            continue;
        measureSelection(host, *editor, *twin, dock, twin == names ? *texts : *names);
        frames << twin->getWidget();
    }
    // The editors own the frames that aren't shown.
    for (QWidget* const frame : frames)
        frame->setParent(nullptr);
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
        // The handle is at the left, where the slider's value is smallest.
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

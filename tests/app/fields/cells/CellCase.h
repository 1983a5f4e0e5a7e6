#pragma once

#include "app/fields/FieldPanelCase.h"

#include "orvane/app/fields/cells/CellRegistry.h"
#include "orvane/app/fields/cells/ValueDelegate.h"
#include "orvane/app/fields/editors/CellEditor.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"

#include "meridane/scene/nodes/NxFieldGallery.h"

#include <QApplication>

/// A test of the cells of a field table, worked with the mouse and keys.
class CellCase : public FieldPanelCase {
protected:
    void openGalleries(int count)
    {
        std::vector<NxRef<NxNode>> nodes;
        for (int i = 0; i < count; ++i)
            nodes.emplace_back(new NxFieldGallery);
        open(nodes);
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        if (count > 1)
            showAll();
    }

    [[nodiscard]] ValueDelegate& delegate() { return *m_panel->values(); }
    [[nodiscard]] QModelIndex cell(const char* name) { return row(name, FieldTableModel::ValueColumn); }

    /// The place of a part of a value in the viewport. The row is scrolled into sight.
    [[nodiscard]] QRect part(const char* name, int part)
    {
        view()->scrollTo(cell(name));
        const NxField& shown = field(name);
        const QRect area = ValueDelegate::areaOf(*view(), view()->visualRect(cell(name)));
        return orvane::cellOf(shown).partArea(area, shown, part, delegate().services());
    }
    /// Clicks a part of a value, which opens its editor.
    void clickPart(const char* name, int number)
    {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, part(name, number).center());
        ManyNodes::finish();
    }

    /// The open editor; null for none.
    [[nodiscard]] CellEditor* editor()
    {
        for (CellEditor* each : view()->findChildren<CellEditor*>()) {
            if (each->isVisible())
                return each;
        }
        return nullptr;
    }
    /// The line of the open editor.
    [[nodiscard]] QLineEdit* line()
    {
        CellEditor* const open = editor();
        auto* const found = open != nullptr ? open->findChild<QLineEdit*>() : nullptr;
        return found;
    }
    /// The popup that is open, if it is of that class.
    template <typename Popup>
    [[nodiscard]] static Popup* popup()
    {
        return dynamic_cast<Popup*>(QApplication::activePopupWidget());
    }
    /// The popup of a part, opened by a click.
    template <typename Popup>
    [[nodiscard]] Popup* openPopup(const char* name, int number = 0)
    {
        clickPart(name, number);
        return popup<Popup>();
    }
    [[nodiscard]] static NumberLine* numberLine(QWidget* parent, const QString& accessibleName)
    {
        for (NumberLine* each : parent->findChildren<NumberLine*>()) {
            if (each->accessibleName() == accessibleName)
                return each;
        }
        qFatal("no such line");
    }
    static void key(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(widget, key, modifiers);
        ManyNodes::finish();
    }
    static void type(QLineEdit* line, const char* text)
    {
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, QString::fromUtf8(text));
    }

    /// Destroys what is no longer used, as the event loop does.
    static void destroyLeftovers()
    {
        ManyNodes::finish();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    [[nodiscard]] int steps()
    {
        ManyNodes::finish();
        return m_many->services().undoDepth();
    }
    void undo()
    {
        m_many->services().undo();
        ManyNodes::finish();
    }
    [[nodiscard]] QString message()
    {
        const InputMessage* const shown = InputMessage::shownIn(m_panel.get());
        return shown != nullptr ? shown->text() : QString();
    }
    /// The picture of a cell.
    [[nodiscard]] QImage picture(const char* name)
    {
        view()->scrollTo(cell(name));
        QImage image = view()->viewport()->grab().toImage();
        const QRect place = view()->visualRect(cell(name));
        const qreal ratio = image.devicePixelRatio();
        return image.copy(QRectF(QPointF(place.topLeft()) * ratio, QSizeF(place.size()) * ratio).toRect());
    }
    [[nodiscard]] static int countOf(const QImage& image, const QColor& color, int tolerance = 8)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                const bool isNear = std::abs(pixel.red() - color.red()) <= tolerance
                    && std::abs(pixel.green() - color.green()) <= tolerance
                    && std::abs(pixel.blue() - color.blue()) <= tolerance;
                count += isNear ? 1 : 0;
            }
        }
        return count;
    }
};

#include "orvane/sdk/detail/WidgetTexts.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace orv {

namespace {

class TextSetter : public QObject {
public:
    TextSetter(QWidget& widget, std::function<void()> setTexts)
        : QObject(&widget)
        , m_setTexts(std::move(setTexts))
    {
        m_setTexts();
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            m_setTexts();
        return false;
    }

private:
    std::function<void()> m_setTexts;
};

} // namespace

void setWidgetTexts(QWidget& widget, std::function<void()> setTexts)
{
    new TextSetter(widget, std::move(setTexts));
}

} // namespace orv

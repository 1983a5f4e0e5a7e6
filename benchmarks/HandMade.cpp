#include "HandMade.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

#include <utility>

namespace bench {

namespace {

template <typename Widget>
QWidget* makeBare(QWidget* parent, const QString& /*text*/, const QIcon& /*icon*/)
{
    return new Widget(parent);
}

template <typename Button>
QWidget* makeButton(QWidget* parent, const QString& text, const QIcon& icon)
{
    auto* const button = new Button(parent);
    button->setText(text);
    button->setIcon(icon);
    return button;
}

QWidget* makeLabel(QWidget* parent, const QString& text, const QIcon& /*icon*/)
{
    return new QLabel(text, parent);
}

QWidget* makeSlider(QWidget* parent, const QString& /*text*/, const QIcon& /*icon*/)
{
    return new QSlider(Qt::Horizontal, parent);
}

/// These create their inner widgets themselves.
bool makesItsOwnParts(const QWidget& widget)
{
    return widget.inherits("QAbstractSpinBox") || widget.inherits("QComboBox") || widget.inherits("QAbstractScrollArea")
        || widget.inherits("QLineEdit");
}

bool isOwnPart(const QWidget& widget)
{
    return widget.objectName().startsWith(QStringLiteral("qt_")) || widget.inherits("QDockWidgetTitleButton");
}

} // namespace

HandMade::HandMade(const QWidgetList& originals)
{
    for (const QWidget* const original : originals) {
        if (original->parentWidget() == nullptr)
            add(*original, -1);
    }
}

void HandMade::add(const QWidget& original, int parent)
{
    if (isOwnPart(original))
        return;
    const auto* const button = qobject_cast<const QAbstractButton*>(&original);
    const auto* const label = qobject_cast<const QLabel*>(&original);
    const QWidget* const above = original.parentWidget();
    const int place = count();
    m_parts.push_back(
        {findMake(original), parent, original.layout() != nullptr, above != nullptr && above->layout() != nullptr,
            button != nullptr      ? button->text()
                : label != nullptr ? label->text()
                                   : QString(),
            button != nullptr ? button->icon() : QIcon()});
    if (makesItsOwnParts(original))
        return;
    for (const QObject* const child : original.children()) {
        if (child->isWidgetType())
            add(*static_cast<const QWidget*>(child), place);
    }
}

HandMade::Widgets HandMade::make() const
{
    Widgets tops;
    std::vector<QWidget*> made;
    for (const Part& part : m_parts) {
        QWidget* const parent = part.parent < 0 ? nullptr : made[static_cast<std::size_t>(part.parent)];
        QWidget* const widget = part.make(parent, part.text, part.icon);
        made.push_back(widget);
        if (part.hasLayout && widget->layout() == nullptr)
            new QHBoxLayout(widget);
        if (parent == nullptr)
            tops.emplace_back(widget);
        else if (part.isInLayout && qobject_cast<QHBoxLayout*>(parent->layout()) != nullptr)
            parent->layout()->addWidget(widget);
    }
    return tops;
}

HandMade::Make HandMade::findMake(const QWidget& original)
{
    // Derived classes before their bases.
    constexpr std::pair<const char*, Make> makes[] = {
        {"QCheckBox", &makeButton<QCheckBox>},
        {"QRadioButton", &makeButton<QRadioButton>},
        {"QPushButton", &makeButton<QPushButton>},
        {"QToolButton", &makeButton<QToolButton>},
        {"QLabel", &makeLabel},
        {"QLineEdit", &makeBare<QLineEdit>},
        {"QSlider", &makeSlider},
        {"QDoubleSpinBox", &makeBare<QDoubleSpinBox>},
        {"QAbstractSpinBox", &makeBare<QSpinBox>},
        {"QComboBox", &makeBare<QComboBox>},
        {"QTableWidget", &makeBare<QTableWidget>},
        {"QTextEdit", &makeBare<QTextEdit>},
        {"QDockWidget", &makeBare<QDockWidget>},
        {"QToolBar", &makeBare<QToolBar>},
        {"QFrame", &makeBare<QFrame>},
    };
    for (const auto& [name, make] : makes) {
        if (original.inherits(name))
            return make;
    }
    return &makeBare<QWidget>;
}

} // namespace bench

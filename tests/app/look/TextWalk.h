#pragma once

#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>

#include <algorithm>

/// Goes through the texts that the widgets of a window show.
namespace textWalk {

/// How a person would find the widget.
inline QString nameOf(const QWidget& widget)
{
    QStringList names;
    for (const QWidget* part = &widget; part != nullptr; part = part->parentWidget()) {
        if (!part->objectName().isEmpty() && !part->objectName().startsWith(QStringLiteral("qt_")))
            names.prepend(part->objectName());
    }
    return QStringLiteral("%1 (%2)").arg(names.join(u'/'), QString::fromLatin1(widget.metaObject()->className()));
}

inline int widthOf(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

/// The height of the lines of a label that isn't wrapped, without what rich text has around them.
inline int lineHeights(const QLabel& label)
{
    const auto lines = 1 + label.text().count(u'\n') + label.text().count(QStringLiteral("<br"));
    return std::min(label.sizeHint().height(), static_cast<int>(lines) * label.fontMetrics().height());
}

/// How much a text lacks, or nothing.
inline QString lacks(const QWidget& widget, int wanted, int there, const QString& text)
{
    return wanted > there
        ? QStringLiteral("%1: \"%2\" needs %3, has %4").arg(nameOf(widget), text.left(60)).arg(wanted).arg(there)
        : QString();
}

inline QString missingOfLabel(const QWidget& widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(&widget); label != nullptr) {
        if (label->text().isEmpty())
            return {};
        if (label->wordWrap())
            return lacks(widget, label->heightForWidth(label->width()), label->height(), label->text());
        QString missing = lacks(widget, lineHeights(*label), label->height(), label->text());
        return missing.isEmpty() && label->toolTip().isEmpty()
            ? lacks(widget, label->sizeHint().width(), label->width(), label->text())
            : missing;
    }
    return {};
}

inline QString missingOfControl(const QWidget& widget)
{
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget); button != nullptr) {
        const auto* const tool = qobject_cast<const QToolButton*>(button);
        const bool isIconAlone
            = tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull();
        if (button->text().isEmpty() || isIconAlone)
            return {};
        const QString missing = lacks(widget, button->minimumSizeHint().width(), button->width(), button->text());
        return missing.isEmpty() ? lacks(widget, button->fontMetrics().height(), button->height(), button->text())
                                 : missing;
    }
    if (const auto* const box = qobject_cast<const QComboBox*>(&widget); box != nullptr && box->toolTip().isEmpty()) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        const QRect room
            = box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
        return lacks(widget, widthOf(*box, box->currentText()), room.width(), box->currentText());
    }
    if (const auto* const line = qobject_cast<const QLineEdit*>(&widget); line != nullptr) {
        const QString missing = lacks(widget, line->fontMetrics().height(), line->height(), line->text());
        return missing.isEmpty() && line->toolTip().isEmpty() && line->text().isEmpty()
            ? lacks(widget, widthOf(*line, line->placeholderText()), line->width(), line->placeholderText())
            : missing;
    }
    if (const auto* const group = qobject_cast<const QGroupBox*>(&widget); group != nullptr)
        return lacks(widget, widthOf(*group, group->title()), group->width(), group->title());
    return {};
}

inline QString missingOfDock(const QWidget& widget)
{
    if (const auto* const dock = qobject_cast<const QDockWidget*>(&widget);
        dock != nullptr && dock->titleBarWidget() == nullptr && dock->toolTip().isEmpty()) {
        int buttons = 0;
        for (const QAbstractButton* const button : dock->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly))
            buttons += button->isVisible() ? button->width() : 0;
        return lacks(widget, widthOf(*dock, dock->windowTitle()), dock->width() - buttons, dock->windowTitle());
    }
    return {};
}

inline QString missingOfParts(const QWidget& widget)
{
    if (const auto* const header = qobject_cast<const QHeaderView*>(&widget);
        header != nullptr && header->orientation() == Qt::Horizontal && header->model() != nullptr) {
        for (int section = 0; section < header->count(); ++section) {
            const QAbstractItemModel& model = *header->model();
            const QString text = model.headerData(section, Qt::Horizontal).toString();
            const bool hasTip = !model.headerData(section, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty();
            if (header->isSectionHidden(section) || hasTip)
                continue;
            const QString missing = lacks(widget, widthOf(*header, text), header->sectionSize(section), text);
            if (!missing.isEmpty())
                return missing;
        }
    }
    if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget); tabs != nullptr) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            const QString missing
                = lacks(widget, widthOf(*tabs, tabs->tabText(tab)), tabs->tabRect(tab).width(), tabs->tabText(tab));
            if (!missing.isEmpty() && tabs->tabToolTip(tab).isEmpty())
                return missing;
        }
    }
    return {};
}

/// What is missing for the text of a widget, or nothing. A text is cut if its widget is lower than its lines, or
/// narrower than the text while no tool tip has it. Cells of tables aren't looked at: their columns are the user's.
inline QString missingOf(const QWidget& widget)
{
    for (auto* const missingOfKind : {missingOfLabel, missingOfControl, missingOfDock, missingOfParts}) {
        const QString missing = missingOfKind(widget);
        if (!missing.isEmpty())
            return missing;
    }
    return {};
}

/// All visible widgets of a window, but for those of other windows.
inline QList<QWidget*> widgetsOf(QWidget* window)
{
    QList<QWidget*> all{window};
    for (QWidget* const widget : window->findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->window() == window && !widget->visibleRegion().isEmpty())
            all.append(widget);
    }
    return all;
}

inline QStringList clippedTexts(QWidget* window)
{
    QStringList clipped;
    for (const QWidget* const widget : widgetsOf(window)) {
        const QString missing = missingOf(*widget);
        if (!missing.isEmpty())
            clipped.append(missing);
    }
    return clipped;
}

} // namespace textWalk

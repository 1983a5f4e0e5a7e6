#include "orvane/app/window/KeptColumns.h"

#include "orvane/app/base/AppSettings.h"

#include <QEvent>
#include <QHeaderView>
#include <QMainWindow>
#include <QSplitter>

#include <algorithm>
#include <array>

namespace {

/// Views whose columns are always the same.
constexpr std::array keptViews{"sceneTree", "historyTable", "problemTable", "differenceTable"};

QString keyOf(const QObject& part)
{
    return QStringLiteral("layout/") + part.objectName();
}

} // namespace

KeptColumns::KeptColumns(QMainWindow* window, AppSettings& settings)
    : QObject(window)
    , m_window(window)
    , m_settings(settings)
{
    m_followSoon.setSingleShot(true);
    connect(&m_followSoon, &QTimer::timeout, this, &KeptColumns::followViews);
    window->installEventFilter(this);
    followViews();
}

KeptColumns::~KeptColumns() = default;

void KeptColumns::followViews()
{
    m_followed.removeIf([](const QPointer<QObject>& part) { return part == nullptr; });
    for (auto* const header : m_window->findChildren<QHeaderView*>()) {
        const QObject* const view = header->parent();
        const bool isKept = std::any_of(keptViews.begin(), keptViews.end(),
            [view](const char* name) { return view->objectName() == QLatin1String(name); });
        if (isKept && header->orientation() == Qt::Horizontal && !m_followed.contains(header))
            follow(header);
    }
    for (auto* const splitter : m_window->findChildren<QSplitter*>()) {
        if (!splitter->objectName().isEmpty() && !splitter->objectName().startsWith(QStringLiteral("qt_"))
            && !m_followed.contains(splitter))
            follow(splitter);
    }
}

void KeptColumns::follow(QHeaderView* header)
{
    m_followed.append(header);
    restore(*header);
    header->viewport()->installEventFilter(this);
    connect(header, &QHeaderView::sectionResized, this, [this, header] {
        if (m_pressed == header)
            m_isResized = true;
    });
}

void KeptColumns::follow(QSplitter* splitter)
{
    m_followed.append(splitter);
    splitter->restoreState(m_settings.value(keyOf(*splitter)).toByteArray());
    // It is emitted for moves by the user only.
    connect(splitter, &QSplitter::splitterMoved, this,
        [this, splitter] { m_settings.setValue(keyOf(*splitter), splitter->saveState()); });
}

void KeptColumns::store(const QHeaderView& header)
{
    QStringList widths;
    for (int section = 0; section < header.count(); ++section)
        widths.append(QString::number(header.sectionSize(section)));
    m_settings.setValue(keyOf(*header.parent()), widths);
}

void KeptColumns::restore(QHeaderView& header) const
{
    const QStringList widths = m_settings.value(keyOf(*header.parent())).toStringList();
    if (widths.size() != header.count())
        return;
    for (int section = 0; section < header.count(); ++section) {
        const int width = widths.at(section).toInt();
        if (width > 0 && !(header.stretchLastSection() && section == header.count() - 1))
            header.resizeSection(section, std::max(width, header.minimumSectionSize()));
    }
}

bool KeptColumns::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_window) {
        // A dock that was added may have a table.
        if (event->type() == QEvent::ChildPolished || event->type() == QEvent::Show)
            m_followSoon.start(0);
        return false;
    }
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        m_pressed = qobject_cast<QHeaderView*>(object->parent());
        m_isResized = false;
    } else if (event->type() == QEvent::MouseButtonRelease && m_pressed != nullptr) {
        // A double click, which fits the column to its contents, changes it before its release.
        if (m_isResized)
            store(*m_pressed);
        m_pressed = nullptr;
    }
    return false;
}

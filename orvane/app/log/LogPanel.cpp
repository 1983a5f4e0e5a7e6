#include "orvane/app/log/LogPanel.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/AppSettings.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/UserLocale.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/log/LogBook.h"
#include "orvane/app/log/LogDelegate.h"
#include "orvane/app/log/LogFile.h"
#include "orvane/app/log/LogFindLine.h"
#include "orvane/app/log/LogModel.h"
#include "orvane/app/log/LogSearch.h"
#include "orvane/app/log/LogView.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/problems/ProblemText.h"
#include "orvane/app/problems/SeverityIcons.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr std::array severities{NxSeverity::Error, NxSeverity::Warning, NxSeverity::Information};
const QString foldKey = QStringLiteral("log/groupEqualLines");
const QString fileTopic = QStringLiteral("logFile");

QString shownKey(NxSeverity severity)
{
    return QStringLiteral("log/show") + QString::number(static_cast<int>(severity));
}

} // namespace

LogPanel::LogPanel(const Parts& parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_model(new LogModel(parts.book, this))
    , m_links(new LogLinks(parts.document, this))
    , m_delegate(new LogDelegate(*m_links, this))
    , m_view(new LogView(*m_model, *m_delegate, *m_links, this))
    , m_search(new LogSearch(*m_model, this))
    , m_find(new LogFindLine(*m_search, *m_delegate, *m_view, this))
    , m_filter(new QLineEdit(this))
    , m_state(new QLabel(this))
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    addActions();
    auto* const top = new QHBoxLayout;
    top->setContentsMargins(2 * unit, unit, 2 * unit, unit);
    top->setSpacing(unit);
    layout->addLayout(top);
    buildTopLine(top);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_find);
    m_state->setObjectName(QStringLiteral("logState"));
    m_state->setTextFormat(Qt::PlainText);
    m_state->setForegroundRole(QPalette::PlaceholderText);
    m_state->setContentsMargins(2 * unit, unit / 2, 2 * unit, unit / 2);
    // A long sentence must not make the dock wide.
    m_state->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(m_state);
    setFocusProxy(m_view);
    constexpr int timeWidth = 18;
    constexpr int sourceWidth = 20;
    constexpr double textShare = 0.85;
    m_view->setColumns({{timeWidth}, {sourceWidth}, {sourceWidth, textShare}, {}});
    m_view->addCopyActions(QStringLiteral("log"));
    connect(m_view, &RowTable::copyRequested, this, &LogPanel::copy);
    connect(m_view, &LogView::linkChosen, this, &LogPanel::follow);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &LogPanel::updateActions);
    connect(&parts.book, &LogBook::changed, this, &LogPanel::update);
    connect(&parts.book, &LogBook::cleared, this, &LogPanel::update);
    connect(m_model, &QAbstractItemModel::modelReset, this, &LogPanel::update);
    connect(m_links, &LogLinks::changed, this, &LogPanel::updateActions);
    updateIcons();
    orvane::followLanguage(this, [this] { setTexts(); });
}

LogPanel::~LogPanel() = default;

void LogPanel::addActions()
{
    m_open = addAction("log.open", {}, &LogPanel::openLink);
    m_openFolder = addAction("log.openFolder", {}, &LogPanel::openFolder);
    m_fold = addAction("log.fold", {}, nullptr);
    m_fold->setCheckable(true);
    SettingsStore& store = SettingsStore::of(m_parts.settings);
    store.follow(foldKey, this, [this, &store] {
        m_fold->setChecked(store.isOn(foldKey));
        setFolding(m_fold->isChecked());
    });
    connect(m_fold, &QAction::triggered, this, [&store](bool isOn) { store.set(foldKey, isOn); });
    m_clear = addAction("log.clear", {}, &LogPanel::clear);
    m_save = addAction("log.save", {}, &LogPanel::save);
    m_beginFind = addAction("log.find", QKeySequence::Find, &LogPanel::openFind);
    m_findNext = addAction("log.findNext", Qt::Key_F3, nullptr);
    m_findPrevious = addAction("log.findPrevious", Qt::SHIFT | Qt::Key_F3, nullptr);
    connect(m_findNext, &QAction::triggered, m_find, &LogFindLine::goToNext);
    connect(m_findPrevious, &QAction::triggered, m_find, &LogFindLine::goToPrevious);
    m_view->addActions({m_open, m_openFolder});
}

QAction* LogPanel::addAction(const char* name, const QKeySequence& key, void (LogPanel::*run)())
{
    auto* const action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    if (run != nullptr)
        connect(action, &QAction::triggered, this, run);
    QWidget::addAction(action);
    return action;
}

void LogPanel::buildTopLine(QHBoxLayout* line)
{
    for (const NxSeverity severity : severities)
        addSeverity(line, severity);
    m_filter->setObjectName(QStringLiteral("logFilter"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    connect(m_filter, &QLineEdit::textChanged, this, &LogPanel::filter);
    line->addWidget(m_filter, 1);
    const auto addButton = [this, line](QAction* action, const char* name) {
        auto* const button = new QToolButton(this);
        button->setObjectName(QLatin1String(name));
        button->setDefaultAction(action);
        line->addWidget(button);
    };
    addButton(m_fold, "foldLog");
    addButton(m_beginFind, "findInLog");
    addButton(m_save, "saveLog");
    addButton(m_clear, "clearLog");
}

void LogPanel::addSeverity(QHBoxLayout* line, NxSeverity severity)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(QStringLiteral("logSeverity%1").arg(static_cast<int>(severity)));
    button->setCheckable(true);
    button->setChecked(m_parts.settings.value(shownKey(severity), true).toBool());
    m_model->setShown(severity, button->isChecked());
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(button, &QToolButton::toggled, this, [this, severity](bool isShown) { setShown(severity, isShown); });
    line->addWidget(button);
    m_severities[static_cast<std::size_t>(severity)] = button;
}

void LogPanel::setTexts()
{
    const auto setText = [](QAction* action, const QString& text, const QString& statusTip) {
        action->setText(text);
        action->setStatusTip(statusTip);
    };
    setText(m_open, tr("&Open"), tr("Selects the node or opens the file that the row is about"));
    setText(m_openFolder, tr("Open &Folder"), tr("Opens the folder of the file that the row is about"));
    setText(
        m_fold, tr("&Group Equal Lines"), tr("Shows equal lines that follow each other as one row with their number"));
    setText(m_clear, tr("C&lear"), tr("Forgets all lines of the log"));
    setText(m_save, tr("&Save…"), tr("Writes the rows that are shown to a text file"));
    setText(m_beginFind, tr("F&ind"), tr("Searches the rows of the log, and keeps the rows around the hits"));
    setText(m_findNext, tr("Find &Next"), tr("Goes to the next hit in the log"));
    setText(m_findPrevious, tr("Find &Previous"), tr("Goes to the previous hit in the log"));
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter"));
    m_filter->setToolTip(tr("Shows the rows that contain all of these words, in the text or the source; the others are "
                            "hidden, not lost"));
    update();
}

void LogPanel::setShown(NxSeverity severity, bool isShown)
{
    m_parts.settings.setValue(shownKey(severity), isShown);
    const LogView::Place place = m_view->place();
    m_model->setShown(severity, isShown);
    m_view->returnTo(place);
}

void LogPanel::setFolding(bool isOn)
{
    const LogView::Place place = m_view->place();
    m_model->setFolding(isOn);
    m_view->returnTo(place);
}

void LogPanel::filter()
{
    const LogView::Place place = m_view->place();
    m_model->setFilter(m_filter->text());
    m_view->returnTo(place);
}

void LogPanel::update()
{
    const LogBook& book = m_parts.book;
    for (const NxSeverity severity : severities) {
        QToolButton* const button = m_severities[static_cast<std::size_t>(severity)];
        const QString count = orvane::countText(book.count(severity));
        const QString about = tr("%1: %2").arg(orvane::severityName(severity), count);
        button->setText(count);
        button->setAccessibleName(about);
        button->setToolTip(tr("%1, shown or hidden by this button").arg(about));
    }
    const QString limit = tr("the last %1 lines or %2 are kept")
                              .arg(orvane::countText(book.limits().lines),
                                  orvane::sizeText(static_cast<qlonglong>(book.limits().bytes)));
    QString text = tr("%1 lines; %2").arg(orvane::countText(book.lineCount()), limit);
    if (book.droppedCount() > 0)
        text += tr("; %1 older ones were dropped").arg(orvane::countText(book.droppedCount()));
    if (m_model->rowCount() == 0 && book.lineCount() > 0)
        text = tr("The filter hides all lines. ") + text;
    m_state->setText(text);
    m_state->setToolTip(text);
    updateActions();
}

void LogPanel::updateActions()
{
    const QString empty = m_parts.book.lineCount() > 0 ? QString() : tr("The log is empty.");
    orvane::setReason(*m_clear, empty);
    orvane::setReason(*m_save, m_model->rowCount() > 0 ? QString() : tr("No lines are shown."));
    const QString nothing = tr("The row names no node and no file that exists.");
    orvane::setReason(*m_open, firstLink(false) != nullptr ? QString() : nothing);
    orvane::setReason(*m_openFolder, firstLink(true) != nullptr ? QString() : nothing);
}

void LogPanel::updateIcons()
{
    const int size = orvane::look::iconSize(fontMetrics());
    m_view->setIconSize(QSize(size, size));
    for (const NxSeverity severity : severities) {
        QToolButton* const button = m_severities[static_cast<std::size_t>(severity)];
        button->setIcon(orvane::severityIcon(severity));
        button->setIconSize(QSize(size, size));
    }
}

void LogPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        updateIcons();
    QWidget::changeEvent(event);
}

void LogPanel::copy(const std::vector<int>& rows)
{
    if (!rows.empty())
        QGuiApplication::clipboard()->setText(orvane::logText(*m_model, rows));
}

void LogPanel::clear()
{
    m_parts.book.clear();
}

void LogPanel::openFind()
{
    m_find->begin();
}

void LogPanel::save()
{
    auto* const dialog = new QFileDialog(window(), tr("Save the Log"));
    dialog->setObjectName(QStringLiteral("logFileDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("Text files (*.txt *.log)"), tr("All files (*)")});
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    dialog->selectFile(QStringLiteral("orvane-log.txt"));
    connect(dialog, &QFileDialog::fileSelected, this, &LogPanel::write);
    dialog->open();
}

void LogPanel::write(const QString& fileName)
{
    const auto written = orvane::writeLog(*m_model, fileName);
    if (written)
        m_parts.messages.clearTopic(fileTopic);
    else
        m_parts.messages.showMessage(
            MessageBar::Severity::Error, tr("The log wasn't written: %1").arg(written.error()), fileTopic);
}

/// The first link of the current row, or its first one to a file or folder; null for none.
const LogLink* LogPanel::firstLink(bool isFile)
{
    const QString text = m_model->shownText(m_view->currentIndex().row());
    if (text.isEmpty())
        return nullptr;
    const LogLinks::Links& links = m_links->of(text);
    const auto found = std::ranges::find_if(
        links, [isFile](const LogLink& link) { return !isFile || link.kind != LogLink::Kind::Node; });
    return found != links.end() ? &*found : nullptr;
}

void LogPanel::openLink()
{
    if (const LogLink* const link = firstLink(false)) {
        const LogLink chosen = *link; // a slot may change the scene
        follow(chosen);
    }
}

void LogPanel::openFolder()
{
    if (const LogLink* const link = firstLink(true))
        open(link->kind == LogLink::Kind::Folder ? link->target : QFileInfo(link->target).absolutePath());
}

void LogPanel::follow(const LogLink& link)
{
    if (link.kind == LogLink::Kind::Node)
        Q_EMIT nodeChosen(link.target);
    else
        open(link.target);
}

void LogPanel::open(const QString& path)
{
    const auto opened = orvane::openInDesktop(path);
    if (opened)
        m_parts.messages.clearTopic(fileTopic);
    else
        m_parts.messages.showMessage(MessageBar::Severity::Warning, opened.error(), fileTopic);
}

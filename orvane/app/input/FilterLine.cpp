#include "orvane/app/input/FilterLine.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/input/InputMessage.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/language/ToolkitText.h"
#include "orvane/app/look/Look.h"

#include <QEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTimerEvent>

#include <chrono>
#include <utility>

namespace {

// Many texts are wrong only until they are complete.
constexpr std::chrono::milliseconds pauseBeforeError(700);

} // namespace

FilterLine::FilterLine(meridane::Query::Subject subject, QWidget* parent)
    : QLineEdit(parent)
    , m_subject(subject)
{
    orvane::followLanguage(this, [this] {
        setPlaceholderText(tr("Filter"));
        setAccessibleName(tr("Filter"));
    });
    setClearButtonEnabled(true);
    connect(this, &QLineEdit::textChanged, this, &FilterLine::follow);
}

FilterLine::~FilterLine() = default;

void FilterLine::reset()
{
    const QSignalBlocker blocker(this);
    clear();
    m_query = {};
    m_error.reset();
    showState();
}

void FilterLine::follow(const QString& text)
{
    auto parsed = meridane::Query::parse(text.toStdString(), m_subject);
    if (auto* const error = std::get_if<meridane::QueryError>(&parsed)) {
        m_error = std::move(*error);
        showState();
        return;
    }
    m_error.reset();
    showState();
    m_query = std::get<meridane::Query>(std::move(parsed));
    Q_EMIT queryChanged(m_query);
}

void FilterLine::showState()
{
    const QScopedValueRollback coloring(m_coloring, true);
    QPalette palette; // that of the parent for what isn't set
    if (m_error) {
        using orvane::look::Tint;
        const QColor background = this->palette().color(QPalette::Base);
        palette.setColor(QPalette::Text, orvane::look::textColor(Tint::Error, background));
        m_pause.start(static_cast<int>(pauseBeforeError.count()), this);
    } else {
        m_pause.stop();
    }
    InputMessage::clear(this);
    setPalette(palette);
}

void FilterLine::showError()
{
    m_pause.stop();
    if (m_error)
        InputMessage::showFor(this, orvane::toolkitText(orvane::toQString(m_error->message)));
}

void FilterLine::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (isReturn && m_error) {
        const std::string before = text().toStdString().substr(0, m_error->position);
        setCursorPosition(static_cast<int>(orvane::toQString(before).size()));
        showError();
    } else if (key == Qt::Key_Escape && !text().isEmpty()) {
        clear();
    } else if (isReturn || key == Qt::Key_Down || key == Qt::Key_Escape) {
        Q_EMIT left();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void FilterLine::changeEvent(QEvent* event)
{
    // The colour of an error depends on the background.
    if (event->type() == QEvent::PaletteChange && m_error && !m_coloring)
        showState();
    QLineEdit::changeEvent(event);
}

void FilterLine::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_pause.timerId())
        showError();
    else
        QLineEdit::timerEvent(event);
}

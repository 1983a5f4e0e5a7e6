#include "orvane/app/manners/LineCover.h"

#include "orvane/app/input/InputMessage.h"
#include "orvane/app/input/NumberLine.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/manners/EditorDocks.h"
#include "orvane/app/manners/LineWatch.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>

#include <cmath>

LineCover::LineCover(const EditorLine& target, OrvServices& services, const QString& text, int position)
    : QObject(target.line())
    , m_target(target)
    , m_services(services)
    , m_line(target.line())
    , m_input(new NumberLine(target.line()))
{
    m_input->setObjectName(QStringLiteral("numberCover"));
    orvane::followLanguage(this, [this] { m_input->setAccessibleName(tr("Number or formula")); });
    m_input->setToolTip(
        tr("Takes %1, or a formula in which x is the present value. Up and Down step, with Shift ten times "
           "as far, with Ctrl a tenth.")
            .arg(target.limits().description()));
    m_input->setFrame(m_line->hasFrame());
    m_input->setGeometry(m_line->rect());
    m_input->setLimits(target.limits());
    m_input->setValue(target.valueOf(m_line->text()), m_line->text());
    m_input->installEventFilter(this);
    m_line->installEventFilter(this);
    connect(m_input, &NumberLine::accepted, this, &LineCover::finish);
    connect(m_input, &NumberLine::restored, this, &LineCover::close);
    connect(m_input, &NumberLine::stepped, this, [this](double factor) {
        const double value = m_input->number();
        m_input->selectAll();
        m_input->insert(orvane::plainNumber(value + factor * m_target.limits().stepFrom(value)));
    });
    m_input->show();
    m_input->setFocus();
    m_input->selectAll();
    m_input->insert(text);
    m_input->setCursorPosition(position);
}

LineCover::~LineCover() = default;

bool LineCover::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_line) {
        if (event->type() == QEvent::Resize)
            m_input->setGeometry(m_line->rect());
        return false;
    }
    if (event->type() == QEvent::FocusOut)
        m_isLeft = true;
    else if (event->type() == QEvent::FocusIn)
        m_isLeft = false;
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape) {
        m_input->restore();
        return true; // not passed on to the line, which would take it as well
    }
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab)
        return false;
    m_isTab = true;
    m_isBackwards = key == Qt::Key_Backtab;
    m_input->accept();
    m_isTab = false;
    return true;
}

void LineCover::finish()
{
    const double number = m_input->number();
    const QString text = m_target.textFor(number);
    if (text.isEmpty()) {
        m_input->refuse(tr("The editor doesn't take %1. Enter %2.")
                            .arg(orvane::plainNumber(number), m_target.limits().description()));
        return;
    }
    if (m_target.field() != nullptr && m_target.field() != EditorDocks::fieldOf(m_line)) {
        m_input->refuse(tr("Another field has been selected meanwhile."));
        return;
    }
    const QPointer<LineCover> self = this;
    const bool isTab = m_isTab;
    const bool isLeft = m_isLeft;
    const int tab = m_isBackwards ? Qt::Key_Backtab : Qt::Key_Tab;
    m_isWriting = true;
    close();
    // A slider in a cell would write another row than its own.
    if (m_target.isPartOfCell() && m_target.write(m_services, number)) {
        sendKey(Qt::Key_Escape);
        return;
    }
    enter(text);
    if (m_target.waitsForReturn() && (isTab || isLeft)) {
        if (isTab)
            sendKey(tab);
        return;
    }
    const bool tabCommits = isTab && m_target.table() != nullptr;
    sendKey(tabCommits ? tab : Qt::Key_Return);
    if (self != nullptr && m_line != nullptr)
        reportOther(number);
    if (isTab && !tabCommits)
        sendKey(tab);
}

void LineCover::enter(const QString& text)
{
    m_target.refineOthers();
    m_line->setText(text);
    m_line->setModified(true); // as by typing, which some editors ask for
}

// To the line, as if the user had pressed it there.
void LineCover::sendKey(int key)
{
    if (m_line == nullptr)
        return;
    const QPointer<QWidget> target = LineWatch::keyTargetOf(m_line);
    // A validator lets no key pass for infinities, which the field takes.
    const QPointer<const QValidator> validator = m_line->validator();
    const bool isHeldBack = !m_line->hasAcceptableInput();
    if (isHeldBack)
        m_line->setValidator(nullptr);
    const QString text = key == Qt::Key_Return ? QStringLiteral("\r") : QString();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &press);
    if (target != nullptr) {
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QApplication::sendEvent(target, &release);
    }
    if (isHeldBack && m_line != nullptr)
        m_line->setValidator(validator);
}

void LineCover::reportOther(double number)
{
    const double present = m_target.present();
    if (std::isnan(present) || m_target.textFor(present) == m_target.textFor(number))
        return;
    InputMessage::showBriefly(m_line, m_line->rect(),
        tr("The editor has set %1 instead of %2.").arg(orvane::plainNumber(present), orvane::plainNumber(number)),
        InputMessage::Kind::Warning);
}

// The line may be in the middle of an event, or of losing the focus.
void LineCover::close()
{
    if (m_isClosed)
        return;
    m_isClosed = true;
    const bool isLeft = m_isLeft;
    m_input->setModified(false); // there is nothing left to accept
    m_input->removeEventFilter(this);
    if (m_line != nullptr && !isLeft)
        LineWatch::keyTargetOf(m_line)->setFocus();
    m_input->hide();
    m_input->deleteLater();
    deleteLater();
    // The editor of a cell doesn't know that the focus has gone.
    if (isLeft && m_line != nullptr && m_target.table() != nullptr && !m_isWriting)
        sendKey(Qt::Key_Escape);
}

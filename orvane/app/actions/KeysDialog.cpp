#include "orvane/app/actions/KeysDialog.h"

#include "orvane/app/actions/ActionKeys.h"
#include "orvane/app/actions/KeyLine.h"
#include "orvane/app/actions/KeysModel.h"
#include "orvane/app/base/RowTable.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/Look.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

KeysDialog::KeysDialog(QMainWindow* window, ActionKeys& keys)
    : QDialog(window)
    , m_keys(keys)
    , m_model(new KeysModel(*window, keys, this))
    , m_filter(new QLineEdit(this))
    , m_view(new RowTable(this))
    , m_line(new KeyLine(this))
    , m_remove(new QPushButton(this))
    , m_reset(new QPushButton(this))
    , m_resetAll(new QPushButton(this))
    , m_takeOver(new QPushButton(this))
    , m_message(new QLabel(this))
{
    orvane::followLanguage(this, [this] {
        m_remove->setText(tr("&No Key"));
        m_reset->setText(tr("&Reset"));
        m_resetAll->setText(tr("Reset &All"));
        m_takeOver->setText(tr("&Take Over"));
        setWindowTitle(tr("Keyboard Shortcuts"));
    });
    setObjectName(QStringLiteral("keysDialog"));
    const int unit = orvane::look::unit(fontMetrics());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * unit, 2 * unit, 2 * unit, 2 * unit);
    layout->setSpacing(2 * unit);
    m_filter->setObjectName(QStringLiteral("keysFilter"));
    orvane::followLanguage(this, [this] {
        m_filter->setPlaceholderText(tr("Letters of an action, or a key such as Ctrl+O"));
        m_filter->setAccessibleName(tr("Search the keys"));
    });
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    layout->addWidget(m_filter);
    buildView();
    layout->addWidget(m_view, 1);
    buildButtons(layout);
    connect(m_filter, &QLineEdit::textChanged, this, &KeysDialog::filter);
    connect(m_line, &KeyLine::pressed, this, &KeysDialog::take);
    connect(m_line, &KeyLine::left, m_view, [this] { m_view->setFocus(); });
    connect(&keys, &ActionKeys::changed, this, &KeysDialog::update);
    resize(std::min(fontMetrics().averageCharWidth() * 110, window->width()),
        std::min(orvane::look::rowHeight(fontMetrics()) * 26, window->height()));
    filter({});
    m_filter->setFocus();
}

KeysDialog::~KeysDialog() = default;

void KeysDialog::buildView()
{
    m_view->setObjectName(QStringLiteral("keysTable"));
    orvane::followLanguage(this, [this] { m_view->setAccessibleName(tr("Keys")); });
    m_view->setModel(m_model);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setTabKeyNavigation(false);
    m_view->installEventFilter(this);
    const int letter = fontMetrics().averageCharWidth();
    m_view->setColumnWidth(KeysModel::ActionColumn, letter * 36);
    m_view->setColumnWidth(KeysModel::PlaceColumn, letter * 20);
    m_view->setColumnWidth(KeysModel::KeysColumn, letter * 24);
    m_view->horizontalHeader()->setStretchLastSection(true);
    connect(m_view, &QTableView::doubleClicked, this, &KeysDialog::begin);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        offer({});
        update();
    });
}

void KeysDialog::buildButtons(QBoxLayout* layout)
{
    const int unit = orvane::look::unit(fontMetrics());
    auto* const line = new QHBoxLayout;
    line->setSpacing(unit);
    m_line->setObjectName(QStringLiteral("keyLine"));
    m_remove->setObjectName(QStringLiteral("removeKeys"));
    m_reset->setObjectName(QStringLiteral("resetKeys"));
    m_resetAll->setObjectName(QStringLiteral("resetAllKeys"));
    m_takeOver->setObjectName(QStringLiteral("takeOverKey"));
    m_message->setObjectName(QStringLiteral("keysMessage"));
    line->addWidget(m_line, 1);
    for (QPushButton* const button : {m_remove, m_reset, m_resetAll}) {
        button->setAutoDefault(false);
        line->addWidget(button);
    }
    layout->addLayout(line);
    auto* const last = new QHBoxLayout;
    last->setSpacing(unit);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    last->addWidget(m_message, 1);
    m_takeOver->setAutoDefault(false);
    last->addWidget(m_takeOver);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    last->addWidget(buttons);
    layout->addLayout(last);
    connect(m_remove, &QPushButton::clicked, this, &KeysDialog::removeKeys);
    connect(m_reset, &QPushButton::clicked, this, &KeysDialog::reset);
    connect(m_resetAll, &QPushButton::clicked, &m_keys, &ActionKeys::resetAll);
    connect(m_takeOver, &QPushButton::clicked, this, &KeysDialog::takeOver);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QString KeysDialog::current() const
{
    return m_model->name(m_view->currentIndex());
}

void KeysDialog::filter(const QString& text)
{
    m_model->setFilter(text);
    m_view->setCurrentIndex(m_model->index(0, KeysModel::ActionColumn));
    offer(m_model->rowCount() == 0 ? tr("No action and no key has these letters.") : QString());
    update();
}

void KeysDialog::update()
{
    const QString name = current();
    const bool isAction = !name.isEmpty();
    const QString reason = !m_view->currentIndex().isValid() ? tr("Select an action first.")
        : isAction                                           ? QString()
                                                             : tr("This key can't be changed.");
    m_line->setEnabled(isAction);
    m_line->setText(
        isAction ? m_model->index(m_view->currentIndex().row(), KeysModel::KeysColumn).data().toString() : QString());
    m_line->setToolTip(isAction ? tr("The next key that is pressed here becomes the key of the action") : reason);
    m_remove->setEnabled(isAction && !m_keys.keys(name).isEmpty());
    m_remove->setToolTip(isAction ? tr("Takes the keys from the action") : reason);
    m_reset->setEnabled(isAction && m_keys.isChanged(name));
    m_reset->setToolTip(isAction ? tr("Gives the action the keys that it came with") : reason);
    m_resetAll->setEnabled(m_keys.hasChanges());
    m_resetAll->setToolTip(tr("Gives all actions the keys that they came with"));
}

void KeysDialog::offer(const QString& message, const QKeySequence& key, const QStringList& from)
{
    m_message->setText(message);
    m_offered = key;
    m_offeredFrom = from;
    m_takeOver->setVisible(!from.isEmpty());
}

void KeysDialog::begin()
{
    if (current().isEmpty())
        offer(tr("This key can't be changed."));
    else
        m_line->setFocus();
}

void KeysDialog::take(const QKeySequence& key)
{
    const QString name = current();
    if (name.isEmpty())
        return;
    if (const QString refusal = m_keys.refusal(name, key); !refusal.isEmpty()) {
        offer(refusal);
        return;
    }
    const QString text = key.toString(QKeySequence::NativeText);
    const QStringList others = m_keys.conflicts(name, key);
    if (!others.isEmpty()) {
        QStringList texts;
        for (const QString& other : others)
            texts.append(m_model->text(other));
        m_line->setText(text);
        offer(tr("%1 is the key of %2.").arg(text, texts.join(QStringLiteral(", "))), key, others);
        m_takeOver->setFocus();
        return;
    }
    m_keys.setKeys(name, {key});
    offer(tr("%1 has the key %2 now.").arg(m_model->text(name), text));
    m_view->setFocus();
}

void KeysDialog::takeOver()
{
    const QString name = current();
    const QKeySequence key = m_offered;
    const QStringList others = m_offeredFrom; // which goes when the row changes
    for (const QString& other : others)
        m_keys.takeKey(other, key);
    m_keys.setKeys(name, {key});
    m_view->setFocus();
    offer(tr("%1 has the key %2 now.").arg(m_model->text(name), key.toString(QKeySequence::NativeText)));
}

void KeysDialog::removeKeys()
{
    m_keys.setKeys(current(), {});
    offer({});
}

void KeysDialog::reset()
{
    const QString name = current();
    for (const QKeySequence& key : m_keys.defaults(name)) {
        if (const QStringList others = m_keys.conflicts(name, key); !others.isEmpty()) {
            offer(tr("%1 is the key of %2 now. Reset that one first, or all.")
                      .arg(key.toString(QKeySequence::NativeText), m_model->text(others.front())));
            return;
        }
    }
    m_keys.reset(name);
    offer({});
}

bool KeysDialog::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (object == m_filter && (isReturn || key == Qt::Key_Down)) {
        m_view->setFocus();
        return true;
    }
    if (object == m_view && (isReturn || key == Qt::Key_F2)) {
        begin();
        return true;
    }
    return QDialog::eventFilter(object, event);
}

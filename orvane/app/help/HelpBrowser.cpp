#include "orvane/app/help/HelpBrowser.h"

#include "orvane/app/help/HelpPages.h"
#include "orvane/app/look/Look.h"

#include <QDebug>
#include <QDesktopServices>
#include <QEvent>
#include <QFile>
#include <QImage>
#include <QResizeEvent>
#include <QTextBlock>
#include <QTextTable>

#include <algorithm>
#include <chrono>

namespace {

constexpr double lineHeight = 125; // per cent
constexpr std::chrono::milliseconds resizePause(200);

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent)
    : QTextBrowser(parent)
{
    setOpenLinks(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::layOut);
    m_resized.setSingleShot(true);
    connect(&m_resized, &QTimer::timeout, this, &HelpBrowser::showAgain);
}

void HelpBrowser::setWords(const QStringList& words)
{
    m_words = words;
    markWords();
}

bool HelpBrowser::goToWord(bool forwards)
{
    const QList<QTextEdit::ExtraSelection> marks = extraSelections();
    if (marks.isEmpty())
        return false;
    const int position = forwards ? textCursor().selectionStart() : textCursor().selectionEnd();
    const auto start = [](const QTextEdit::ExtraSelection& mark) { return mark.cursor.selectionStart(); };
    auto next = marks.end();
    if (forwards) {
        const int from = textCursor().hasSelection() ? position + 1 : position;
        next = std::find_if(marks.begin(), marks.end(), [&](const auto& mark) { return start(mark) >= from; });
        if (next == marks.end())
            next = marks.begin();
    } else {
        next = std::find_if(
            marks.begin(), marks.end(), [&](const auto& mark) { return mark.cursor.selectionEnd() >= position; });
        next = next == marks.begin() ? marks.end() - 1 : next - 1;
    }
    setTextCursor(next->cursor);
    ensureCursorVisible();
    return true;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    if (type != QTextDocument::ImageResource) {
        m_page = name;
        m_hasPictures = false;
        return QTextBrowser::loadResource(type, name);
    }
    QUrl address = m_page.resolved(name);
    const bool isDark = orvane::look::isDark(palette());
    const QString other = address.path().replace(isDark ? QStringLiteral("-light.") : QStringLiteral("-dark."),
        isDark ? QStringLiteral("-dark.") : QStringLiteral("-light."));
    if (QFile::exists(u':' + other))
        address.setPath(other);
    QImage image(address.scheme() == QLatin1String("qrc") ? u':' + address.path() : address.toLocalFile());
    const int width = viewport()->width() - 2 * static_cast<int>(document()->documentMargin())
        - orvane::look::unit(fontMetrics()) * 4;
    m_hasPictures = true;
    if (width > 0 && image.width() > width)
        image = image.scaledToWidth(width, Qt::SmoothTransformation);
    return image;
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type)
{
    QTextBrowser::doSetSource(name, type);
    // The headings of Markdown texts have no anchors until the page has been laid out.
    if (name.hasFragment())
        scrollToAnchor(name.fragment());
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    showAgain();
}

void HelpBrowser::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    if (m_hasPictures && event->size().width() != event->oldSize().width())
        m_resized.start(resizePause);
}

// Loads the page and its pictures again and stays at its place.
void HelpBrowser::showAgain()
{
    const int position = cursorForPosition(QPoint()).position();
    reload();
    layOut();
    QTextCursor cursor(document());
    cursor.setPosition(std::min(position, document()->characterCount() - 1));
    setTextCursor(cursor);
    ensureCursorVisible();
}

void HelpBrowser::follow(const QUrl& link)
{
    const QUrl address = source().resolved(link);
    if (address.scheme() == QLatin1String("https") || address.scheme() == QLatin1String("http")) {
        if (!QDesktopServices::openUrl(address))
            Q_EMIT linkFailed(tr("No program opens %1.").arg(address.toDisplayString()));
        return;
    }
    const QString file = address.scheme() == QLatin1String("qrc") ? u':' + address.path() : address.toLocalFile();
    if (file.endsWith(QLatin1String(".md")) && QFile::exists(file))
        setSource(address);
    else
        Q_EMIT linkFailed(tr("%1 isn't part of the help. It is in the sources.").arg(link.toDisplayString()));
}

// Anchors of headings, letters of code, and lines of tables, which Markdown leaves to the reader.
void HelpBrowser::layOut()
{
    const int unit = orvane::look::unit(fontMetrics());
    document()->setDocumentMargin(4 * unit);
    const QColor quiet = orvane::look::quietColor(palette().color(QPalette::Text), palette().color(QPalette::Base));
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        cursor.setPosition(block.position());
        QTextBlockFormat format = block.blockFormat();
        const bool isCode = format.hasProperty(QTextFormat::BlockCodeFence);
        format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
        if (isCode)
            format.setBackground(palette().color(QPalette::AlternateBase));
        cursor.setBlockFormat(format);
        if (format.headingLevel() > 0) {
            cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            QTextCharFormat anchor;
            anchor.setAnchor(true);
            anchor.setAnchorNames({orvane::headingAnchor(block.text())});
            cursor.mergeCharFormat(anchor);
        }
    }
    for (QTextFrame* const frame : document()->rootFrame()->childFrames()) {
        auto* const table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr)
            continue;
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderCollapse(true);
        format.setBorderBrush(orvane::look::mixed(palette().color(QPalette::Base), quiet, 0.4));
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setCellPadding(unit);
        format.setTopMargin(unit);
        format.setBottomMargin(2 * unit);
        table->setFormat(format);
    }
    cursor.endEditBlock();
    markWords();
}

void HelpBrowser::markWords()
{
    QList<ExtraSelection> marks;
    QTextCharFormat format;
    format.setBackground(orvane::look::washColor(orvane::look::Tint::Warning, palette().color(QPalette::Base)));
    format.setFontUnderline(true);
    for (const QString& word : m_words) {
        for (QTextCursor found = document()->find(word, 0); !found.isNull(); found = document()->find(word, found))
            marks.append({found, format});
    }
    std::sort(marks.begin(), marks.end(), [](const ExtraSelection& left, const ExtraSelection& right) {
        return left.cursor.selectionStart() < right.cursor.selectionStart();
    });
    setExtraSelections(marks);
}

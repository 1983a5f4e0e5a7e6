#include "orvane/app/fields/cells/detail/TextCell.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/LineEditor.h"
#include "orvane/app/fields/editors/PopupEditor.h"
#include "orvane/app/fields/editors/QuotedForm.h"
#include "orvane/app/fields/popups/TextPopup.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/input/InputMessage.h"

#include "meridane/scene/fields/single/NxSFString.h"

#include <QFontMetrics>

#include <algorithm>

namespace {

constexpr qsizetype longestLine = 1000; // characters, of a text that is edited in the line
constexpr qsizetype shownHead = 300;

const VbString& stringOf(const NxField& field)
{
    return static_cast<const NxSFString&>(field).getValue();
}

QStringView headOf(const VbString& text, qsizetype length)
{
    if (text.isNull())
        return {};
    return {text.toUtf16(), std::min(static_cast<qsizetype>(text.getLength()), length)};
}

// Reads at most as much as is shown or edited in the line, not a text of megabytes.
bool fitsLine(const NxField& field)
{
    const QStringView text = headOf(stringOf(field), longestLine + 1);
    return text.size() <= longestLine && !text.contains(u'\n') && !text.contains(u'\r');
}

QString firstLine(const NxField& field)
{
    const QStringView text = headOf(stringOf(field), shownHead + 1);
    const auto isEnd = [](QChar character) { return character == u'\n' || character == u'\r'; };
    const auto end = std::find_if(text.begin(), text.end(), isEnd) - text.begin();
    const bool isCut = end < text.size() || text.size() > shownHead;
    const QString line = orvane::oneLine(text.left(std::min<qsizetype>(end, shownHead)).toString());
    return isCut ? line + QStringLiteral(" …") : line;
}

} // namespace

void TextCell::paint(QPainter& painter, const CellPaint& cell, const FieldSet& fields) const
{
    const QRect area = orvane::besideOpenMark(cell.area);
    if (cell.isMixed)
        orvane::paintMixed(painter, cell, area);
    else
        orvane::paintText(painter, cell, area, firstLine(fields.first()));
    orvane::paintOpenMark(painter, cell);
}

int TextCell::parts(const NxField& field, const CellServices& /*services*/) const
{
    return fitsLine(field) ? 2 : 1;
}

QRect TextCell::partArea(const QRect& area, const NxField& field, int part, const CellServices& services) const
{
    if (parts(field, services) == 1)
        return area;
    return part == 0 ? orvane::besideOpenMark(area) : orvane::openMarkArea(area);
}

CellEditor* TextCell::createEditor(const CellEdit& edit, QWidget* parent) const
{
    const auto* const field = orvane::fieldOf<NxSFString>(edit);
    if (field == nullptr)
        return nullptr;
    if (edit.part == 0 && fitsLine(*field)) {
        return new LineEditor(
            edit, [](const NxField& shown) { return orvane::toQString(stringOf(shown)); }, &orvane::quotedForm, parent);
    }
    auto* const editor = new PopupEditor(edit, parent);
    auto* const popup = new TextPopup(editor);
    popup->setCellWidth(parent->width() / 2);
    editor->setPopup(popup, [popup, editor](const NxField& shown) {
        if (!popup->isModified())
            popup->setText(editor->fields().isMixed() ? QString() : orvane::toQString(stringOf(shown)));
    });
    editor->onAccepted = [popup, editor] {
        const FieldSet fields = editor->fields();
        if (!popup->isModified() || fields.isEmpty())
            return;
        CellServices& services = *editor->edit().services;
        const orvane::Result<> result = services.writer().setText(fields, orvane::quotedForm(popup->text()));
        if (!result)
            InputMessage::showBriefly(editor->parentWidget(), editor->geometry(), result.error());
    };
    return editor;
}

// Names, values and unknown fields in the window's models and in everything that shows a text: a cell shows one short
// line without control characters, and nothing is interpreted as HTML.
//
// The first byte selects the kind of the others.

#include "Fuzz.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SelectionLabel.h"

#include "meridane/base/values/MessageText.h"
#include "meridane/base/values/Unicode.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QAbstractItemModel>
#include <QApplication>

namespace {

constexpr qsizetype longestCell = 1000;
constexpr qsizetype longestToolTip = 20 * 700; // lines of 100 characters, each at most seven as HTML

// The library makes the platform's part of the process when it starts.
QApplication& application()
{
    static int count = 1;
    static char name[] = "fuzz_names";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication instance(count, arguments);
    return instance;
}

void checkLine(const QString& text)
{
    fuzz::check(text == orvane::oneLine(text), "a line has no control characters");
    fuzz::check(text.isValidUtf16(), "a line is valid Unicode");
    fuzz::check(text.size() <= longestCell, "a line is short");
}

void checkToolTip(const QString& tip)
{
    fuzz::check(tip.size() <= longestToolTip, "a tool tip is short");
    if (!Qt::mightBeRichText(tip))
        return;
    // The only HTML is that which prevents the text from being interpreted as HTML.
    const QString start = QStringLiteral("<div style=\"white-space: pre\">");
    const QString end = QStringLiteral("</div>");
    fuzz::check(tip.startsWith(start) && tip.endsWith(end), "a tool tip is one paragraph");
    const QString inside = tip.sliced(start.size()).chopped(end.size());
    QString text = inside;
    text.replace(QStringLiteral("&lt;"), QStringLiteral("<")).replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    text.replace(QStringLiteral("&quot;"), QStringLiteral("\"")).replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    fuzz::check(text.toHtmlEscaped() == inside, "a tool tip shows the text as it is");
}

void checkItems(QAbstractItemModel& model, const QModelIndex& parent = {})
{
    if (model.canFetchMore(parent))
        model.fetchMore(parent);
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            checkLine(index.data().toString());
            checkToolTip(index.data(Qt::ToolTipRole).toString());
            fuzz::check(index.data(Qt::WhatsThisRole).isNull(), "nothing else is shown");
        }
        checkItems(model, model.index(row, 0, parent));
    }
}

void checkNode(NxFieldContainer* node)
{
    FieldTableModel table;
    table.setNode(node);
    checkItems(table);
}

// The name of a node, as a model's file gives it, and one of its values.
void tryName(std::string_view text)
{
    const NxRef<NxGroup> scene(new NxGroup);
    const NxRef<NxGroup> group(new NxGroup);
    const NxRef<NxMesh> mesh(new NxMesh);
    const VbString name(meridane::replaceInvalidUtf8(text));
    scene->addChild(group.get());
    group->addChild(mesh.get());
    for (NxNode* const node : {static_cast<NxNode*>(group.get()), static_cast<NxNode*>(mesh.get())})
        node->setName(name);
    SceneTreeModel tree;
    tree.setScene(scene.get());
    checkItems(tree);

    // A rename to what the line of the editor shows is none.
    QObject::connect(&tree, &SceneTreeModel::renameRequested,
        [](NxNode* /*node*/, const QString& /*name*/) { fuzz::check(false, "the same name is no change"); });
    const QModelIndex top = tree.index(0, 0);
    tree.setData(top, top.data(Qt::EditRole).toString().left(32767), Qt::EditRole);
    checkNode(mesh.get());
}

// A scene file, with values of any kind and fields that no class has.
void tryScene(std::string_view text)
{
    NxSceneReader reader(std::string(text), "input");
    if (reader.run() != NxSceneReader::State::Done)
        return;
    const NxRef<NxGroup> scene = reader.takeScene();
    SceneTreeModel tree;
    tree.setScene(scene.get());
    checkItems(tree);
    for (NxNode* const node : scene->getChildren())
        checkNode(node);
}

// A text in labels, menus, titles and messages, and the name of a file.
void tryText(std::string_view bytes)
{
    const QString fileName = orvane::fromStdFileName(bytes);
    fuzz::check(orvane::toStdFileName(fileName) == bytes, "the name of a file comes back");
    fuzz::check(orvane::fromFileUrl(orvane::toFileUrl(u'/' + fileName)) == u'/' + fileName, "its URL comes back");
    checkLine(orvane::shortLine(fileName));
    checkToolTip(orvane::plainToolTip(fileName));
    fuzz::check(orvane::menuText(fileName).replace(QStringLiteral("&&"), QString()).count(u'&') == 0,
        "a menu entry has no mark for a key");
    const QString message = QString::fromStdString(meridane::withoutMarkup(meridane::replaceInvalidUtf8(bytes)));
    fuzz::check(!Qt::mightBeRichText(message), "a message is no HTML");

    SelectionLabel label(nullptr);
    label.setPath(fileName);
    checkToolTip(label.toolTip());
    label.resize(200, 20);
    (void)label.grab();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    (void)application();
    if (count == 0)
        return 0;
    const std::string_view text = fuzz::toText(bytes + 1, count - 1);
    switch (bytes[0] % 3) {
    case 0:
        tryName(text);
        break;
    case 1:
        tryScene(text);
        break;
    default:
        tryText(text);
        break;
    }
    return 0;
}

#include "orvane/sdk/NodeEditorBase.h"

#include "orvane/extender/OrvServices.h"
#include "orvane/extender/ReplacedEditors.h"
#include "orvane/sdk/Scene.h"
#include "orvane/sdk/detail/FieldRow.h"

#include "meridane/base/values/VbName.h"

#include <QFormLayout>
#include <QLabel>
#include <QToolButton>

namespace orv {

NodeEditorBase::NodeEditorBase(NxType handled, const char* name)
    : m_sensor([](void* editor, NxSensor* /*sensor*/) { static_cast<NodeEditorBase*>(editor)->refresh(); }, this)
{
    m_handledType = handled;
    m_name = name != nullptr ? name : handled.getName().getString();
    makeArea();
}

void NodeEditorBase::replaces(const QStringList& names)
{
    orvane::setReplacedEditors(*this, names);
}

NodeEditorBase::~NodeEditorBase()
{
    destroyWidgets();
}

void NodeEditorBase::load()
{
    if (m_area.isNull())
        makeArea();
}

void NodeEditorBase::makeArea()
{
    m_area = new QScrollArea;
    m_widget = m_area;
    m_area->setObjectName(QString::fromLatin1(m_handledType.getName().getString()));
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->hide();
}

void NodeEditorBase::unload()
{
    destroyWidgets();
}

void NodeEditorBase::destroyWidgets()
{
    m_sensor.detach();
    m_links.clear();
    m_followers.clear();
    m_form = nullptr;
    delete m_area.data();
    m_widget = nullptr;
    m_node = {};
}

void NodeEditorBase::activate()
{
    OrvExtension::activate();
    NxTypedObject* const object = getEditedObject();
    if (object == nullptr || !object->isOfType(m_handledType)) {
        hide();
        return;
    }
    connect(&scene(), &Scene::aboutToClose, this, [this] { setNode(nullptr); });
    if (m_followsScene)
        connect(&scene(), &Scene::edited, this, &NodeEditorBase::refresh);
    setNode(static_cast<NxFieldContainer*>(object));
    show();
}

void NodeEditorBase::deactivate()
{
    OrvExtension::deactivate();
    if (OrvServices::getInstance() != nullptr)
        disconnect(&scene(), nullptr, this, nullptr);
    setNode(nullptr);
    hide();
}

void NodeEditorBase::hide()
{
    OrvExtension::hide();
    if (!m_area.isNull())
        m_area->hide();
}

void NodeEditorBase::show()
{
    OrvExtension::show();
    if (!m_area.isNull())
        m_area->show();
}

void NodeEditorBase::setNode(NxFieldContainer* node)
{
    const NxRef<NxFieldContainer> former = std::exchange(m_node, node);
    m_sensor.attach(node);
    if (node != nullptr)
        buildOnce();
    for (const auto& link : m_links)
        link->attach(node);
    refresh();
}

void NodeEditorBase::refresh()
{
    if (!m_node)
        return;
    for (const auto& follower : m_followers)
        follower(*m_node);
}

void NodeEditorBase::followScene()
{
    if (!std::exchange(m_followsScene, true) && isActive())
        connect(&scene(), &Scene::edited, this, &NodeEditorBase::refresh);
}

// At first need, so that the start of the program doesn't wait for editors that nobody opens.
void NodeEditorBase::buildOnce()
{
    if (m_form != nullptr)
        return;
    auto* const content = new QWidget;
    m_form = new QFormLayout(content);
    m_form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_area->setWidget(content);
    build();
}

void NodeEditorBase::addWidget(const QString& label, QWidget& widget)
{
    if (widget.objectName().isEmpty())
        widget.setObjectName(label.isEmpty() ? QStringLiteral("row%1").arg(m_form->rowCount()) : label);
    if (label.isEmpty())
        m_form->addRow(&widget);
    else
        m_form->addRow(label, &widget);
}

void NodeEditorBase::addFieldRow(const FieldFinder& find)
{
    struct Row final : Link {
        Row(NxField& example, FieldFinder finder)
            : row(example)
            , find(std::move(finder))
        {
        }
        void attach(NxFieldContainer* node) override { row.attach(node != nullptr ? find(*node) : nullptr); }

        FieldRow row;
        FieldFinder find;
    };
    auto link = std::make_unique<Row>(*find(*m_node), find);
    m_form->addRow(&link->row.label(), &link->row.control());
    addLink(std::move(link));
}

void NodeEditorBase::addTextRow(const QString& label, const std::function<QString(NxFieldContainer&)>& text)
{
    auto& shown = add<QLabel>(label);
    shown.setTextFormat(Qt::PlainText);
    shown.setWordWrap(true);
    shown.setTextInteractionFlags(Qt::TextSelectableByMouse);
    addFollower([&shown, text](NxFieldContainer& node) { shown.setText(text(node)); });
}

void NodeEditorBase::addFollower(std::function<void(NxFieldContainer&)> follower)
{
    m_followers.push_back(std::move(follower));
}

void NodeEditorBase::addLink(std::unique_ptr<Link> link)
{
    m_links.push_back(std::move(link));
}

} // namespace orv
